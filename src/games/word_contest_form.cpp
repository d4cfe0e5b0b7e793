// SPDX-License-Identifier: MIT
#include "games/word_contest_form.h"

#include "games/text_numbers.h"
#include "model/term_syntax.h"
#include "resources/texts.h"

#include <algorithm>

using std::chrono::milliseconds;

CWordContestForm::CWordContestForm(const QuizStart &start, const QStringList &players)
    : CWordByWordForm(start), m_timeAllowed(std::chrono::seconds(start.kindSettings.quizChallenge.time)),
      m_timeLeft(m_timeAllowed)
{
    for (const QString &name : players) {
        m_players.push_back({.name = name});
    }
}

QString CWordContestForm::turnText() const
{
    return texts().Fill(Text::YourTurn, {m_players[size_t(m_onTurn)].name});
}

bool CWordContestForm::hasAnswers() const
{
    return std::ranges::any_of(m_players, [](const ContestPlayer &player) { return player.answers > 0; });
}

void CWordContestForm::begin()
{
    if (isHandOver()) {
        m_state = State::Thinking;
    }
}

QString CWordContestForm::question() const
{
    return isHandOver() ? texts().Get(Text::BeginTurnHint) : CWordByWordForm::question();
}

int CWordContestForm::currentEntry() const
{
    return isHandOver() ? session()->candidates()[size_t(session()->lastAnswered().value_or(0))]
                        : CWordByWordForm::currentEntry();
}

QString CWordContestForm::timeLeftText() const
{
    const auto seconds = std::chrono::ceil<std::chrono::seconds>(m_timeLeft).count();
    return seconds == 1 ? texts().Get(Text::OneSecondLeft)
                        : texts().Fill(Text::SecondsLeft, {QString::number(seconds)});
}

bool CWordContestForm::timePassed(milliseconds time)
{
    if (!isThinking()) {
        return false;
    }
    m_timeLeft = std::max(m_timeLeft - time, milliseconds(0));
    return m_timeLeft == milliseconds(0);
}

CWordContestForm::Outcome CWordContestForm::record(const QString &answer)
{
    m_state = State::Answered;
    const Outcome outcome = recordAnswer(answer);
    ContestPlayer &player = m_players[size_t(m_onTurn)];
    ++player.answers;
    if (outcome.verdict != AnswerVerdict::Wrong) {
        ++player.points;
    }
    return outcome;
}

CWordContestForm::Outcome CWordContestForm::answer(const QString &typed)
{
    return record(NormalizeTerm(typed));
}

CWordContestForm::Outcome CWordContestForm::timeOut()
{
    Outcome outcome = record({});
    const QString timeIsUp = texts().Get(Text::TimeIsUp);
    outcome.feedback = outcome.feedback
        ? FeedbackText{outcome.feedback->number, timeIsUp + QStringLiteral("\r\n\r\n") + outcome.feedback->text}
        : FeedbackText{Text::TimeIsUp, timeIsUp};
    return outcome;
}

CWordContestForm::Next CWordContestForm::advance(AnswerVerdict verdict)
{
    const bool goesOn = verdict == AnswerVerdict::Wrong && settings().requiz == Requiz::AtOnce
        && m_misses + 1 < int(m_players.size());
    m_misses = goesOn ? m_misses + 1 : 0;
    m_onTurn = (m_onTurn + 1) % int(m_players.size());
    m_state = State::HandOver;
    m_timeLeft = m_timeAllowed;
    return CWordByWordForm::advance(goesOn ? AnswerVerdict::Wrong : AnswerVerdict::Right);
}
