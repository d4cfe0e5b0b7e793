// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

/// What must hold for every input.
inline void Require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}
