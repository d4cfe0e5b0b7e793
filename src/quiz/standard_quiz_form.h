// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/word_by_word_form.h"

/// The standard quiz: one word at a time, the answer is typed.
class CStandardQuizForm : public CWordByWordForm
{
public:
    explicit CStandardQuizForm(const QuizStart &start) : CWordByWordForm(start) { }

    /// What stands in the answer field at first: the answer in learning mode, else nothing.
    QString prefilledAnswer() const;
    /// Tidies, judges and records what was typed.
    Outcome answer(const QString &typed);
};
