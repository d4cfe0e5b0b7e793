// SPDX-License-Identifier: MIT
#include "quiz/quiz_form.h"

#include "quiz/answer_sound.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"

#include <utility>

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

AnswerVerdict CQuizForm::recordAnswer(const QString &answer)
{
    m_skipped = false;
    return m_session.recordAnswer(m_roundPosition, answer);
}

bool CQuizForm::advance(AnswerVerdict verdict)
{
    constexpr int AskAgainAtOnce = 2;
    m_leftByAccepting = false;
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

bool CQuizForm::skip()
{
    m_skipped = true;
    return advance(AnswerVerdict::Right);
}

QString CQuizForm::lastAnswer() const
{
    return m_session.record(m_session.lastAnswered()).answers.last();
}

AcceptOffer CQuizForm::acceptOffer() const
{
    if (m_session.acceptedAnswer()) {
        return takeBackOffer(m_session);
    }
    const int last = m_session.lastAnswered();
    return last >= 0 && !m_skipped ? ::acceptOffer(m_session, last, lastAnswer()) : AcceptOffer();
}

CQuizForm::Next CQuizForm::takeAcceptOffer()
{
    switch (acceptOffer().kind) {
    case AcceptOffer::Kind::Nothing:
        break;
    case AcceptOffer::Kind::Accept:
        return acceptLastAnswer();
    case AcceptOffer::Kind::TakeBack:
        return takeBackLastAnswer();
    }
    return Next::SameWord;
}

CQuizForm::Next CQuizForm::acceptLastAnswer()
{
    m_session.acceptAnswer(m_session.lastAnswered(), lastAnswer());
    if (!m_askedAgain) {
        return Next::SameWord;
    }
    const bool more = advance(AnswerVerdict::Right);
    m_leftByAccepting = m_roundPosition > 0;
    return more ? Next::OtherWord : Next::Over;
}

CQuizForm::Next CQuizForm::takeBackLastAnswer()
{
    m_session.takeBackAcceptedAnswer();
    if (!std::exchange(m_leftByAccepting, false)) {
        return Next::SameWord;
    }
    --m_roundPosition;
    m_askedAgain = true;
    return Next::OtherWord;
}
