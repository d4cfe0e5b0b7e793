// SPDX-License-Identifier: MIT
#include "platform/ui/fitted_text.h"

#include "platform/plain_text.h"
#include "platform/ui/wrapped_text.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// How finely sizes are tried: so many to the font's own.
constexpr int StepsPerSize = 8;

/// Whether no word of the text is broken for lack of room.
bool KeepsWords(const QString &text, const QFont &font, int width)
{
    const QFontMetrics metrics(font);
    const QStringList words = text.split(u' ');
    return std::ranges::all_of(
        words, [&](const QString &word) { return metrics.horizontalAdvance(word) <= width; });
}

}

FittedText FitText(const QString &text, const QFont &font, double factor, QSize room)
{
    const int width = std::max(room.width(), 1);
    FittedText fitted = {ShownShort(text), font};
    const int steps = int(std::floor((factor - 1) * StepsPerSize));
    for (int step = 0; step <= steps; ++step) {
        fitted.font.setPointSizeF(font.pointSizeF() * (factor - double(step) / StepsPerSize));
        const bool fits = WrappedHeight(fitted.text, fitted.font, width) <= room.height();
        if (fits && (step == steps || KeepsWords(fitted.text, fitted.font, width))) {
            return fitted;
        }
    }
    fitted.font = font;
    while (fitted.text.size() > 1 && WrappedHeight(fitted.text, font, width) > room.height()) {
        fitted.text = ShownShort(fitted.text, fitted.text.size() * 9 / 10);
        fitted.isWhole = false;
    }
    return fitted;
}

QSize SizeOf(const FittedText &fitted, QSize room)
{
    const int width = NaturalWidth(fitted.text, fitted.font, std::max(room.width(), 1));
    return {width, WrappedHeight(fitted.text, fitted.font, width)};
}

void DrawFitted(QPainter &painter, const FittedText &fitted, const QRect &room)
{
    const QSize size = SizeOf(fitted, room.size());
    QRect place({}, QSize(room.width(), size.height()));
    place.moveCenter(room.center());
    PaintWrapped(painter, fitted.text, fitted.font, place, Qt::AlignHCenter);
}
