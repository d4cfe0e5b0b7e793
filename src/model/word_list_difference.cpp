// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include <algorithm>

namespace {

using Entries = ListDifference::Entries;

/// Whether the entries of `part` from `first` on stand among those of `whole` from there on, in their order.
/// States share the entries that did not change, so an entry is known by its address.
bool IsPartOf(const CWordList &part, int partCount, const CWordList &whole, int wholeCount, int first)
{
    int found = 0;
    for (int i = 0; i < wholeCount && found < partCount; ++i) {
        found += int(&whole.Entry(first + i) == &part.Entry(first + found));
    }
    return found == partCount;
}

Entries KindOf(const CWordList &before, const CWordList &after, const ListDifference &difference)
{
    const int first = difference.first;
    const int removed = difference.removed;
    const int inserted = difference.inserted;
    if (removed < inserted && IsPartOf(before, removed, after, inserted, first)) {
        return Entries::Inserted;
    }
    const bool isRemoval = removed > inserted && IsPartOf(after, inserted, before, removed, first);
    return isRemoval ? Entries::Removed : Entries::Changed;
}

}

bool CWordList::HasPropertiesOf(const CWordList &other) const
{
    return m_language == other.m_language && m_author == other.m_author && m_comments == other.m_comments
        && m_adaptQuestion == other.m_adaptQuestion && m_questionTemplate == other.m_questionTemplate;
}

ListDifference CWordList::DifferenceTo(const CWordList &after) const
{
    ListDifference difference = {.properties = !HasPropertiesOf(after)};
    const int sharedAtStart = m_entries.SharedAtStart(after.m_entries);
    const int sharedAtEnd =
        m_entries.SharedAtEnd(after.m_entries, std::min(Count(), after.Count()) - sharedAtStart);
    int first = sharedAtStart;
    int removed = Count() - sharedAtStart - sharedAtEnd;
    int inserted = after.Count() - sharedAtStart - sharedAtEnd;
    if (removed == inserted) {
        // Entries written anew, or moved, may be as they were.
        while (removed > 0 && Entry(first) == after.Entry(first)) {
            ++first;
            --removed;
        }
        while (removed > 0 && Entry(first + removed - 1) == after.Entry(first + removed - 1)) {
            --removed;
        }
        inserted = removed;
    }
    if (removed > 0 || inserted > 0) {
        difference.first = first;
        difference.removed = removed;
        difference.inserted = inserted;
        difference.entries = KindOf(*this, after, difference);
    }
    return difference;
}
