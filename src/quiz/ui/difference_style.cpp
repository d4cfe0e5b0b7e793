// SPDX-License-Identifier: MIT
#include "quiz/ui/difference_style.h"

#include <QPalette>
#include <QString>

QString differenceStyle(const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return QStringLiteral("s, u { font-weight: bold } ")
        + (dark ? QStringLiteral("s { color: #ff8a80 } u { color: #81e08c }")
                : QStringLiteral("s { color: #b00020 } u { color: #00691c }"));
}
