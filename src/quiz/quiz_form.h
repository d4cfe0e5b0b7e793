// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_session.h"

#include <QString>

class CTexts;
struct QuizSettings;

/// A line of the statistics with the bar beside it.
struct QuizProgress
{
    QString text;
    int value = 0;
    int maximum = 0;
};

/// What every quiz form decides: which word is on screen, what comes after an answer, and the lines of
/// statistics. Lives as long as its window; nothing handed in is owned.
class CQuizForm
{
public:
    CQuizForm(CQuizSession &session, const QuizSettings &settings, const CTexts &texts);

    const CQuizSession &session() const { return m_session; }
    int roundPosition() const { return m_roundPosition; }

    QString roundText() const;
    QuizProgress wordProgress() const;
    QuizProgress rightProgress() const;

    /// Goes on after an answer: to the next word, the same one again, or the next round. False when the quiz is
    /// over.
    bool advance(AnswerVerdict verdict);
    /// Goes on without recording an answer. False when the quiz is over.
    bool skip() { return advance(AnswerVerdict::Right); }

protected:
    CQuizSession &m_session;
    const QuizSettings &m_settings;
    const CTexts &m_texts;

private:
    int m_roundPosition = 0;
};
