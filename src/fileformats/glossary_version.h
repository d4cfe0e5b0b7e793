// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <array>

/// What the lines of a record are in one version of the glossary file, and what its header holds.
struct GlossaryVersion
{
    /// The whole first line of the file.
    QStringView header;
    bool hasQuestions = false; ///< The header has adapt marks and question templates.
    bool hasFlagLine = false;
    bool hasNote = false;
    /// A term that begins with "!" is flagged in language 1.
    bool hasFlagMark = false;
};

namespace Glossary {

inline constexpr QStringView ProgramName = u"Ordelin";

inline constexpr GlossaryVersion Version1 = {.header = u"Ordelin 1", .hasFlagMark = true};
inline constexpr GlossaryVersion Version12 = {.header = u"Ordelin 1.2", .hasFlagMark = true};
inline constexpr GlossaryVersion Version20 = {.header = u"Ordelin 2.0", .hasFlagLine = true};
inline constexpr GlossaryVersion Version23 = {
    .header = u"Ordelin 2.3", .hasQuestions = true, .hasFlagLine = true, .hasNote = true};
inline constexpr GlossaryVersion Version23Micro = {.header = u"Ordelin 2.3-micro", .hasQuestions = true};
inline constexpr GlossaryVersion Version23Mini = {
    .header = u"Ordelin 2.3-mini", .hasQuestions = true, .hasNote = true};

inline constexpr std::array Versions = {
    Version12, Version1, Version20, Version23, Version23Micro, Version23Mini};

}
