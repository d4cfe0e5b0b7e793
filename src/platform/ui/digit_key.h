// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class QKeyEvent;

/// The digit of a key, whatever character it gives together with Shift or in the keyboard's layout.
std::optional<int> DigitOfKey(const QKeyEvent &event);
