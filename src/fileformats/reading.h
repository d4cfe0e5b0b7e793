// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/word_list_file.h"
#include "model/word_list.h"

#include <optional>

class CTextFileReader;
struct GlossaryVersion;

/// Whether a reader takes the next record. It stops one entry above the limit, by which the excess is known.
inline bool MayGoOn(const CWordList &list, const KeepGoing *keepGoing)
{
    return (keepGoing == nullptr || *keepGoing) && list.Count() <= FileLimits::MostEntries;
}

/// What became of a reading that did not reach the end of the file; `entries` is how many were read or counted.
std::optional<ReadResult> FailureOf(const CTextFileReader &reader, int entries);

/// How many records of this version follow that a reader would make entries of.
int CountRecords(CTextFileReader &reader, const GlossaryVersion &version, const KeepGoing *keepGoing);
