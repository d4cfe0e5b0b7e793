// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_form.h"
#include "support/test_session.h"

/// Settings of a quiz in the order of the list over all of its entries, which also says all right answers.
inline QuizSettings InOrder(Requiz requiz, int rounds = 1)
{
    QuizSettings settings = InListOrder(requiz, rounds);
    settings.showAnswerIfOneCorrect = true;
    return settings;
}

/// A form with all that it needs, without a window. `settings` must live as long.
template<class Form>
struct TestForm
{
    CRandom random{1};
    QuizChallengeSettings quizChallenge;
    FallingWordSettings fallingWord;
    std::shared_ptr<CQuizSession> session;
    Form form;

    TestForm(TestDocument &test, const QuizSettings &settings, std::span<const int> selected = {},
        QuizAnswers answers = QuizAnswers::AreJudged)
        : session(std::make_shared<CQuizSession>(test.document, settings, random, selected, answers)),
          form({session, settings, {quizChallenge, fallingWord}, test.texts, random, SteadyClock})
    {
    }
};
