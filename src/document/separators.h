// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// What separates the columns of a text, in the order of Text::Separators.
inline constexpr QStringView UsualSeparators = u",;\t|";
