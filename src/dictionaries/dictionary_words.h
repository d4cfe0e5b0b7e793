// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/dictionary.h"

#include <functional>

/// What a dictionary has of what was wanted.
struct DictionaryWords
{
    /// Each has translations. Of whole headwords the text in normal form stands in the place of the headword.
    std::vector<DictionaryEntry> entries = {};
    QStringList notFound = {}; ///< Texts, in normal form, for which there is nothing.
    int withoutTranslations = 0; ///< Headwords, or texts, that are left out since they have none.
    bool hasMore = false; ///< There was more than was to be looked up.
};

/// Looks words up, in the order of the texts and of the dictionary; nothing stands there twice. `goesOn`, if it
/// is given, is asked now and then with the number of entries so far, and stops the search by false.
DictionaryWords LookUpWords(CDictionary &dictionary, const DictionaryFilter &filter,
    const std::function<bool(int entries)> &goesOn = {});
