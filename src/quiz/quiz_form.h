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

    CQuizSession &session() const { return m_session; }
    int roundPosition() const { return m_roundPosition; }

    bool mayChangeEntries() const;
    /// After entries of the list were changed.
    void entriesChanged() { m_session.recheckAll(); }
    /// The file to play after an answer; empty for silence.
    QString sound(AnswerVerdict verdict, const QStringList &dataFolders) const;

    QString roundText() const;
    QuizProgress wordProgress() const;
    QuizProgress rightProgress() const;

    /// Goes on after an answer: to the next word, the same one again, or the next round. False when the quiz is
    /// over.
    bool advance(AnswerVerdict verdict);
    /// Goes on without recording an answer. False when the quiz is over.
    bool skip() { return advance(AnswerVerdict::Right); }

    /// Whether the word on screen is asked again since the last answer was wrong.
    bool isAskedAgain() const { return m_askedAgain; }
    /// Whether the last answer is judged wrong and may be taken as right.
    bool mayAcceptLastAnswer() const;
    /// Makes it a further alternative of its entry. A word that is asked again because of it is left as after a
    /// right answer. False when the quiz is over.
    bool acceptLastAnswer();

protected:
    CQuizSession &m_session;
    const QuizSettings &m_settings;
    const CTexts &m_texts;

private:
    QString lastAnswer() const;

    int m_roundPosition = 0;
    bool m_askedAgain = false;
};
