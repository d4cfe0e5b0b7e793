// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"
#include "fileformats/format_options.h"

class QIODevice;

// The options that say how a separated text is laid out.

inline constexpr const char *SeparatorChoices = "comma|semicolon|tab|pipe";
inline constexpr const char *QuoteChoices = "double|single|none";
/// In the order of TextEncoding.
inline constexpr const char *EncodingChoices = "windows-1252|utf-16be|utf-16le|utf-8";

/// What a command line says of a separated text; the rest is found out.
struct GivenLayout
{
    std::optional<char16_t> separator = {};
    std::optional<char16_t> quote = {};
    std::optional<TextEncoding> encoding = {};
    std::optional<bool> writesMark = {};
    std::optional<bool> hasHeading = {};
    std::vector<TextColumn> columns = {};

    bool IsEmpty() const { return *this == GivenLayout(); }
    bool operator==(const GivenLayout &) const = default;
};

/// What the options say whose names begin with `prefix`. Nothing, which was told, for columns that are none.
std::optional<GivenLayout> GivenLayoutOf(
    const char *prefix, const CArguments &arguments, const VerbServices &services);

/// The layout of a text to read: what is given, and the rest by the content of the device, which is back at its
/// start afterwards.
SeparatedTextOptions LayoutToRead(const GivenLayout &given, QIODevice &device, const QString &suffix);
/// The layout of a text to write; nothing when nothing is given.
std::optional<SeparatedTextOptions> LayoutToWrite(const GivenLayout &given, const QString &suffix);
