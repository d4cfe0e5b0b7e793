// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Lets one of the program's own file calls fail. A test that is linked with --wrap for these calls has them
/// counted from FailCall() on.
enum class CallFault {
    None,
    Kill, ///< The process ends before the call; of a write after half of its bytes.
    Once, ///< The call fails, once.
    FullDisk, ///< From this call on nothing can be written or created.
};

inline constexpr int KilledByFault = 99; ///< The exit code of Kill.

/// `number` is 1 for the next call.
void FailCall(CallFault fault, int number);
/// How many calls there were since.
int CallCount();
