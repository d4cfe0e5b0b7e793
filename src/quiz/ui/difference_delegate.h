// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class QTextDocument;

/// Draws the rows of wrong answers: what is too much struck through, what is missing underlined, both in colour
/// too.
class CDifferenceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    static void fill(QTextDocument &document, const QStyleOptionViewItem &item, const QModelIndex &index);
};
