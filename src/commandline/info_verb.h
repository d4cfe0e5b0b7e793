// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "info": what files say of themselves, and what is in them.
VerbResult RunInfo(const CArguments &arguments, const VerbServices &services);
std::span<const Option> InfoOptions();
