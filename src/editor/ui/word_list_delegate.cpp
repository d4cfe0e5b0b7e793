// SPDX-License-Identifier: MIT
#include "editor/ui/word_list_delegate.h"

#include "editor/word_list_model.h"

#include <QApplication>
#include <QPainter>

CWordListDelegate::CWordListDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_flagOn(QStringLiteral(":/pictures/flag-on.svg")),
      m_flagOff(QStringLiteral(":/pictures/flag-off.svg"))
{
}

void CWordListDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QVariant flag = index.data(CWordListModel::FlagRole);
    const auto *const model = qobject_cast<const CWordListModel *>(index.model());
    if (model != nullptr && model->field(index.column()) == CWordListModel::NumberColumn) {
        cell.palette.setColor(QPalette::Text, cell.palette.color(QPalette::PlaceholderText));
    }
    const QWidget *const widget = cell.widget;
    QStyle *const style = widget != nullptr ? widget->style() : QApplication::style();
    if (!flag.isValid()) {
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, widget);
        return;
    }

    QStyleOptionViewItem background = cell;
    background.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &background, painter, widget);

    const int size = std::min(cell.fontMetrics.height(), cell.rect.height() - 4);
    const int gap = size / 3;
    const QRect picture(cell.rect.left() + gap, cell.rect.center().y() - size / 2, size, size);
    // The flag keeps the window's own background, on which it can be told also in a selected row.
    painter->fillRect(QRect(cell.rect.left(), cell.rect.top(), size + 2 * gap, cell.rect.height()),
        cell.features.testFlag(QStyleOptionViewItem::Alternate) ? cell.palette.alternateBase()
                                                                : cell.palette.base());
    (flag.toBool() ? m_flagOn : m_flagOff).paint(painter, picture);

    const bool selected = cell.state.testFlag(QStyle::State_Selected);
    const bool active = cell.state.testFlag(QStyle::State_Active);
    const QRect room = cell.rect.adjusted(size + 2 * gap + 3, 1, -2, -1);
    painter->save();
    painter->setPen(cell.palette.color(
        active ? QPalette::Active : QPalette::Inactive, selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(cell.font);
    painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
        cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width()));
    painter->restore();
}
