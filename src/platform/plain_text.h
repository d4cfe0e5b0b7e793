// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How much of a text is shown where it is not edited: layout takes time in proportion to it. In code units.
inline constexpr qsizetype MaxShownLength = 1000;

/// The length of the start of `text` that has at most `length` code units and cuts no character in two.
inline qsizetype StartLength(const QString &text, qsizetype length)
{
    if (text.size() <= length) {
        return text.size();
    }
    return length > 0 && text.at(length - 1).isHighSurrogate() ? length - 1 : length;
}

/// `text` cut to at most `longest` code units, the last of them an ellipsis then: what comes from a file may be
/// far longer than anything that can be shown.
QString ShownShort(const QString &text, qsizetype longest = MaxShownLength);

/// `text` with a blank for each line break: one in a header of a file would shift every line behind it.
QString OneLine(QString text);

/// `text` for a part of a caption: short and on one line, and an ampersand in it marks no key.
QString ShownInCaption(const QString &text);

/// A caption as it is read out: without its marked key and the colon at its end.
QString CaptionReadOut(const QString &caption);

/// Whether `text` holds letters that run from right to left, or marks that turn the direction of what follows.
bool HoldsOtherDirections(const QString &text);

/// `text` for a place between others: it runs in its own direction, and nothing in it turns what follows. Holds
/// invisible marks where that takes some, or always with `force`, so it is only to be shown, never stored or
/// compared.
QString Isolated(const QString &text, bool force = false);
