// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "convert": from one format to another.
VerbResult RunConvert(const CArguments &arguments, const VerbServices &services);
std::span<const Option> ConvertOptions();
