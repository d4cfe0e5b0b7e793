// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_entry.h"

#include <QExplicitlySharedDataPointer>

#include <span>
#include <vector>

/// Entries in order, in blocks of some hundreds. Copies share the blocks, and blocks share the entries, that
/// neither has changed since: copying a million entries costs some thousand pointers, and changing one of them
/// afterwards a block of pointers and the entry. A sequence is used by one thread at a time, copies may be used
/// by different ones.
class CEntrySequence
{
public:
    int Count() const { return m_count; }
    bool IsIndex(int index) const { return index >= 0 && index < m_count; }

    /// `index` must be in range. The reference lasts until the entry is changed or removed.
    const CWordEntry &At(int index) const;
    /// The entry for changing: a copy of its own when another sequence shares it.
    CWordEntry &Mutable(int index);

    /// Calls `visit` with every index and its entry, in order.
    template<class Visit>
    void ForEach(Visit visit) const
    {
        int index = 0;
        for (const BlockPointer &block : m_blocks) {
            const std::vector<EntryPointer> &entries = block->entries;
            for (size_t i = 0; i < entries.size(); ++i) {
                if (i + 2 * Ahead < entries.size()) {
                    Prefetch(*entries[i + 2 * Ahead], entries[i + Ahead]->entry);
                }
                visit(index++, entries[i]->entry);
            }
        }
    }

    void Clear();
    /// Makes room for entries to be appended; a negative count is 0.
    void Reserve(int count);
    void Append(CWordEntry &&entry);
    /// Inserts before `index`; an index that is not in range appends.
    void Insert(int index, CWordEntry &&entry);
    /// Inserts all entries of another sequence, and shares them.
    void Insert(int index, const CEntrySequence &other);
    /// Removes ascending indices; those out of range are skipped.
    void Remove(std::span<const int> indices);
    void Swap(int a, int b);
    /// Puts the entry that was order[i] at i; `order` holds every index once.
    void Reorder(std::span<const int> order);

    /// How many entries from the first on, or from the last back and not more than `most`, both sequences
    /// share.
    int SharedAtStart(const CEntrySequence &other) const;
    int SharedAtEnd(const CEntrySequence &other, int most) const;

private:
    struct SharedEntry : QSharedData
    {
        explicit SharedEntry(CWordEntry &&source) : entry(std::move(source)) { }
        CWordEntry entry;
    };
    using EntryPointer = QExplicitlySharedDataPointer<SharedEntry>;

    struct Block : QSharedData
    {
        std::vector<EntryPointer> entries;
    };
    using BlockPointer = QExplicitlySharedDataPointer<Block>;

    static constexpr size_t BlockSize = 512; // A block grows to twice this before it is split.
    static constexpr size_t Ahead = 8; // So many entries take about as long as a line of memory to arrive.

    /// Has memory bring entries that are soon visited: first where their texts are, then the texts.
    static void Prefetch(const SharedEntry &later, const CWordEntry &soon)
    {
        __builtin_prefetch(&later);
        __builtin_prefetch(&later.entry.GetNote());
        __builtin_prefetch(soon.GetText(0).constData());
        __builtin_prefetch(soon.GetText(1).constData());
    }

    struct Place
    {
        size_t block;
        size_t entry;
    };
    Place Locate(int index) const;
    std::vector<EntryPointer> &MutableBlock(size_t block);
    void AppendPointer(EntryPointer pointer);
    void InsertPointers(int index, std::vector<EntryPointer> pointers);
    /// Renews the starts from a block on, after its size changed.
    void UpdateStarts(size_t block);

    std::vector<BlockPointer> m_blocks; // None of them empty.
    std::vector<int> m_starts; // The index of each block's first entry.
    int m_count = 0;
};
