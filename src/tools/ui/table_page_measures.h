// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ui/table_pages.h"

/// The measures of tables on paper, in the units of CTablePages.
namespace TablePage {

inline constexpr qreal Millimetre = CTablePages::UnitsPerInch / 25.4;
inline constexpr qreal Margin = 15 * Millimetre;
/// Between the edge of a cell and its text.
inline constexpr qreal PadX = 1.5 * Millimetre;
inline constexpr qreal PadY = 0.7 * Millimetre;
/// A pixel of a border on paper, as browsers print it.
inline constexpr qreal BorderPixel = CTablePages::UnitsPerInch / 96.0;

}
