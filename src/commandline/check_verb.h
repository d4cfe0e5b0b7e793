// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "check": what the authors of lists would want to know.
VerbResult RunCheck(const CArguments &arguments, const VerbServices &services);
std::span<const Option> CheckOptions();
