// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_form.h"

/// The standard quiz: one word at a time, the answer is typed.
class CStandardQuizForm : public CQuizForm
{
public:
    using CQuizForm::CQuizForm;

    QString question() const;
    /// What stands in the answer field at first: the answer in learning mode, else nothing.
    QString prefilledAnswer() const;

    struct Outcome
    {
        AnswerVerdict verdict = AnswerVerdict::Wrong;
        std::optional<FeedbackText> feedback;
    };
    /// Tidies, judges and records what was typed; advance() comes after the feedback was shown.
    Outcome answer(const QString &typed);
};
