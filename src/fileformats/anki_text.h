// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/formats.h"

/// Anki's notes as text: lines that begin with "#" say the separator, which columns are no fields and whether
/// the fields are HTML; then a row for each note. The first two fields are the terms, the third is the note.
namespace AnkiTextFormat {

bool Recognises(const FormatSample &sample, FormatSource &source);
ReadResult Read(CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses);
void Count(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses);
bool Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options);

}
