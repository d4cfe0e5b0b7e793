// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

struct ResultSettings;

/// The limits by which a quiz changes flags, in percent of right answers; -1 switches one off.
struct FlagLimits
{
    int flag = -1;
    int unflag = -1;
    /// What a word without an answer becomes: 0 not flagged, 1 flagged.
    int unasked = -1;

    static FlagLimits Of(const ResultSettings &settings);
};

/// The entries whose flag changes, ascending.
struct FlagChanges
{
    std::vector<int> flag = {};
    std::vector<int> unflag = {};
};
