// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include <algorithm>

TextMatch CWordList::FindNext(const TextSearch &search, int start, bool downward) const
{
    const CTextMatcher matcher(search);
    const int count = Count();
    const int origin = m_entries.IsIndex(start) ? start : downward ? -1 : count;
    for (int step = 1; step <= count; ++step) {
        const int index = downward ? (origin + step) % count : (origin - step + count) % count;
        const TextMatch match = matcher.FindIn(Entry(index), index);
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
        if (matcher.FindIn(entry, index).IsFound()) {
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
        if (matcher.FindIn(Entry(index), index).IsFound()) {
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
