// SPDX-License-Identifier: MIT
#include "games/ui/game_windows.h"

#include "games/ui/alternatives_game.h"
#include "games/ui/hangman_game.h"
#include "games/ui/pair_matching.h"

QuizWindowMakers quizAndGameWindowMakers()
{
    QuizWindowMakers makers = quizWindowMakers();
    makers[size_t(QuizKind::Alternatives)] = makeQuizWindow<CAlternativesGame, CAlternativesForm>;
    makers[size_t(QuizKind::Hangman)] = makeQuizWindow<CHangmanGame, CHangmanForm>;
    makers[size_t(QuizKind::PairMatching)] = makeQuizWindow<CPairMatchingDialog, CPairMatchingForm>;
    return makers;
}
