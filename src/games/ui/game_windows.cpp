// SPDX-License-Identifier: MIT
#include "games/ui/game_windows.h"

#include "games/ui/alternatives_game.h"
#include "games/ui/falling_words_game.h"
#include "games/ui/hangman_game.h"
#include "games/ui/memory_game.h"
#include "games/ui/pair_matching.h"
#include "games/ui/word_contest_game.h"

QuizWindowMakers quizAndGameWindowMakers()
{
    QuizWindowMakers makers = quizWindowMakers();
    makers[size_t(QuizKind::Alternatives)] = makeQuizWindow<CAlternativesGame, CAlternativesForm>;
    makers[size_t(QuizKind::Hangman)] = makeQuizWindow<CHangmanGame, CHangmanForm>;
    makers[size_t(QuizKind::PairMatching)] = makeQuizWindow<CPairMatchingDialog, CPairMatchingForm>;
    makers[size_t(QuizKind::WordContest)] = makeWordContest;
    makers[size_t(QuizKind::FallingWords)] = makeQuizWindow<CFallingWordsGame, CFallingWordsForm>;
    makers[size_t(QuizKind::Memory)] = makeQuizWindow<CMemoryGame, CMemoryForm>;
    return makers;
}
