// SPDX-License-Identifier: MIT
#include "model/entry_sequence.h"

#include <algorithm>

namespace {

/// Whether only this pointer holds its target. What another thread read from it before letting go of it is
/// ordered before what this one writes, which the pointer's own test does not promise.
template<class Pointer>
bool IsSole(const Pointer &pointer)
{
    return pointer->ref.loadAcquire() == 1;
}

template<class Pointer>
void MakeSole(Pointer &pointer)
{
    if (!IsSole(pointer)) {
        pointer.detach();
    }
}

}

CEntrySequence::Place CEntrySequence::Locate(int index) const
{
    // Blocks that were only appended to are all of one size.
    size_t block = std::min(size_t(index) / BlockSize, m_blocks.size() - 1);
    const bool behind = index < m_starts[block];
    const bool ahead = block + 1 < m_starts.size() && index >= m_starts[block + 1];
    if (behind || ahead) {
        block = size_t(std::upper_bound(m_starts.begin(), m_starts.end(), index) - m_starts.begin()) - 1;
    }
    return {block, size_t(index - m_starts[block])};
}

std::vector<CEntrySequence::EntryPointer> &CEntrySequence::MutableBlock(size_t block)
{
    MakeSole(m_blocks[block]);
    return m_blocks[block]->entries;
}

const CWordEntry &CEntrySequence::At(int index) const
{
    const Place place = Locate(index);
    return m_blocks[place.block]->entries[place.entry]->entry;
}

CWordEntry &CEntrySequence::Mutable(int index)
{
    const Place place = Locate(index);
    EntryPointer &pointer = MutableBlock(place.block)[place.entry];
    MakeSole(pointer);
    return pointer->entry;
}

void CEntrySequence::Clear()
{
    m_blocks.clear();
    m_starts.clear();
    m_count = 0;
}

void CEntrySequence::Reserve(int count)
{
    const size_t blocks = size_t(std::max(count, 0)) / BlockSize + 1;
    m_blocks.reserve(blocks);
    m_starts.reserve(blocks);
}

void CEntrySequence::AppendPointer(EntryPointer pointer)
{
    if (m_blocks.empty() || m_blocks.back()->entries.size() >= BlockSize) {
        m_blocks.emplace_back(new Block);
        m_blocks.back()->entries.reserve(BlockSize);
        m_starts.push_back(m_count);
    }
    MutableBlock(m_blocks.size() - 1).push_back(std::move(pointer));
    ++m_count;
}

void CEntrySequence::Append(CWordEntry &&entry)
{
    AppendPointer(EntryPointer(new SharedEntry(std::move(entry))));
}

void CEntrySequence::UpdateStarts(size_t block)
{
    m_starts.resize(m_blocks.size());
    int start = block == 0 ? 0 : m_starts[block - 1] + int(m_blocks[block - 1]->entries.size());
    for (; block < m_blocks.size(); ++block) {
        m_starts[block] = start;
        start += int(m_blocks[block]->entries.size());
    }
    m_count = start;
}

void CEntrySequence::Insert(int index, CWordEntry &&entry)
{
    if (!IsIndex(index)) {
        Append(std::move(entry));
        return;
    }
    std::vector<EntryPointer> pointers;
    pointers.emplace_back(new SharedEntry(std::move(entry)));
    InsertPointers(index, std::move(pointers));
}

void CEntrySequence::Insert(int index, const CEntrySequence &other)
{
    std::vector<EntryPointer> pointers;
    pointers.reserve(size_t(other.m_count));
    for (const BlockPointer &block : other.m_blocks) {
        pointers.insert(pointers.end(), block->entries.begin(), block->entries.end());
    }
    InsertPointers(index, std::move(pointers));
}

void CEntrySequence::InsertPointers(int index, std::vector<EntryPointer> pointers)
{
    if (!IsIndex(index)) {
        for (EntryPointer &pointer : pointers) {
            AppendPointer(std::move(pointer));
        }
        return;
    }
    const Place place = Locate(index);
    std::vector<EntryPointer> &entries = MutableBlock(place.block);
    entries.insert(entries.begin() + qptrdiff(place.entry), std::make_move_iterator(pointers.begin()),
        std::make_move_iterator(pointers.end()));
    if (entries.size() > 2 * BlockSize) {
        std::vector<BlockPointer> rest;
        for (size_t first = BlockSize; first < entries.size(); first += rest.back()->entries.size()) {
            // The last part takes what is left, so that none is short.
            const size_t left = entries.size() - first;
            const auto start = entries.begin() + qptrdiff(first);
            const auto end = start + qptrdiff(left > 2 * BlockSize ? BlockSize : left);
            rest.emplace_back(new Block);
            rest.back()->entries.assign(std::make_move_iterator(start), std::make_move_iterator(end));
        }
        entries.erase(entries.begin() + BlockSize, entries.end());
        m_blocks.insert(m_blocks.begin() + qptrdiff(place.block) + 1, rest.begin(), rest.end());
        m_blocks[place.block]->entries.shrink_to_fit();
    }
    UpdateStarts(place.block);
}

void CEntrySequence::Remove(std::span<const int> indices)
{
    auto next = indices.begin();
    for (size_t block = 0; block < m_blocks.size(); ++block) {
        const int start = m_starts[block];
        const int end = start + int(m_blocks[block]->entries.size());
        next = std::find_if(next, indices.end(), [start](int index) { return index >= start; });
        const auto last = std::find_if(next, indices.end(), [end](int index) { return index >= end; });
        if (next == last) {
            continue;
        }
        std::vector<EntryPointer> &entries = MutableBlock(block);
        for (; next != last; ++next) {
            entries[size_t(*next - start)].reset();
        }
        std::erase(entries, EntryPointer());
    }
    std::erase_if(m_blocks, [](const BlockPointer &block) { return block->entries.empty(); });
    UpdateStarts(0);
}

void CEntrySequence::Swap(int a, int b)
{
    const Place first = Locate(a);
    const Place second = Locate(b);
    // Both blocks are made this sequence's own before either is touched.
    MutableBlock(first.block);
    MutableBlock(second.block)[second.entry].swap(m_blocks[first.block]->entries[first.entry]);
}

void CEntrySequence::Reorder(std::span<const int> order)
{
    std::vector<EntryPointer> pointers;
    pointers.reserve(size_t(m_count));
    for (const BlockPointer &block : m_blocks) {
        std::vector<EntryPointer> &entries = block->entries;
        if (IsSole(block)) {
            pointers.insert(pointers.end(), std::make_move_iterator(entries.begin()),
                std::make_move_iterator(entries.end()));
        } else {
            pointers.insert(pointers.end(), entries.begin(), entries.end());
        }
    }
    Clear();
    for (const int index : order) {
        AppendPointer(std::move(pointers[size_t(index)]));
    }
}

int CEntrySequence::SharedAtStart(const CEntrySequence &other) const
{
    const size_t blocks = std::min(m_blocks.size(), other.m_blocks.size());
    size_t block = 0;
    while (block < blocks && m_blocks[block] == other.m_blocks[block]) {
        ++block;
    }
    int shared = block == 0 ? 0 : m_starts[block - 1] + int(m_blocks[block - 1]->entries.size());
    const int most = std::min(m_count, other.m_count);
    while (shared < most && &At(shared) == &other.At(shared)) {
        ++shared;
    }
    return shared;
}

int CEntrySequence::SharedAtEnd(const CEntrySequence &other, int most) const
{
    int shared = 0;
    for (auto own = m_blocks.rbegin(), others = other.m_blocks.rbegin();
         own != m_blocks.rend() && others != other.m_blocks.rend() && *own == *others; ++own, ++others) {
        shared += int((*own)->entries.size());
    }
    shared = std::min(shared, most);
    while (shared < most && &At(m_count - 1 - shared) == &other.At(other.m_count - 1 - shared)) {
        ++shared;
    }
    return shared;
}
