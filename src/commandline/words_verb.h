// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "words": terms looked up in the dictionaries of this machine.
VerbResult RunWords(const CArguments &arguments, const VerbServices &services);
std::span<const Option> WordsOptions();
