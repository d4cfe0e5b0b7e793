// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include <algorithm>

namespace {

bool IsLanguage(int index)
{
    return index == 0 || index == 1;
}

const QString &TextAt(const std::array<QString, 2> &texts, int index)
{
    static const QString empty;
    return IsLanguage(index) ? texts[size_t(index)] : empty;
}

}

void CWordList::Assign(QString &member, const QString &text)
{
    if (member != text) {
        member = text;
        m_saved = false;
    }
}

const QString &CWordList::GetLanguage(int index) const
{
    return TextAt(m_language, index);
}

bool CWordList::GetAdaptQuestion(int index) const
{
    return IsLanguage(index) && m_adaptQuestion[size_t(index)];
}

const QString &CWordList::GetQuestionTemplate(int index) const
{
    return TextAt(m_questionTemplate, index);
}

void CWordList::SetLanguage(int index, const QString &text)
{
    if (IsLanguage(index)) {
        Assign(m_language[size_t(index)], text);
    }
}

void CWordList::SetAuthor(const QString &text)
{
    Assign(m_author, text);
}

void CWordList::SetComments(const QString &text)
{
    Assign(m_comments, text);
}

void CWordList::SetAdaptQuestion(int index, bool value)
{
    const bool adapt = value && !GetQuestionTemplate(index).isEmpty();
    if (IsLanguage(index) && m_adaptQuestion[size_t(index)] != adapt) {
        m_adaptQuestion[size_t(index)] = adapt;
        m_saved = false;
    }
}

void CWordList::SetQuestionTemplate(int index, const QString &text)
{
    if (IsLanguage(index)) {
        Assign(m_questionTemplate[size_t(index)], text);
        SetAdaptQuestion(index, GetAdaptQuestion(index));
    }
}

void CWordList::SetProperties(const ListProperties &properties)
{
    const auto apply = [](const auto &value, auto setter) {
        if (value) {
            setter(*value);
        }
    };
    apply(properties.language1, [this](const QString &text) { SetLanguage(0, text); });
    apply(properties.language2, [this](const QString &text) { SetLanguage(1, text); });
    apply(properties.author, [this](const QString &text) { SetAuthor(text); });
    apply(properties.comments, [this](const QString &text) { SetComments(text); });
    // The templates come first: whether a mark may be set depends on them.
    apply(properties.questionTemplate1, [this](const QString &text) { SetQuestionTemplate(0, text); });
    apply(properties.questionTemplate2, [this](const QString &text) { SetQuestionTemplate(1, text); });
    apply(properties.adaptQuestion1, [this](bool adapt) { SetAdaptQuestion(0, adapt); });
    apply(properties.adaptQuestion2, [this](bool adapt) { SetAdaptQuestion(1, adapt); });
}

std::vector<int> CWordList::Existing(Selection selection) const
{
    std::vector<int> indices(selection.begin(), selection.end());
    std::erase_if(indices, [this](int index) { return !m_entries.IsIndex(index); });
    std::ranges::sort(indices);
    indices.erase(std::unique(indices.begin(), indices.end()), indices.end());
    return indices;
}

void CWordList::Store(int index, CWordEntry entry)
{
    if (entry != Entry(index)) {
        m_entries.Mutable(index) = std::move(entry);
        m_saved = false;
    }
}

const CWordEntry &CWordList::Entry(int index) const
{
    static const CWordEntry empty;
    return m_entries.IsIndex(index) ? m_entries.At(index) : empty;
}

void CWordList::Reset()
{
    m_entries.Clear();
    m_comments.clear();
    m_adaptQuestion = {};
    m_questionTemplate = {};
    m_saved = true;
}

void CWordList::DeleteAll()
{
    if (Count() > 0) {
        m_saved = false;
        m_entries.Clear();
    }
}

int CWordList::Insert(CWordEntry entry, const InsertOptions &options, int *outIndex)
{
    m_saved = false;
    int similar = NoEntry;
    if (options.checkSimilar) {
        FindSimilar(entry, similar, NoEntry, AnyLanguage);
    }
    const bool inside = m_entries.IsIndex(options.position);
    m_entries.Insert(options.position, std::move(entry));
    if (inside && options.position <= similar) {
        ++similar;
    }
    const bool sort = options.sortAfter && similar == NoEntry;
    int index = Count() - 1; // Kept: without a sort the last entry, wherever the new one was inserted.
    if (sort) {
        const CWordEntry *const inserted = &Entry(inside ? options.position : index);
        SortByKey(0, options.sort);
        while (&Entry(index) != inserted) {
            --index;
        }
    }
    if (outIndex != nullptr) {
        *outIndex = index;
    }
    return similar;
}

void CWordList::InsertAll(const CWordList &other, int position)
{
    if (other.Count() > 0) {
        m_saved = false;
        m_entries.Insert(position, other.m_entries);
    }
}

int CWordList::ReplaceEntry(
    int index, const QString &term1, const QString &term2, const QString &note, bool checkSimilar)
{
    if (!m_entries.IsIndex(index)) {
        return NoEntry;
    }
    const CWordEntry &stored = Entry(index);
    // Made before anything changes: the texts may be those of the entry itself.
    CWordEntry changed(term1, term2, note, stored.GetFlag(0), stored.GetFlag(1));
    int similar = NoEntry;
    if (checkSimilar) {
        FindSimilar(changed, similar, index, AnyLanguage);
    }
    Store(index, std::move(changed));
    return similar;
}

int CWordList::SetEntryField(const QString &text, int field, int index, bool checkSimilar)
{
    if (!m_entries.IsIndex(index) || field < 0) {
        return NoEntry;
    }
    const int target = std::min(field, CWordEntry::NoteField);
    int similar = NoEntry;
    if (checkSimilar && target != CWordEntry::NoteField) {
        CWordEntry candidate;
        candidate.SetTerm(text, target);
        FindSimilar(candidate, similar, index, target);
    }
    CWordEntry changed = Entry(index);
    changed.SetField(text, target);
    Store(index, std::move(changed));
    return similar;
}

void CWordList::DeleteEntries(Selection selection)
{
    const std::vector<int> indices = Existing(selection);
    if (!indices.empty()) {
        m_saved = false;
        m_entries.Remove(indices);
    }
}

void CWordList::SwapInEntries(Selection selection, bool swapTexts, bool swapFlags, int a, int b)
{
    for (const int index : Existing(selection)) {
        CWordEntry changed = Entry(index);
        changed.SwapFields(swapTexts, swapFlags, a, b);
        Store(index, std::move(changed));
    }
}

void CWordList::MoveEntries(Selection selection, bool up, int field)
{
    const auto exchange = [&](int index) {
        const int other = up ? index - 1 : index + 1;
        if (!m_entries.IsIndex(other) || field < WholeEntry || field > CWordEntry::NoteField) {
            return;
        }
        m_saved = false;
        if (field == WholeEntry) {
            m_entries.Swap(index, other);
        } else {
            m_entries.Mutable(index).SwapFieldWith(m_entries.Mutable(other), field);
        }
    };
    const std::vector<int> indices = Existing(selection);
    // The block's leading entry goes first, so that the entry in its way travels through the whole block.
    if (up) {
        std::for_each(indices.begin(), indices.end(), exchange);
    } else {
        std::for_each(indices.rbegin(), indices.rend(), exchange);
    }
}

void CWordList::MoveEntriesTo(Selection selection, int position)
{
    const std::vector<int> moved = Existing(selection);
    std::vector<int> order;
    order.reserve(size_t(Count()));
    auto next = moved.begin();
    const auto appendOthers = [&](int from, int end) {
        for (int index = from; index < end; ++index) {
            if (next != moved.end() && *next == index) {
                ++next;
            } else {
                order.push_back(index);
            }
        }
    };
    const int middle = std::clamp(position, 0, Count());
    appendOthers(0, middle);
    order.insert(order.end(), moved.begin(), moved.end());
    appendOthers(middle, Count());
    if (!std::ranges::is_sorted(order)) {
        m_saved = false;
        m_entries.Reorder(order);
    }
}

void CWordList::SetFlags(int language, Selection selection, FlagMode mode)
{
    for (const int index : Existing(selection)) {
        CWordEntry changed = Entry(index);
        if (mode == FlagMode::Clear || mode == FlagMode::Set) {
            changed.SetFlag(language, mode == FlagMode::Set);
        } else if (mode == FlagMode::Cycle) {
            changed.CycleFlags();
        } else {
            changed.ToggleFlag(language);
        }
        Store(index, std::move(changed));
    }
}

int CWordList::CountFlagged(int which) const
{
    int count = 0;
    ForEach([&](int, const CWordEntry &entry) {
        count += int(which != 1 && entry.GetFlag(0)) + int(which != 0 && entry.GetFlag(1));
    });
    return count;
}

bool CWordList::AnyNote() const
{
    for (int index = 0; index < Count(); ++index) {
        if (Entry(index).HasNote()) {
            return true;
        }
    }
    return false;
}

int CWordList::CountWithoutTerms() const
{
    int count = 0;
    ForEach([&](int, const CWordEntry &entry) { count += int(!entry.HasTerm()); });
    return count;
}

bool CWordList::FindSimilar(const CWordEntry &candidate, int &outIndex, int excludeIndex, int language) const
{
    const bool oneLanguage = IsLanguage(language);
    const std::array lookups = {CAlternativeLookup(candidate, 0), CAlternativeLookup(candidate, 1)};
    for (int index = 0; index < Count(); ++index) {
        const CWordEntry &entry = Entry(index);
        // Kept: entries with different notes are never similar, whatever words they share.
        if (index == excludeIndex || entry.GetNote() != candidate.GetNote()) {
            continue;
        }
        if (oneLanguage ? lookups[size_t(language)].IsSharedBy(entry)
                        : lookups[0].IsSharedBy(entry) || lookups[1].IsSharedBy(entry)) {
            outIndex = index;
            return true;
        }
    }
    return false;
}
