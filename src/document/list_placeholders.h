// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CWordList;
class QDate;

/// Replaces %language1, %language2, %comments, %author, %nwords and %date, in this order; an invalid date
/// leaves %date.
QString ExpandListPlaceholders(const QString &text, const CWordList &list, QDate today);

/// The text without what no file name may hold on any system.
QString AsFileName(QString text);

/// The first of two texts that is not empty.
inline QString FirstGiven(const QString &first, const QString &second)
{
    return first.isEmpty() ? second : first;
}
