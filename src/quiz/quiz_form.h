// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/accept_offer.h"
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
    bool skip();

    /// What "I was right" would do: accept the last answer, unless a word was skipped after it, or take back
    /// what was accepted.
    AcceptOffer acceptOffer() const;
    /// What there is to show afterwards.
    enum class Next { SameWord, OtherWord, Over };
    /// Does it. A word that is asked again because of the answer is left as after a right one, and comes back
    /// when the answer is taken back on the next word.
    Next takeAcceptOffer();

protected:
    /// Judges and records an answer to the word on screen.
    AnswerVerdict recordAnswer(const QString &answer);

    CQuizSession &m_session;
    const QuizSettings &m_settings;
    const CTexts &m_texts;

private:
    QString lastAnswer() const;
    Next acceptLastAnswer();
    Next takeBackLastAnswer();

    int m_roundPosition = 0;
    bool m_askedAgain = false;
    bool m_skipped = false; // After the last answer.
    bool m_leftByAccepting = false; // The word before this one in the round.
};
