// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/dictionary_words.h"
#include "fileformats/formats.h"

/// Dictionaries of the DICT servers, by the path of either of their two files. What is chosen of them becomes a
/// list: headwords, and their translations as alternatives.
namespace DictionaryFormat {

bool Recognises(const FormatSample &sample, FormatSource &source);
ReadResult Read(CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses);

/// Adds words that were looked up to a list. `match` is how that was done.
void Append(const DictionaryWords &words, HeadwordMatch match, const TermOptions &options, CWordList &list,
    CLossCounter &losses);

}
