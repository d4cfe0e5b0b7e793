// SPDX-License-Identifier: MIT
#pragma once

#include "platform/number_range.h"

#include <QStringList>

struct QuizChallengeSettings;

/// Who takes part in a word contest, and how long each of them may think.
class CContestSetup
{
public:
    static constexpr int FewestPlayers = 2;
    static constexpr int MostPlayers = 12;
    /// In characters.
    static constexpr int LongestName = 40;
    /// In seconds.
    static constexpr NumberRange Times = {3, 999};

    /// Takes over the players stored that may take part, and the time.
    explicit CContestSetup(const QuizChallengeSettings &settings);

    /// In the order of their turns.
    const QStringList &players() const { return m_players; }

    enum class Name { Free, Empty, TooLong, Taken, OneTooMany };
    /// What would become of a typed name.
    Name check(const QString &typed) const;
    /// Adds it on one line, without the blanks around it; false when it isn't free.
    bool add(const QString &typed);
    void remove(int player);
    /// Lets a player change places with the one before or after; false where there is none.
    bool move(int player, int step);

    int time() const { return m_time; }
    void setTime(int seconds) { m_time = Times.Clamped(seconds); }

    bool mayStart() const { return m_players.size() >= FewestPlayers; }
    void store(QuizChallengeSettings &settings) const;

private:
    QStringList m_players;
    int m_time;
};
