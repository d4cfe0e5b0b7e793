// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include <algorithm>

namespace {

bool Passes(FlagFilter filter, bool flag)
{
    return filter == FlagFilter::Any || (filter == FlagFilter::Flagged) == flag;
}

/// The match of `search` in one entry; it is not found when there is none.
TextMatch MatchEntry(const CTextMatcher &matcher, const TextSearch &search, const CWordEntry &entry, int index)
{
    if (!Passes(search.flag1, entry.GetFlag(0)) || !Passes(search.flag2, entry.GetFlag(1))) {
        return {};
    }
    const bool all = search.column < 0;
    const int last = all ? CWordEntry::NoteField : std::min(search.column, CWordEntry::NoteField);
    for (int column = all ? 0 : search.column; column <= last; ++column) {
        if (const auto range = matcher.Find(entry.GetField(column))) {
            return {index, column, int(range->start), int(range->start + range->length) - 1};
        }
    }
    return {};
}

}

TextMatch CWordList::FindNext(const TextSearch &search, int start, bool downward) const
{
    const CTextMatcher matcher(search);
    const int count = Count();
    const int origin = m_entries.IsIndex(start) ? start : downward ? -1 : count;
    for (int step = 1; step <= count; ++step) {
        const int index = downward ? (origin + step) % count : (origin - step + count) % count;
        const TextMatch match = MatchEntry(matcher, search, Entry(index), index);
        if (match.IsFound()) {
            return match;
        }
    }
    return {};
}

std::vector<int> CWordList::FindAll(const TextSearch &search) const
{
    const CTextMatcher matcher(search);
    std::vector<int> found;
    ForEach([&](int index, const CWordEntry &entry) {
        if (MatchEntry(matcher, search, entry, index).IsFound()) {
            found.push_back(index);
        }
    });
    return found;
}

std::vector<int> CWordList::FindAll(const TextSearch &search, int first, int last) const
{
    const CTextMatcher matcher(search);
    std::vector<int> found;
    for (int index = std::max(first, 0); index < std::min(last, Count()); ++index) {
        if (MatchEntry(matcher, search, Entry(index), index).IsFound()) {
            found.push_back(index);
        }
    }
    return found;
}

int CWordList::FindPrefix(const QString &prefix, int column, int start) const
{
    const CTextMatcher matcher(TextSearch{.text = prefix});
    const int count = Count();
    const int origin = m_entries.IsIndex(start) ? start : 0;
    for (int step = 0; step < count; ++step) {
        const int index = (origin + step) % count;
        const CWordEntry &entry = Entry(index);
        if ((column != 1 && matcher.IsPrefixOf(entry.GetText(0)))
            || (column != 0 && matcher.IsPrefixOf(entry.GetText(1)))) {
            return index;
        }
    }
    return NoEntry;
}
