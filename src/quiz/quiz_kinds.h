// SPDX-License-Identifier: MIT
#pragma once

#include "settings/quiz_settings.h"

#include <QSize>

#include <array>

/// The kinds of quizzes and games. A kind also numbers its command and the remembered size of its window.
enum QuizKind {
    StandardQuizKind = 0,
    TableQuizKind = 1,
    SelfTestKind = 2,
    AlternativesKind = 3,
    HangmanKind = 4,
    PairMatchingKind = 5,
    WordContestKind = 6,
    FallingWordsKind = 7,
    MemoryKind = 8
};

/// The fewest entries that a list must have for each kind.
inline constexpr std::array<int, QuizSettings::KindCount> MinimumEntries = {1, 1, 1, 4, 1, 2, 1, 1, 1};

/// The size in which the window of a kind opens: the remembered one, where there is none its own, and never
/// larger than what is available on the screen.
QSize openingSize(const QuizWindowSettings &sizes, int kind, QSize own, QSize available);
void rememberSize(QuizWindowSettings &sizes, int kind, QSize size);
