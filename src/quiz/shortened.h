// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// `text` with a mark in place of its middle when it is longer than about three times `kept`; that many
/// characters are kept at its start and end.
inline QString shortened(const QString &text, qsizetype kept)
{
    if (text.size() <= 3 * kept) {
        return text;
    }
    qsizetype start = kept;
    qsizetype end = text.size() - kept;
    start += text.at(start).isLowSurrogate() ? 1 : 0;
    end += text.at(end).isLowSurrogate() ? 1 : 0;
    return text.left(start) + QChar(u'…') + text.mid(end);
}
