// SPDX-License-Identifier: MIT
#include "editor/mark_in_sight.h"

#include "platform/plain_text.h"

#include <algorithm>

namespace {

constexpr QChar Ellipsis(0x2026);
constexpr qsizetype Before = 12; // What is left to be read before a mark.

/// The text from `start` on, with an ellipsis for what is before.
QString From(const QString &text, qsizetype start)
{
    return start == 0 ? text : Ellipsis + text.sliced(start);
}

/// The start of a text that fits, with an ellipsis for what comes after it.
QString Fitting(const QString &text, const std::function<bool(const QString &line)> &fits)
{
    if (text.size() <= MaxShownLength && fits(text)) {
        return text;
    }
    qsizetype fitting = 0;
    qsizetype tooLong = std::min(text.size(), MaxShownLength);
    while (tooLong - fitting > 1) {
        const qsizetype middle = (fitting + tooLong) / 2;
        (fits(text.first(middle) + Ellipsis) ? fitting : tooLong) = middle;
    }
    return text.first(StartLength(text, fitting)) + Ellipsis;
}

}

MarkedText WithMarkInSight(const MarkedText &whole, const std::function<bool(const QString &line)> &fits)
{
    const QString &text = whole.text;
    const qsizetype start = std::clamp<qsizetype>(whole.start, 0, text.size());
    const qsizetype end = std::clamp(start + whole.length, start, text.size());
    const bool inSight = end <= MaxShownLength && (fits(text) || fits(text.first(end) + Ellipsis));
    const qsizetype cut = inSight ? 0 : StartLength(text, std::max<qsizetype>(start - Before, 0));
    const QString line = Fitting(From(text, cut), fits);
    const qsizetype shift = cut == 0 ? 0 : cut - 1;
    return {line, start - shift, std::min(end - start, line.size() - (start - shift))};
}
