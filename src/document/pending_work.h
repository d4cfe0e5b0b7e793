// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

/// What is typed in an editor and stands in no entry yet. Whoever saves the list, gives it up or keeps a copy
/// of it asks here first, so that no word is lost.
class IPendingWork
{
public:
    IPendingWork() = default;
    virtual ~IPendingWork() = default;
    IPendingWork(const IPendingWork &) = delete;
    IPendingWork &operator=(const IPendingWork &) = delete;

    /// Makes an entry of what is whole, and changes the entries whose texts were changed. What the editor asks
    /// at an entry is asked.
    virtual void StoreWhole() = 0;
    /// Whether less than an entry is left.
    virtual bool HasRest() const = 0;
    /// Makes entries of what is left as it stands, without a question.
    virtual void StoreRest() = 0;
    /// The document's list with all of it as entries; that list itself when there is nothing.
    virtual CWordList ListWithAll() const = 0;
};
