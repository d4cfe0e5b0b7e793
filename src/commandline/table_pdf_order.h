// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class CTableCells;

/// A table that is to be written as a PDF file. The cells are not owned.
struct TablePdfOrder
{
    const CTableCells &cells;
    QString file = {};
    QString title = {};
    /// Of the choices in PaperChoices; missing for the paper that the user's country writes on.
    std::optional<int> paper = {};
    bool isLandscape = false;
};

inline constexpr const char *PaperChoices = "a3|a4|a5|letter|legal";
