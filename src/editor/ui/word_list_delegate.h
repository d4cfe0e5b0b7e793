// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

/// Draws a cell of the word list: the flag of a language cell at its left edge, then the text; the number
/// column in a quieter colour.
class CWordListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CWordListDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QIcon m_flagOn;
    QIcon m_flagOff;
};
