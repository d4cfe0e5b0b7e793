// SPDX-License-Identifier: MIT
#pragma once

#include "games/contest_standing.h"
#include "quiz/word_by_word_form.h"

#include <chrono>

/// The word contest: players answer in turns, each one word in a limited time. Between two turns the question
/// is hidden. Is told how much time passed.
class CWordContestForm : public CWordByWordForm
{
public:
    /// `players` are one name or more, in the order of their turns.
    CWordContestForm(const QuizStart &start, const QStringList &players);

    const std::vector<ContestPlayer> &players() const { return m_players; }
    int playerOnTurn() const { return m_onTurn; }
    QString turnText() const;
    bool hasAnswers() const;

    /// Whether the next player has yet to say that the turn may begin.
    bool isHandOver() const { return m_state == State::HandOver; }
    /// Shows the question; the clock starts.
    void begin();
    /// Whether the clock runs.
    bool isThinking() const { return m_state == State::Thinking; }
    /// During a hand-over, how to begin.
    QString question() const override;
    /// While the question is hidden, that of the last answer.
    int currentEntry() const override;

    std::chrono::milliseconds timeAllowed() const { return m_timeAllowed; }
    std::chrono::milliseconds timeLeft() const { return m_timeLeft; }
    QString timeLeftText() const;
    /// Counts only while the clock runs. Returns true when the time is up; timeOut() comes next.
    bool timePassed(std::chrono::milliseconds time);

    /// Tidies, judges and records what was typed. The clock stands until the next turn begins.
    Outcome answer(const QString &typed);
    /// Records that no answer came.
    Outcome timeOut();
    /// Hands over to the next player; a missed word may go with it, to each player once.
    Next advance(AnswerVerdict verdict) override;

private:
    enum class State { HandOver, Thinking, Answered };

    Outcome record(const QString &answer);

    std::vector<ContestPlayer> m_players;
    std::chrono::milliseconds m_timeAllowed;
    std::chrono::milliseconds m_timeLeft;
    State m_state = State::HandOver;
    int m_onTurn = 0;
    int m_misses = 0; // Of the word on screen, by one player after the other.
};
