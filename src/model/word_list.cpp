// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include <algorithm>

void CWordList::Assign(QString &member, const QString &text)
{
    if (member != text) {
        member = text;
        m_saved = false;
    }
}

void CWordList::SetLanguage(int index, const QString &text)
{
    Assign(m_language[size_t(index)], text);
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
    if (m_adaptQuestion[size_t(index)] != value) {
        m_adaptQuestion[size_t(index)] = value;
        m_saved = false;
    }
}

void CWordList::SetQuestionTemplate(int index, const QString &text)
{
    Assign(m_questionTemplate[size_t(index)], text);
    if (text.isEmpty()) {
        SetAdaptQuestion(index, false);
    }
}

void CWordList::SetProperties(const ListProperties &properties)
{
    const auto apply = [](const std::optional<QString> &text, auto setter) {
        if (text) {
            setter(*text);
        }
    };
    apply(properties.language1, [this](const QString &text) { SetLanguage(0, text); });
    apply(properties.language2, [this](const QString &text) { SetLanguage(1, text); });
    apply(properties.author, [this](const QString &text) { SetAuthor(text); });
    apply(properties.comments, [this](const QString &text) { SetComments(text); });
    // The templates come last, so that an empty one wins over an adapt mark.
    SetAdaptQuestion(0, properties.adaptQuestion1);
    SetAdaptQuestion(1, properties.adaptQuestion2);
    apply(properties.questionTemplate1, [this](const QString &text) { SetQuestionTemplate(0, text); });
    apply(properties.questionTemplate2, [this](const QString &text) { SetQuestionTemplate(1, text); });
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
    int similar = -1;
    if (options.checkSimilar) {
        FindSimilar(entry, similar, -1, -1);
    }
    const bool inside = m_entries.IsIndex(options.position);
    m_entries.Insert(options.position, std::move(entry));
    if (inside && options.position <= similar) {
        ++similar;
    }
    const CWordEntry *const inserted = &Entry(inside ? options.position : Count() - 1);
    const bool sort = options.sortAfter && similar < 0;
    if (sort) {
        SortByKey(0, options.sort);
    }
    if (outIndex != nullptr) {
        // Kept: without a sort this is the last entry, wherever the new one was inserted.
        *outIndex = Count() - 1;
        while (sort && &Entry(*outIndex) != inserted) {
            --*outIndex;
        }
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
        return -1;
    }
    const CWordEntry &stored = Entry(index);
    // Made before anything changes: the texts may be those of the entry itself.
    const CWordEntry changed(term1, term2, note, stored.GetFlag(0), stored.GetFlag(1));
    int similar = -1;
    if (checkSimilar) {
        FindSimilar(changed, similar, index, -1);
    }
    if (stored.GetText(0) != term1 || stored.GetText(1) != term2 || stored.GetNote() != note) {
        m_entries.Mutable(index) = changed;
        m_saved = false;
    }
    return similar;
}

int CWordList::SetEntryField(const QString &text, int field, int index, bool checkSimilar)
{
    if (!m_entries.IsIndex(index) || field < 0) {
        return -1;
    }
    const int target = std::min(field, CWordEntry::NoteField);
    int similar = -1;
    if (checkSimilar && target != CWordEntry::NoteField) {
        CWordEntry candidate;
        candidate.SetTerm(text, target);
        FindSimilar(candidate, similar, index, target);
    }
    if (Entry(index).GetField(target) != text) {
        CWordEntry changed = Entry(index);
        changed.SetField(text, target);
        m_entries.Mutable(index) = changed;
        m_saved = false;
    }
    return similar;
}

void CWordList::DeleteEntries(Selection selection)
{
    m_saved = false;
    m_entries.Remove(selection);
}

void CWordList::SwapInEntries(Selection selection, bool swapTexts, bool swapFlags, int a, int b)
{
    m_saved = false;
    for (const int index : selection) {
        if (m_entries.IsIndex(index)) {
            m_entries.Mutable(index).SwapFields(swapTexts, swapFlags, a, b);
        }
    }
}

void CWordList::MoveEntries(Selection selection, bool up, int field)
{
    m_saved = false;
    const auto exchange = [&](int index) {
        const int other = up ? index - 1 : index + 1;
        if (!m_entries.IsIndex(index) || !m_entries.IsIndex(other)) {
            return;
        }
        if (field < 0) {
            m_entries.Swap(index, other);
        } else {
            m_entries.Mutable(index).SwapFieldWith(m_entries.Mutable(other), field);
        }
    };
    // The block's leading entry goes first, so that the entry in its way travels through the whole block.
    if (up) {
        std::for_each(selection.begin(), selection.end(), exchange);
    } else {
        std::for_each(selection.rbegin(), selection.rend(), exchange);
    }
}

void CWordList::SetFlags(int language, Selection selection, FlagMode mode)
{
    for (const int index : selection) {
        if (!m_entries.IsIndex(index)) {
            continue;
        }
        const bool flag = Entry(index).GetFlag(language);
        if ((mode == FlagMode::Clear && !flag) || (mode == FlagMode::Set && flag)) {
            continue;
        }
        m_saved = false;
        CWordEntry &entry = m_entries.Mutable(index);
        if (mode == FlagMode::Cycle) {
            entry.CycleFlags();
        } else {
            entry.ToggleFlag(language);
        }
    }
}

int CWordList::CountFlagged(int which) const
{
    int count = 0;
    for (int index = 0; index < Count(); ++index) {
        const CWordEntry &entry = Entry(index);
        count += int(which != 1 && entry.GetFlag(0)) + int(which != 0 && entry.GetFlag(1));
    }
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

bool CWordList::FindSimilar(const CWordEntry &candidate, int &outIndex, int excludeIndex, int language) const
{
    const bool oneLanguage = language == 0 || language == 1;
    for (int index = 0; index < Count(); ++index) {
        const CWordEntry &entry = Entry(index);
        // Kept: entries with different notes are never similar, whatever words they share.
        if (index == excludeIndex || entry.GetNote() != candidate.GetNote()) {
            continue;
        }
        if (oneLanguage ? candidate.SharesAlternative(entry, language, false)
                        : candidate.SharesAlternative(entry, 0, false)
                    || candidate.SharesAlternative(entry, 1, false)) {
            outIndex = index;
            return true;
        }
    }
    return false;
}
