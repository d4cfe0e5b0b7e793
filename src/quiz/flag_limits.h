// SPDX-License-Identifier: MIT
#pragma once

#include "settings/quiz_settings.h"

#include <optional>
#include <vector>

/// What a quiz does to the flag of a word.
enum class FlagDecision { StaysOff = 0, StaysOn = 1, IsTakenOff = 2, IsSet = 3 };

/// The limits by which a quiz changes flags, in percent of right answers; Off switches one off.
struct FlagLimits
{
    static constexpr int Off = -1;

    int flag = Off;
    int unflag = Off;
    /// What becomes of a word without an answer; nothing leaves it.
    std::optional<FlagState> unasked = {};

    static FlagLimits of(const ResultSettings &settings);
};

/// The entries whose flag changes, ascending.
struct FlagChanges
{
    std::vector<int> flag = {};
    std::vector<int> unflag = {};
};
