// SPDX-License-Identifier: MIT
#include "quiz/quiz_form.h"

#include "quiz/answer_sound.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"

CQuizForm::CQuizForm(CQuizSession &session, const QuizSettings &settings, const CTexts &texts)
    : m_session(session), m_settings(settings), m_texts(texts)
{
}

bool CQuizForm::mayChangeEntries() const
{
    return m_settings.allowChanges;
}

QString CQuizForm::sound(AnswerVerdict verdict, const QStringList &dataFolders) const
{
    return answerSound(verdict, m_settings, dataFolders);
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
    m_askedAgain = verdict == AnswerVerdict::Wrong && m_settings.requiz == AskAgainAtOnce;
    if (!m_askedAgain) {
        ++m_roundPosition;
    }
    if (m_roundPosition < m_session.roundSize()) {
        return true;
    }
    m_roundPosition = 0;
    return m_session.startRound();
}

QString CQuizForm::lastAnswer() const
{
    const int position = m_session.lastAnswered();
    return position < 0 ? QString() : m_session.record(position).answers.last();
}

bool CQuizForm::mayAcceptLastAnswer() const
{
    return m_session.lastAnswered() >= 0 && m_session.mayAccept(m_session.lastAnswered(), lastAnswer());
}

bool CQuizForm::acceptLastAnswer()
{
    const bool accepted =
        m_session.lastAnswered() >= 0 && m_session.acceptAnswer(m_session.lastAnswered(), lastAnswer());
    return accepted && m_askedAgain ? advance(AnswerVerdict::Right) : true;
}
