// SPDX-License-Identifier: MIT
#pragma once

#include "settings/quiz_settings.h"

#include <QSize>

#include <array>

/// The kinds of quizzes and games. A kind also numbers its command and the remembered size of its window.
enum class QuizKind {
    Standard = 0,
    Table = 1,
    SelfTest = 2,
    Alternatives = 3,
    Hangman = 4,
    PairMatching = 5,
    WordContest = 6,
    FallingWords = 7,
    Memory = 8
};

/// What becomes of the answers of a kind, and so which words it can ask.
enum class QuizAnswers {
    AreShown, ///< Nothing is judged, so every word will do.
    AreJudged, ///< An answer of nothing is wrong, so a word whose answer is empty is left out.
    AreSpelt ///< Comments don't count either.
};

/// What the program knows of a kind before it runs. Its window stands beside the other windows' makers.
struct QuizKindRow
{
    QuizKind kind;
    /// The number of its command; its texts have theirs from it.
    int command;
    const char *icon;
    /// The fewest entries that a list must have.
    int minimumEntries;
    QuizAnswers answers;
};

/// One row per kind, in the order of the kinds.
const std::array<QuizKindRow, QuizSettings::KindCount> &quizKinds();
inline const QuizKindRow &quizKindRow(QuizKind kind)
{
    return quizKinds()[size_t(kind)];
}

/// The size in which the window of a kind opens: the remembered one, where there is none its own, and never
/// larger than what is available on the screen.
QSize openingSize(const QuizWindowSettings &sizes, QuizKind kind, QSize own, QSize available);
void rememberSize(QuizWindowSettings &sizes, QuizKind kind, QSize size);
