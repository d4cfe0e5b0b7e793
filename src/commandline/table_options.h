// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"
#include "settings/tool_settings.h"

/// The options of the table guide as those of a command line; without any they have their factory values.
/// Nothing, which was told, for columns that are none.
std::optional<CreateTableSettings> TableSettingsOf(const CArguments &arguments, const VerbServices &services);
