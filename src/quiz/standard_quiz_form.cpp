// SPDX-License-Identifier: MIT
#include "quiz/standard_quiz_form.h"

#include "model/term_syntax.h"

QString CStandardQuizForm::prefilledAnswer() const
{
    if (!settings().learning) {
        return {};
    }
    const QuizQuestion question = currentQuestion();
    return question.entry.GetText(question.answerColumn());
}

CStandardQuizForm::Outcome CStandardQuizForm::answer(const QString &typed)
{
    return recordAnswer(NormalizeTerm(typed));
}
