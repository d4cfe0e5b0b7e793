// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_session.h"
#include "settings/quiz_settings.h"
#include "support/test_document.h"

/// Settings under which every word is asked in list order, flagged or not; one round, and no word again.
inline QuizSettings InListOrder(Requiz requiz = Requiz::None, int rounds = 1)
{
    QuizSettings settings;
    settings.order = QuizOrder::AsInList;
    settings.quizNumber = rounds;
    settings.requiz = requiz;
    settings.includeFlaggedWords = IncludeFlagged::Always;
    return settings;
}

/// A session over a list, without a window.
struct TestSession
{
    explicit TestSession(const QString &entries, const QuizSettings &given = InListOrder(),
        const std::vector<int> &selected = {})
        : test(entries), settings(given), session(test.document, settings, random, selected)
    {
    }
    QString Entries() const { return test.Entries(); }

    TestDocument test;
    QuizSettings settings;
    CRandom random{1};
    CQuizSession session;
};
