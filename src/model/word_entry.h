// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <span>

/// The index of no entry, where one may be missing.
inline constexpr int NoEntry = -1;
/// All text fields, where one of them may be meant.
inline constexpr int AllColumns = -1;

/// One entry of a word list: a term in each of two languages, a note, and a flag per language ("learnt").
/// Text fields are numbered: 0 and 1 are the terms, 2 is the note. Flags exist for 0 and 1. An index outside
/// that range gives an empty text or false, and sets nothing.
class CWordEntry
{
public:
    static constexpr int LanguageCount = 2;
    static constexpr int NoteField = 2;
    static constexpr int FieldCount = 3;

    CWordEntry() = default;
    explicit CWordEntry(
        QString term1, QString term2 = {}, QString note = {}, bool flag1 = false, bool flag2 = false);

    /// The term in normal form, comments included.
    const QString &GetText(int index) const { return IsLanguage(index) ? m_texts[size_t(index)] : EmptyText(); }
    const QString &GetNote() const { return m_texts[NoteField]; }
    /// A term (0, 1) or the note (2).
    const QString &GetField(int field) const { return IsField(field) ? m_texts[size_t(field)] : EmptyText(); }

    void SetTerm(const QString &text, int index);
    void SetNote(const QString &text);
    /// SetTerm() for fields 0 and 1, SetNote() for 2.
    void SetField(const QString &text, int field);

    bool GetFlag(int index) const { return IsLanguage(index) && m_flags[size_t(index)]; }
    void SetFlag(int index, bool value);
    void ToggleFlag(int index) { SetFlag(index, !GetFlag(index)); }
    /// none, language 1, language 2, both, and none again.
    void CycleFlags();

    bool HasNote() const { return !GetNote().isEmpty(); }
    bool HasTerm() const { return !m_texts[0].isEmpty() || !m_texts[1].isEmpty(); }
    /// True when the oldest file format with flags can hold what the entry has beside its terms.
    bool FitsOldFormat() const { return !HasNote() && !m_flags[1]; }

    /// The number of alternatives less one, and 0 for a term without any: callers go from 0 to this, inclusive.
    int AlternativeCount(int index) const;
    QString GetAlternative(int index, int k, bool stripComments) const;
    /// All alternatives with their comments, as they are stored; none of an empty term. They last as long as
    /// the entry is not changed.
    std::span<const QString> Alternatives(int index) const;
    /// The whole term without its comments.
    QString GetCleanTerm(int index) const;

    /// Alternatives are compared with their comments.
    bool HasAlternative(const QString &text, int index, bool caseInsensitive) const;
    bool SharesAlternative(const CWordEntry &other, int index, bool caseInsensitive) const;

    /// Exchanges text fields `a` and `b` (0 to 2), and their flags when both have one.
    void SwapFields(bool swapTexts, bool swapFlags, int a, int b);
    /// Exchanges a text field, and its flag when it has one, with another entry.
    void SwapFieldWith(CWordEntry &other, int field);

    /// True when all texts and flags are exactly the same.
    bool operator==(const CWordEntry &other) const = default;

private:
    /// GetAlternative() with its comments, of an existing language and without a copy: lists are searched for
    /// it.
    const QString &StoredAlternative(int index, int k) const;
    static bool IsLanguage(int index) { return index >= 0 && index < LanguageCount; }
    static bool IsField(int field) { return field >= 0 && field < FieldCount; }
    static const QString &EmptyText();
    void ParseTerm(int index);

    // What searching and sorting look at comes first: it lies together then.
    std::array<bool, LanguageCount> m_flags = {};
    std::array<QString, FieldCount> m_texts;
    // Left empty when the term has one alternative, which is the term itself: most entries need no list.
    std::array<QStringList, LanguageCount> m_alternatives;
};

/// The alternatives of one term, for asking many entries whether they share one of them, letter case counting.
/// Refers to the entry, which must outlive it unchanged.
class CAlternativeLookup
{
public:
    CAlternativeLookup(const CWordEntry &entry, int index);
    /// SharesAlternative(), and as quick for a term of many alternatives.
    bool IsSharedBy(const CWordEntry &other) const;

private:
    const CWordEntry &m_entry;
    int m_index;
    QSet<QStringView> m_many; // Empty for a few, which are compared one by one.
};
