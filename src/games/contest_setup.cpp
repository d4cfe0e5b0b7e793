// SPDX-License-Identifier: MIT
#include "games/contest_setup.h"

#include "platform/collation.h"
#include "platform/plain_text.h"
#include "settings/quiz_settings.h"

#include <algorithm>

namespace {

/// A name as it is kept: line breaks, which a field takes from the clipboard, would make several of it.
QString tidied(const QString &typed)
{
    return OneLine(typed).trimmed();
}

}

CContestSetup::CContestSetup(const QuizChallengeSettings &settings) : m_time(Times.Clamped(settings.time))
{
    for (const QString &name : settings.players.split(u'\n')) {
        add(name);
    }
}

CContestSetup::Name CContestSetup::check(const QString &typed) const
{
    const QString name = tidied(typed);
    const auto isSame = [&](const QString &player) {
        return CSwedishCollator::ForThisThread().Equal(player, name);
    };
    if (name.isEmpty()) {
        return Name::Empty;
    }
    if (m_players.size() >= MostPlayers) {
        return Name::OneTooMany;
    }
    if (name.toUcs4().size() > LongestName) {
        return Name::TooLong;
    }
    return std::ranges::any_of(m_players, isSame) ? Name::Taken : Name::Free;
}

bool CContestSetup::add(const QString &typed)
{
    if (check(typed) != Name::Free) {
        return false;
    }
    m_players.append(tidied(typed));
    return true;
}

void CContestSetup::remove(int player)
{
    if (player >= 0 && player < m_players.size()) {
        m_players.removeAt(player);
    }
}

bool CContestSetup::move(int player, int step)
{
    const int other = player + step;
    if (player < 0 || player >= m_players.size() || other < 0 || other >= m_players.size()) {
        return false;
    }
    m_players.swapItemsAt(player, other);
    return true;
}

void CContestSetup::store(QuizChallengeSettings &settings) const
{
    settings.players = m_players.join(u'\n');
    settings.time = m_time;
}
