// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/format_options.h"

#include <QStringList>

#include <span>
#include <vector>

/// Whether the first row names the columns, and what the columns are, by their names then and else by what is
/// in them.
/// Titles may stand in front of the heading, a row each.
bool GuessHeading(const std::vector<QStringList> &rows);
/// How many titles stand in front of the heading. What is meant by titles: rows with text in one cell, behind
/// which a row names the columns.
int GuessTitleRows(const std::vector<QStringList> &rows);
std::span<const QStringList> BelowTitles(const std::vector<QStringList> &rows);
std::vector<TextColumn> GuessColumns(const std::vector<QStringList> &rows, bool hasHeading);
