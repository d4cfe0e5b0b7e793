// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "table": a list as a page, a text or a PDF file.
VerbResult RunTable(const CArguments &arguments, const VerbServices &services);
std::span<const Option> TableOptions();
