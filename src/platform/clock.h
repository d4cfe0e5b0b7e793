// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

/// The time since any fixed moment; it never goes back. Handed to whatever measures time, and set by hand in
/// tests.
using Clock = std::function<std::chrono::milliseconds()>;

inline std::chrono::milliseconds SteadyClock()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}
