// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "sort": a list in the order of the alphabet.
VerbResult RunSort(const CArguments &arguments, const VerbServices &services);
std::span<const Option> SortVerbOptions();

/// "shuffle": a list in an order by chance.
VerbResult RunShuffle(const CArguments &arguments, const VerbServices &services);
std::span<const Option> ShuffleOptions();

/// "select": some entries of a list.
VerbResult RunSelect(const CArguments &arguments, const VerbServices &services);
std::span<const Option> SelectOptions();
