// SPDX-License-Identifier: MIT
#include "quiz/quiz_kinds.h"

const std::array<QuizKindRow, QuizSettings::KindCount> &quizKinds()
{
    static constexpr std::array<QuizKindRow, QuizSettings::KindCount> Kinds = {{
        {QuizKind::Standard, 32855, "ordelin-quiz", 1, QuizAnswers::AreJudged},
        {QuizKind::Table, 32856, "ordelin-quiz-table", 1, QuizAnswers::AreJudged},
        {QuizKind::SelfTest, 32857, "ordelin-quiz-self-test", 1, QuizAnswers::AreShown},
        {QuizKind::Alternatives, 32858, "ordelin-quiz-alternatives", 4, QuizAnswers::AreJudged},
        {QuizKind::Hangman, 32859, "ordelin-quiz-hangman", 1, QuizAnswers::AreSpelt},
        {QuizKind::PairMatching, 32860, "ordelin-quiz-pairs", 2, QuizAnswers::AreJudged},
        {QuizKind::WordContest, 32861, "ordelin-quiz-contest", 1, QuizAnswers::AreJudged},
        {QuizKind::FallingWords, 32862, "ordelin-quiz-falling", 1, QuizAnswers::AreJudged},
        {QuizKind::Memory, 32863, "ordelin-quiz-memory", 1, QuizAnswers::AreJudged},
    }};
    return Kinds;
}

QSize openingSize(const QuizWindowSettings &sizes, QuizKind kind, QSize own, QSize available)
{
    const int width = sizes.windowWidth[size_t(kind)];
    const int height = sizes.windowHeight[size_t(kind)];
    return QSize(width > 0 ? width : own.width(), height > 0 ? height : own.height()).boundedTo(available);
}

void rememberSize(QuizWindowSettings &sizes, QuizKind kind, QSize size)
{
    sizes.windowWidth[size_t(kind)] = size.width();
    sizes.windowHeight[size_t(kind)] = size.height();
}
