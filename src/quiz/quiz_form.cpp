// SPDX-License-Identifier: MIT
#include "quiz/quiz_form.h"

#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"

CQuizForm::CQuizForm(CQuizSession &session, const QuizSettings &settings, const CTexts &texts)
    : m_session(session), m_settings(settings), m_texts(texts)
{
}

QString CQuizForm::roundText() const
{
    const QString base = QString::number(m_session.baseRound());
    const QString rounds = QString::number(m_settings.quizNumber);
    const QString requiz = QString::number(m_session.requizRound());
    if (m_session.requizRound() == 0) {
        return m_texts.Fill(Text::RoundLine, {base, rounds});
    }
    if (!m_settings.requizMax) {
        return m_texts.Fill(Text::RequizLine, {base, rounds, requiz});
    }
    return m_texts.Fill(
        Text::RequizLineWithMaximum, {base, rounds, requiz, QString::number(m_settings.requizNumber)});
}

QuizProgress CQuizForm::wordProgress() const
{
    const int word = m_roundPosition + 1;
    const int size = m_session.roundSize();
    return {m_texts.Fill(Text::WordLine, {QString::number(word), QString::number(size)}), word, size};
}

QuizProgress CQuizForm::rightProgress() const
{
    const int right = m_session.totalRight();
    const int total = right + m_session.totalWrong();
    return {m_texts.Fill(Text::RightLine, {QString::number(right), QString::number(total)}), right, total};
}

bool CQuizForm::advance(AnswerVerdict verdict)
{
    constexpr int AskAgainAtOnce = 2;
    if (verdict != AnswerVerdict::Wrong || m_settings.requiz != AskAgainAtOnce) {
        ++m_roundPosition;
    }
    if (m_roundPosition < m_session.roundSize()) {
        return true;
    }
    m_roundPosition = 0;
    return m_session.startRound();
}
