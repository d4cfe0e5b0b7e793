// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_entry.h"

#include <QString>

#include <functional>

class CWordList;

/// Something in a list that its author would want to know of.
struct ListFinding
{
    enum class Kind {
        MissingTerm, ///< The entry has a term in the other language alone.
        SharedAlternative, ///< `other` has the alternative `text` too.
        OpenBracket, ///< A bracket in `text` is not closed.
        StrayBracket, ///< A square bracket in `text` closes none.
        Decomposed, ///< A letter in `text` is made of several characters that could be one.
        OddBlank, ///< A blank in `text` that is hardly seen: at an end, doubled, of another kind, before a
                  ///< comma.
    };
    /// The first of the properties, which are numbered behind the fields of an entry: both languages, author
    /// and comments.
    static constexpr int FirstProperty = CWordEntry::FieldCount;
    static constexpr int PropertyCount = 4;

    Kind kind = Kind::MissingTerm;
    int entry = NoEntry; ///< None of a property.
    int field = 0;
    QString text = {};
    int other = NoEntry;
};

/// Calls `tell` with all that is found: what the properties have, then the entries in their order. Takes time
/// in proportion to the list, however much is found.
void CheckList(const CWordList &list, const std::function<void(const ListFinding &)> &tell);
