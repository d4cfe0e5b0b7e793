// SPDX-License-Identifier: MIT
#include "quiz/self_test_form.h"

#include "quiz/text_numbers.h"
#include "resources/texts.h"

QString CSelfTestForm::answer() const
{
    const QuizQuestion question = currentQuestion();
    return FillPlaceholders(texts().Get(Text::SelfTestAnswer),
        {{QStringLiteral("%1"), question.entry.GetText(question.answerColumn())}}, FilledFor::Screen);
}

CSelfTestForm::Next CSelfTestForm::flag()
{
    session()->flagWord(roundPosition());
    return skip();
}
