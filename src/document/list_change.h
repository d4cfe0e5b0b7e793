// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

/// What became of the document's list, told after it happened.
struct ListChange
{
    /// Another document took the place of the one before; nothing else counts then.
    bool replaced = false;
    /// What distinguishes the list from the one before.
    ListDifference difference = {};

    bool PropertiesChanged() const { return replaced || difference.properties; }
};
