// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

/// A text that is painted in a room of its own: with lines that end at blanks, or anywhere in a word that is
/// too long, and with as large letters as find room there.
struct FittedText
{
    QString text;
    QFont font;
    bool isWhole = true; ///< Else the end of the text is left out.
};

/// Tries `font` at `factor` times its size first, and not below its own size. Sizes are in logical pixels.
FittedText FitText(const QString &text, const QFont &font, double factor, QSize room);
/// The room that it takes of that which it was fitted to.
QSize SizeOf(const FittedText &fitted, QSize room);
/// Draws it in the middle, in the painter's pen.
void DrawFitted(QPainter &painter, const FittedText &fitted, const QRect &room);
