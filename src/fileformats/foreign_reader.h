// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/word_list_file.h"

class CTextFileReader;

/// The first line of a foreign vocabulary file.
inline constexpr QStringView ForeignHeader = u"WordQuiz";

/// Reads a foreign vocabulary, the reader standing behind the first line: languages and pairs of terms follow a
/// line
/// "[Vocabulary]". CannotOpen when there is no such line, else Read.
ReadResult ReadForeignVocabulary(CWordList &list, CTextFileReader &reader, const KeepGoing *keepGoing);

/// Reads the whole file as pairs of lines, term 1 and term 2, from its start, and marks the list changed, so
/// that closing asks to save it in a format of its own.
void ReadPlainText(CWordList &list, CTextFileReader &reader, const KeepGoing *keepGoing);
/// Returns how many entries ReadPlainText() would read.
int CountPlainText(CTextFileReader &reader, const KeepGoing *keepGoing);
