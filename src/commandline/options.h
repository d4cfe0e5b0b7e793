// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/arguments.h"
#include "commandline/text_numbers.h"

// Options that several verbs have.

inline constexpr Option FromOption = {.name = "from", .kind = Option::Kind::Text, .help = Text::OptionFrom};
inline constexpr Option ToOption = {.name = "to", .kind = Option::Kind::Text, .help = Text::OptionTo};
inline constexpr Option ForceOption = {.name = "force", .kind = Option::Kind::Flag, .help = Text::OptionForce};
inline constexpr Option UnicodeOption = {
    .name = "unicode", .kind = Option::Kind::Flag, .help = Text::OptionUnicode};
inline constexpr Option JsonOption = {.name = "json", .kind = Option::Kind::Flag, .help = Text::OptionJson};
inline constexpr Option SeedOption = {
    .name = "seed", .kind = Option::Kind::Number, .help = Text::OptionSeed, .lowest = 0, .highest = 2147483647};
