// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

/// The numbers that a field takes, both ends included.
struct NumberRange
{
    int lowest;
    int highest;

    int Clamped(int number) const { return std::clamp(number, lowest, highest); }
};
