// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>

/// What one operation took.
struct Measurement
{
    double seconds = 0;
    qint64 peakBytes = 0; ///< The most memory in use during it, beyond what was in use before.
};

/// Runs an operation several times, the clock around `operation` alone, and gives the median of the times and
/// the highest peak. `prepare` runs before each.
Measurement Measure(int repeats, const std::function<void()> &prepare, const std::function<void()> &operation);

/// The memory in use now, in bytes; 0 where the system does not tell.
qint64 MemoryInUse();
