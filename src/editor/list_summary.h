// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

class CTexts;
class CWordList;

/// The sentence of the status line: how many entries there are and how many of them are flagged in each
/// language, preceded by what is selected.
QString listSummary(const CWordList &list, const CTexts &texts, std::span<const int> selected);
