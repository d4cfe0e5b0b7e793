// SPDX-License-Identifier: MIT
#pragma once

/// The direction, order, selection and judging of quizzes, with the factory values.
struct QuizSettings
{
    /// 0 asks language 1 and expects language 2, 1 the reverse.
    int showLanguage = 0;
    /// 0 all characters count, 1 only letters, 2 letters and spaces.
    int characterCheck = 0;
    bool ignoreCase = false;
    bool showAnswer = true;
    bool showAnswerIfOneCorrect = false;
    /// 0 never, 1 rounds of the wrong words after each round, 2 a wrong word again at once.
    int requiz = 2;
    /// Limits the rounds of `requiz` 1 to `requizNumber`.
    bool requizMax = true;
    int requizNumber = 3;
    /// 0 as in the list, 1 backwards, 2 random.
    int order = 2;
    bool learning = false;
    int quizNumber = 3;
    /// 0 never, 1 always, 2 each with `includeFlaggedProbability` percent.
    int includeFlaggedWords = 2;
    int includeFlaggedProbability = 20;
    bool showResult = true;
    /// 0 all, 1 `numberOfWords`, 2 `partOfWords` percent, 3 the selected entries.
    int wordsToQuiz = 0;
    int numberOfWords = 20;
    int partOfWords = 50;
};
