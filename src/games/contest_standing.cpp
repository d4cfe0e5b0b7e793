// SPDX-License-Identifier: MIT
#include "games/contest_standing.h"

#include "games/text_numbers.h"
#include "quiz/rounding.h"
#include "resources/texts.h"

#include <QStringList>

#include <algorithm>

namespace {

/// Above 0 when the share of right answers is greater for `a`, below 0 when it is for `b`.
qint64 compareShares(const ContestPlayer &a, const ContestPlayer &b)
{
    // Who never answered has none of them right.
    return qint64(a.points) * std::max(b.answers, 1) - qint64(b.points) * std::max(a.answers, 1);
}

bool isBetter(const ContestPlayer &a, const ContestPlayer &b)
{
    return a.points != b.points ? a.points > b.points : compareShares(a, b) > 0;
}

}

int ContestPlayer::percent() const
{
    return answers == 0 ? 0 : roundHalfUp(points * 100.0 / answers);
}

std::vector<ContestPlace> contestStanding(const std::vector<ContestPlayer> &players)
{
    std::vector<ContestPlayer> ordered = players;
    std::ranges::stable_sort(ordered, isBetter);
    std::vector<ContestPlace> standing;
    for (const ContestPlayer &player : ordered) {
        const bool isTie = !standing.empty() && !isBetter(standing.back().player, player);
        standing.push_back({isTie ? standing.back().place : int(standing.size()) + 1, player});
    }
    return standing;
}

QString contestOutcome(const std::vector<ContestPlace> &standing, const CTexts &texts)
{
    QStringList first;
    for (const ContestPlace &row : standing) {
        if (row.place == 1) {
            first.append(row.player.name);
        }
    }
    if (first.isEmpty()) {
        return {};
    }
    QString names = first.takeLast();
    if (first.isEmpty()) {
        return texts.Fill(Text::Winner, {names});
    }
    QString others = first.takeFirst();
    for (const QString &name : std::as_const(first)) {
        others = texts.Fill(Text::NameAfterName, {others, name});
    }
    return texts.Fill(Text::DrawBetween, {texts.Fill(Text::LastNameAfterNames, {others, names})});
}
