// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

/// A word list of Swedish–English-like terms: 10 % of the terms with alternatives, 15 % with comments, 20 % of
/// the entries with notes, 10 % flagged in each language. The same seed gives the same list.
CWordList GenerateList(int count, quint32 seed);
