// SPDX-License-Identifier: MIT
#include "quiz/word_by_word_form.h"

#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <utility>

QString CWordByWordForm::question() const
{
    return session()->questionText(m_roundPosition, texts().Get(Text::StandardQuestion));
}

std::optional<QuizProgress> CWordByWordForm::wordProgress() const
{
    const int word = m_roundPosition + 1;
    const int size = session()->roundSize();
    return QuizProgress{
        texts().Fill(Text::WordLine, {QString::number(word), QString::number(size)}), word, size};
}

CWordByWordForm::Outcome CWordByWordForm::recordAnswer(const QString &answer)
{
    m_skipped = false;
    const AnswerVerdict verdict = session()->recordAnswer(m_roundPosition, answer);
    return {verdict, feedbackText(texts(), settings(), verdict, currentQuestion(), answer)};
}

CWordByWordForm::Next CWordByWordForm::advance(AnswerVerdict verdict)
{
    m_leftByAccepting = false;
    m_askedAgain = verdict == AnswerVerdict::Wrong && settings().requiz == Requiz::AtOnce;
    if (m_askedAgain) {
        return Next::SameWord;
    }
    ++m_roundPosition;
    if (m_roundPosition < session()->roundSize()) {
        return Next::OtherWord;
    }
    m_roundPosition = 0;
    return session()->startRound() ? Next::OtherWord : Next::Over;
}

CWordByWordForm::Next CWordByWordForm::skip()
{
    m_skipped = true;
    return advance(AnswerVerdict::Right);
}

std::optional<LastAnswer> CWordByWordForm::shownAnswer() const
{
    return ::lastAnswer(*session(), texts());
}

QString CWordByWordForm::lastAnswer() const
{
    return session()->record(*session()->lastAnswered()).answers.last();
}

AcceptOffer CWordByWordForm::acceptOffer() const
{
    if (session()->acceptedAnswer()) {
        return takeBackOffer(*session());
    }
    const std::optional<int> last = session()->lastAnswered();
    return last && !m_skipped ? ::acceptOffer(*session(), *last, lastAnswer()) : AcceptOffer();
}

CWordByWordForm::Next CWordByWordForm::takeAcceptOffer()
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

CWordByWordForm::Next CWordByWordForm::acceptLastAnswer()
{
    session()->acceptAnswer(*session()->lastAnswered(), lastAnswer());
    if (!m_askedAgain) {
        return Next::SameWord;
    }
    const Next next = advance(AnswerVerdict::Right);
    m_leftByAccepting = m_roundPosition > 0;
    return next;
}

CWordByWordForm::Next CWordByWordForm::takeBackLastAnswer()
{
    session()->takeBackAcceptedAnswer();
    if (!std::exchange(m_leftByAccepting, false)) {
        return Next::SameWord;
    }
    --m_roundPosition;
    m_askedAgain = true;
    return Next::OtherWord;
}
