// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QPalette;

struct CellState
{
    bool selected = false;
    /// The list has the keyboard.
    bool focused = false;
    /// The cell stands in the column of the cell cursor.
    bool cursor = false;
    /// The row stands out while a question about it is open.
    bool hot = false;
    bool number = false;
};

struct CellColours
{
    QColor background;
    QColor text;
};

/// The colours of a cell of the word list. The cell of the cursor differs from the others of a selected row, a
/// selected row from others also without the keyboard, and all text can be read on light and dark palettes.
CellColours CellColoursFor(const QPalette &palette, const CellState &state);
