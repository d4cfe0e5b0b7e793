// SPDX-License-Identifier: MIT
#include "editor/ui/find_result_delegate.h"

#include "editor/find_results.h"
#include "editor/ui/marked_line.h"

#include <QApplication>
#include <QPainter>
#include <QTextCharFormat>

void CFindResultDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto *const results = static_cast<const CFindResults *>(index.model());
    const TextMatch match = results->MatchIn(index.row(), index.column());
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text.clear();
    const QStyle *const style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    constexpr int Margin = 3;
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const bool active = item.state.testFlag(QStyle::State_Active);
    painter->setFont(item.font);
    painter->setPen(item.palette.color(
        active ? QPalette::Active : QPalette::Inactive, selected ? QPalette::HighlightedText : QPalette::Text));
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    DrawMarkedLine(*painter, item.rect.adjusted(Margin, 0, -Margin, 0),
        {index.data(Qt::DisplayRole).toString(), match.start, match.end + 1 - match.start}, underlined);
}
