// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

/// As shares are shown and compared: 0.5 goes up.
inline int roundHalfUp(double value)
{
    return int(std::floor(value + 0.5));
}
