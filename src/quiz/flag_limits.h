// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

struct ResultSettings;

/// What a quiz does to the flag of a word.
enum class FlagDecision { StaysOff = 0, StaysOn = 1, IsTakenOff = 2, IsSet = 3 };

/// The limits by which a quiz changes flags, in percent of right answers; Off switches one off.
struct FlagLimits
{
    static constexpr int Off = -1;

    int flag = Off;
    int unflag = Off;
    /// What a word without an answer becomes: 0 not flagged, 1 flagged.
    int unasked = Off;

    static FlagLimits of(const ResultSettings &settings);
};

/// The entries whose flag changes, ascending.
struct FlagChanges
{
    std::vector<int> flag = {};
    std::vector<int> unflag = {};
};
