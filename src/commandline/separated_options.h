// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"
#include "fileformats/format_options.h"

// The options that say how a separated text is laid out.

inline constexpr const char *SeparatorChoices = "comma|semicolon|tab|pipe";
inline constexpr const char *QuoteChoices = "double|single|none";
/// In the order of TextEncoding.
inline constexpr const char *EncodingChoices = "windows-1252|utf-16be|utf-16le|utf-8";

/// Takes over what the command line says; what it doesn't say is left to reader and writer. Returns false,
/// which was told, for columns that are none.
[[nodiscard]] bool ReadSeparatedOptions(const CArguments &arguments, const VerbServices &services,
    FormatReadOptions &reading, FormatWriteOptions &writing);
