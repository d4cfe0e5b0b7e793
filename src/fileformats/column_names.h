// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/format_options.h"

#include <QStringView>

#include <optional>

/// What a column holds by its name in a heading, in Swedish, English or German: names of languages and words
/// like "term" or "front" are terms, the first of them Term1. Nothing for a word that says nothing.
std::optional<TextColumn> ColumnOfName(QStringView name);

/// Whether it is the name of a language, and no mere code.
bool IsLanguageName(QStringView name);

/// The names that a heading gets for these columns.
QString NameOfColumn(TextColumn column);
