// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/format_options.h"

#include <QStringList>

#include <vector>

/// Whether the first row names the columns, and what the columns are, by their names then and else by what is
/// in them.
bool GuessHeading(const std::vector<QStringList> &rows);
std::vector<TextColumn> GuessColumns(const std::vector<QStringList> &rows, bool hasHeading);
