// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

/// Draws a share of right answers over a bar of its length.
class CShareDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
