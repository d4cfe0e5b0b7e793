// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

class CTexts;

struct ContestPlayer
{
    QString name;
    int points = 0;
    /// Those recorded, the ones that never came included.
    int answers = 0;

    /// Of the answers, rounded; 0 without any.
    int percent() const;
};

struct ContestPlace
{
    int place = 1;
    ContestPlayer player;
};

/// The players by points, then by their share of right answers. Where both are the same they share a place, and
/// keep their order.
std::vector<ContestPlace> contestStanding(const std::vector<ContestPlayer> &players);

/// Names the winner, or all who share the first place.
QString contestOutcome(const std::vector<ContestPlace> &standing, const CTexts &texts);
