// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What of a headword a text is.
enum class HeadwordMatch {
    Whole = 0,
    Beginning = 1,
    Part = 2 ///< "*" is any run of characters then, "?" any one.
};

/// Which words of a dictionary are wanted. Without a text none is, unless all are asked for: dictionaries have
/// hundreds of thousands.
struct DictionaryFilter
{
    /// Whole headwords are looked up as terms, with their alternatives; see CDictionary::Translate().
    QStringList texts = {};
    HeadwordMatch match = HeadwordMatch::Whole;
    bool all = false; ///< Every headword, whatever the texts are.
    int most = 10'000; ///< No more articles, or texts, than this.

    bool IsEmpty() const { return texts.isEmpty() && !all; }
};
