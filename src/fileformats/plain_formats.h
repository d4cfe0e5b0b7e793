// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/formats.h"

/// The rows of the formats that ReadWordList() reads too: glossary files of every version, WordQuiz and plain
/// text. The last two are read as UTF-8 here where they are valid UTF-8 without a mark.

namespace GlossaryFormat {

bool Recognises(const FormatSample &sample, FormatSource &source);
ReadResult Read(CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses);
void Count(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses);
bool Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options);

}

namespace WordQuizFormat {

bool Recognises(const FormatSample &sample, FormatSource &source);
ReadResult Read(CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses);

}

namespace PlainTextFormat {

/// Plain text that ReadWordList() would not read right.
bool Recognises(const FormatSample &sample, FormatSource &source);
ReadResult Read(CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses);
void Count(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses);
bool Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options);

}

/// Counts what no format but the glossary file holds: question templates, and a property each of author and
/// comments when the format has no place for it.
void CountProperties(const CWordList &list, bool holdsAuthor, bool holdsComments, CLossCounter &losses);
