// SPDX-License-Identifier: MIT
#pragma once

#include "resources/text_numbers.h"

namespace Text {

inline constexpr int ReallyReset = 63203;

}
