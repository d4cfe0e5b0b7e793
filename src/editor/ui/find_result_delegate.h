// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

/// Draws what a search found, with the text that was searched for in bold and underlined.
class CFindResultDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
