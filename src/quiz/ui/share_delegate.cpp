// SPDX-License-Identifier: MIT
#include "quiz/ui/share_delegate.h"

#include "quiz/quiz_result_model.h"

#include <QApplication>
#include <QPainter>

void CShareDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString text = std::exchange(item.text, {});
    const QStyle *const style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const QColor ink = item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    QRect bar = item.rect.adjusted(2, 2, -2, -2);
    bar.setWidth(bar.width() * index.data(CQuizResultModel::PercentRole).toInt() / 100);
    QColor fill = selected ? ink : item.palette.color(QPalette::Highlight);
    fill.setAlpha(90);
    painter->save();
    if (bar.width() > 0) {
        painter->fillRect(bar, fill);
    }
    painter->setPen(ink);
    painter->setFont(item.font);
    painter->drawText(
        item.rect, Qt::AlignCenter, item.fontMetrics.elidedText(text, Qt::ElideRight, item.rect.width() - 4));
    painter->restore();
}
