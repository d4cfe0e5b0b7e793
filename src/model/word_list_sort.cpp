// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include "platform/collation.h"
#include "platform/random.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {

/// One entry on its way to its place. The rank decides; where it is equal and a key is given, the key does.
struct SortItem
{
    quint64 rank = 0;
    size_t key = 0; // Offset into the sort keys.
    int index = 0;
};
using SortItems = std::span<SortItem>;

/// What decides about the order of two entries: their rank, then their texts field by field.
class CSortRule
{
public:
    CSortRule(int key, const SortOptions &options)
        : m_field(std::min(key, CWordEntry::NoteField)),
          m_groups(options.groupFlagged && m_field != CWordEntry::NoteField), m_byLength(options.byLength)
    {
    }

    bool Groups() const { return m_groups; }
    /// The field that counts at a level, from 0.
    int Field(int level) const
    {
        const int fields[CWordEntry::FieldCount] = {m_field, m_field == 0 ? 1 : 0, m_field == 2 ? 1 : 2};
        return fields[level];
    }
    quint64 Rank(const CWordEntry &entry) const
    {
        const quint64 length = m_byLength ? quint64(entry.GetField(m_field).size()) : 0;
        return (quint64(m_groups && !entry.GetFlag(m_field)) << 32) | length;
    }
    /// Below, equal to or above 0, as when both are sorted ascending.
    int Compare(const CWordEntry &a, const CWordEntry &b) const
    {
        if (Rank(a) != Rank(b)) {
            return Rank(a) < Rank(b) ? -1 : 1;
        }
        const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
        int compared = 0;
        for (int level = 0; level < CWordEntry::FieldCount && compared == 0; ++level) {
            compared = collator.Compare(a.GetField(Field(level)), b.GetField(Field(level)));
        }
        return compared;
    }

private:
    int m_field;
    bool m_groups;
    bool m_byLength;
};

/// The first eight bytes of a sort key as a number that orders like them.
quint64 Prefix(const char *key)
{
    quint64 prefix = 0;
    int bits = 64;
    for (; bits > 0 && *key != 0; ++key) {
        bits -= 8;
        prefix |= quint64(uchar(*key)) << bits;
    }
    return prefix;
}

/// Calls `visit` for every run of items that `equal` takes for the same.
template<class Equal, class Visit>
void ForEachTie(SortItems items, Equal equal, Visit visit)
{
    for (auto begin = items.begin(); begin != items.end();) {
        const auto end =
            std::find_if(begin + 1, items.end(), [&](const SortItem &item) { return !equal(*begin, item); });
        if (end - begin > 1) {
            visit(SortItems(begin, end));
        }
        begin = end;
    }
}

/// Orders items ascending by texts that `textOf(level, index)` gives: level 0 first, the next where texts tie.
/// Sort keys are made once for each text that is needed at all.
template<class TextOf>
void SortByTexts(SortItems items, const TextOf &textOf, int level, int levels)
{
    if (level == levels) {
        return;
    }
    const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
    std::vector<char> keys;
    keys.reserve(items.size() * 24);
    collator.AppendSortKey({}, keys); // Empty texts, which most notes are, share this one.
    for (SortItem &item : items) {
        const QStringView text = textOf(level, item.index);
        item.key = text.isEmpty() ? 0 : keys.size();
        if (!text.isEmpty()) {
            collator.AppendSortKey(text, keys);
        }
        item.rank = Prefix(keys.data() + item.key);
    }
    const auto compare = [&keys](const SortItem &a, const SortItem &b) {
        return std::strcmp(keys.data() + a.key, keys.data() + b.key);
    };
    std::sort(items.begin(), items.end(), [&](const SortItem &a, const SortItem &b) {
        return a.rank != b.rank ? a.rank < b.rank : compare(a, b) < 0;
    });
    const auto equal = [&](const SortItem &a, const SortItem &b) {
        return a.rank == b.rank && compare(a, b) == 0;
    };
    ForEachTie(items, equal, [&](SortItems tie) { SortByTexts(tie, textOf, level + 1, levels); });
}

}

void CWordList::Sort(int key, const SortOptions &options, CRandom &random)
{
    if (Count() < 2) {
        return;
    }
    if (key < 0) {
        m_saved = false;
        std::vector<int> order;
        order.resize(size_t(Count()));
        std::iota(order.begin(), order.end(), 0);
        ShuffleCyclically(order, random);
        m_entries.Reorder(order);
    } else {
        SortByKey(key, options);
    }
}

void CWordList::SortByKey(int key, const SortOptions &options)
{
    if (Count() < 2) {
        return;
    }
    m_saved = false;
    const CSortRule rule(key, options);

    // Always sorted as for `ascending`; descending is the exact reverse of it.
    std::vector<SortItem> items;
    items.resize(size_t(Count()));
    std::vector<const CWordEntry *> entries;
    entries.reserve(items.size());
    ForEach([&](int index, const CWordEntry &entry) {
        entries.push_back(&entry);
        SortItem &item = items[size_t(index)];
        item.index = index;
        item.rank = rule.Rank(entry);
    });
    const auto textOf = [&](int level, int index) {
        return QStringView(entries[size_t(index)]->GetField(rule.Field(level)));
    };
    const auto sameRank = [](const SortItem &a, const SortItem &b) { return a.rank == b.rank; };
    if (options.byLength) {
        std::ranges::sort(items, {}, &SortItem::rank);
    } else if (rule.Groups()) {
        std::partition(items.begin(), items.end(), [](const SortItem &item) { return item.rank == 0; });
    }
    ForEachTie(items, sameRank, [&](SortItems tie) { SortByTexts(tie, textOf, 0, CWordEntry::FieldCount); });
    if (!options.ascending) {
        std::ranges::reverse(items);
    }

    std::vector<int> order;
    order.reserve(items.size());
    for (const SortItem &item : items) {
        order.push_back(item.index);
    }
    m_entries.Reorder(order);
}

bool CWordList::IsSorted(int key, const SortOptions &options, int first, int last) const
{
    const CSortRule rule(key, options);
    for (int index = std::max(first, 0) + 1; index <= std::min(last, Count() - 1); ++index) {
        const int compared = rule.Compare(Entry(index - 1), Entry(index));
        if (options.ascending ? compared > 0 : compared < 0) {
            return false;
        }
    }
    return true;
}
