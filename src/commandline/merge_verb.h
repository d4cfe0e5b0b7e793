// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "merge": the entries of several lists in one, as the import puts them together.
VerbResult RunMerge(const CArguments &arguments, const VerbServices &services);
std::span<const Option> MergeOptions();
