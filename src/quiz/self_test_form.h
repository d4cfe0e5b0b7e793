// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/word_by_word_form.h"

/// The self-test: the answer is shown on request. Nothing is judged and nothing recorded.
class CSelfTestForm : public CWordByWordForm
{
public:
    explicit CSelfTestForm(const QuizStart &start) : CWordByWordForm(start) { }

    /// The answer to the word on screen, as it is shown.
    QString answer() const;
    /// Flags the word on screen and goes on.
    Next flag();
};
