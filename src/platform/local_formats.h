// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>

/// Dates and numbers as the user's own locale writes them, whatever language the program speaks.

/// The short date with all digits of the year, where the locale's short form has only two.
QString FormatShortDate(QDate date);
/// A whole number with its digits grouped.
QString FormatNumber(qint64 number);
