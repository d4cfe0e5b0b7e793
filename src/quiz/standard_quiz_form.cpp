// SPDX-License-Identifier: MIT
#include "quiz/standard_quiz_form.h"

#include "model/term_syntax.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"

QString CStandardQuizForm::question() const
{
    return m_session.questionText(roundPosition(), m_texts.Get(Text::StandardQuestion));
}

QString CStandardQuizForm::prefilledAnswer() const
{
    if (!m_settings.learning) {
        return {};
    }
    const QuizQuestion question = m_session.questionOfRound(roundPosition());
    return question.entry.GetText(question.AnswerColumn());
}

CStandardQuizForm::Outcome CStandardQuizForm::answer(const QString &typed)
{
    const QString tidied = NormalizeTerm(typed);
    const AnswerVerdict verdict = recordAnswer(tidied);
    return {verdict,
        feedbackText(m_texts, m_settings, verdict, m_session.questionOfRound(roundPosition()), tidied)};
}
