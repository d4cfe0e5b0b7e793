// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/accept_offer.h"
#include "quiz/last_answer.h"
#include "quiz/quiz_form.h"

/// What the forms decide that ask one word at a time: which word is on screen, and what comes after an answer.
class CWordByWordForm : public CQuizForm
{
public:
    int currentEntry() const override { return session()->entryOfRound(m_roundPosition); }
    int roundPosition() const { return m_roundPosition; }
    virtual QString question() const;
    std::optional<QuizProgress> wordProgress() const override;

    /// What there is to show after a step.
    enum class Next { SameWord, OtherWord, Over };
    /// Goes on after an answer: to the next word, the same one asked again, or the next round.
    virtual Next advance(AnswerVerdict verdict);
    /// Goes on without recording an answer.
    Next skip();

    /// What is shown of the answer given last.
    virtual std::optional<LastAnswer> shownAnswer() const;
    /// What "I was right" would do: accept the last answer, unless a word was skipped after it, or take back
    /// what was accepted.
    AcceptOffer acceptOffer() const;
    /// Does it. A word that is asked again because of the answer is left as after a right one, and comes back
    /// when the answer is taken back on the next word.
    Next takeAcceptOffer();

    struct Outcome
    {
        AnswerVerdict verdict = AnswerVerdict::Wrong;
        std::optional<FeedbackText> feedback;
    };

protected:
    using CQuizForm::CQuizForm;

    /// The question about the word on screen.
    QuizQuestion currentQuestion() const { return session()->questionOfRound(m_roundPosition); }
    /// Whether the word on screen was answered wrong just now, and is asked again at once.
    bool isAskedAgain() const { return m_askedAgain; }
    /// Judges and records an answer to the word on screen as it is. advance() comes after the feedback was
    /// shown.
    Outcome recordAnswer(const QString &answer);

private:
    QString lastAnswer() const;
    Next acceptLastAnswer();
    Next takeBackLastAnswer();

    int m_roundPosition = 0;
    bool m_askedAgain = false;
    bool m_skipped = false; // After the last answer.
    bool m_leftByAccepting = false; // The word before this one in the round.
};
