// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class QPainter;

/// How high a plain text becomes in a width, with lines that end at blanks, or anywhere in a word that finds no
/// room on a line of its own.
int WrappedHeight(const QString &text, const QFont &font, int width);
/// Paints it from the top of a place, in the colour of the pen.
void PaintWrapped(QPainter &painter, const QString &text, const QFont &font, const QRect &place,
    Qt::Alignment alignment = Qt::AlignLeading);
/// The width of its longest paragraph on one line, or `most` when that is less.
int NaturalWidth(const QString &text, const QFont &font, int most);

/// A label that shows such a text to its end, however long its words are. Its height follows from its width.
class CWrappedText : public QLabel
{
    Q_OBJECT

public:
    CWrappedText(const QString &text, QWidget *parent);

    void ShowText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
