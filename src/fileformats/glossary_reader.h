// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/glossary_version.h"
#include "fileformats/word_list_file.h"

class CTextFileReader;

/// Reads what follows the first line of a glossary file and marks the list saved. Missing header lines leave
/// their fields empty; a record cut off by the end of the file is dropped, one without terms is skipped.
void ReadGlossaryBody(
    CWordList &list, CTextFileReader &reader, const GlossaryVersion &version, const KeepGoing *keepGoing);

/// Reads the properties alone and returns how many entries ReadGlossaryBody() would read.
int CountGlossaryBody(
    CWordList &list, CTextFileReader &reader, const GlossaryVersion &version, const KeepGoing *keepGoing);
