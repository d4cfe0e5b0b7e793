// SPDX-License-Identifier: MIT
#include "quiz/quiz_kinds.h"

QSize openingSize(const QuizWindowSettings &sizes, int kind, QSize own, QSize available)
{
    const int width = sizes.windowWidth[size_t(kind)];
    const int height = sizes.windowHeight[size_t(kind)];
    return QSize(width > 0 ? width : own.width(), height > 0 ? height : own.height()).boundedTo(available);
}

void rememberSize(QuizWindowSettings &sizes, int kind, QSize size)
{
    sizes.windowWidth[size_t(kind)] = size.width();
    sizes.windowHeight[size_t(kind)] = size.height();
}
