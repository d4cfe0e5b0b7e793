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
    const int keyField = std::min(key, CWordEntry::NoteField);
    const int fields[CWordEntry::FieldCount] = {keyField, keyField == 0 ? 1 : 0, keyField == 2 ? 1 : 2};
    const bool grouped = options.groupFlagged && keyField != CWordEntry::NoteField;

    // Always sorted as for `ascending`; descending is the exact reverse of it.
    std::vector<SortItem> items;
    items.resize(size_t(Count()));
    std::vector<const CWordEntry *> entries;
    entries.reserve(items.size());
    ForEach([&](int index, const CWordEntry &entry) {
        entries.push_back(&entry);
        SortItem &item = items[size_t(index)];
        item.index = index;
        item.rank = quint64(grouped && !entry.GetFlag(keyField)) << 32;
        if (options.byLength) {
            item.rank |= quint64(entry.GetField(keyField).size());
        }
    });
    const auto textOf = [&](int level, int index) {
        return QStringView(entries[size_t(index)]->GetField(fields[level]));
    };
    const auto sameRank = [](const SortItem &a, const SortItem &b) { return a.rank == b.rank; };
    if (options.byLength) {
        std::ranges::sort(items, {}, &SortItem::rank);
    } else if (grouped) {
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
