// SPDX-License-Identifier: MIT
#pragma once

#include "model/entry_sequence.h"
#include "model/text_search.h"

#include <array>
#include <optional>
#include <span>
#include <vector>

class CRandom;

/// How entries are put in order. The factory values of the program's own sort options differ.
struct SortOptions
{
    bool ascending = true;
    /// Entries flagged in the key language stand together: first when ascending, last otherwise.
    bool groupFlagged = true;
    /// By the number of code units of the key field, then alphabetically.
    bool byLength = false;
};

struct InsertOptions
{
    static constexpr int AtEnd = -1;

    /// Look for a similar entry; when one is found, `sortAfter` has no effect.
    bool checkSimilar = false;
    /// The new entry stands before this one; AtEnd, or anything beyond the last, appends.
    int position = AtEnd;
    bool sortAfter = false;
    SortOptions sort = {};
};

/// The properties that several callers set at once; what is missing is left unchanged.
struct ListProperties
{
    std::optional<QString> language1 = {};
    std::optional<QString> language2 = {};
    std::optional<QString> author = {};
    std::optional<QString> comments = {};
    std::optional<bool> adaptQuestion1 = {};
    std::optional<bool> adaptQuestion2 = {};
    std::optional<QString> questionTemplate1 = {};
    std::optional<QString> questionTemplate2 = {};
};

/// What MoveEntries() moves when it moves whole entries.
inline constexpr int WholeEntry = -1;
/// The key by which Sort() shuffles.
inline constexpr int ShuffleKey = -1;
/// Any of the two languages, where one may be meant.
inline constexpr int AnyLanguage = -1;

/// The numbers of SetFlags().
enum class FlagMode { Clear = 0, Set = 1, Cycle = 2, Toggle = 3 };

/// What lies between two states of a list: one stretch of entries, and whether the properties differ. The saved
/// mark doesn't count.
struct ListDifference
{
    enum class Entries {
        Same,
        Inserted, ///< None of the former entries went, and they stand in their order; new ones may be apart.
        Removed, ///< None came, and those that are left stand in their order; they need not be neighbours.
        Changed ///< Anything else, the number of entries included: another order too.
    };
    Entries entries = Entries::Same;
    /// The `removed` entries from `first` on became `inserted` ones; what stands before and after is the same.
    int first = 0;
    int removed = 0;
    int inserted = 0;
    bool properties = false;

    bool IsNone() const { return entries == Entries::Same && !properties; }
    bool operator==(const ListDifference &) const = default;
};

/// The content of one document: entries in display order and the list's own properties. Every change clears the
/// saved mark; what changes nothing leaves it. Copies share the entries that neither has changed since, so a
/// copy costs a pointer per entry; a list is used by one thread at a time, copies may be used by different
/// threads. Indices and numbers out of range are skipped; a getter gives an empty text then. In a selection
/// the order of the indices does not matter, and one that comes twice counts once.
class CWordList
{
public:
    using Selection = std::span<const int>;

    // Properties; `index` is 0 or 1. A setter clears the saved mark only when the value differs.
    const QString &GetLanguage(int index) const;
    const QString &GetAuthor() const { return m_author; }
    const QString &GetComments() const { return m_comments; }
    /// Whether the question from language `index` is built from its template; never true without one.
    bool GetAdaptQuestion(int index) const;
    const QString &GetQuestionTemplate(int index) const;
    void SetLanguage(int index, const QString &text);
    void SetAuthor(const QString &text);
    void SetComments(const QString &text);
    /// Without a template the mark stays off.
    void SetAdaptQuestion(int index, bool value);
    /// An empty template switches its adapt mark off.
    void SetQuestionTemplate(int index, const QString &text);
    void SetProperties(const ListProperties &properties);

    /// True while the content equals what was last loaded or saved.
    bool IsSaved() const { return m_saved; }
    void SetSaved(bool saved) { m_saved = saved; }

    // Contents
    int Count() const { return m_entries.Count(); }
    /// An empty entry for an index out of range.
    const CWordEntry &Entry(int index) const;
    /// Calls `visit(index, entry)` for all entries in order: the fast way through a long list.
    template<class Visit>
    void ForEach(Visit visit) const
    {
        m_entries.ForEach(visit);
    }
    /// Deletes the entries, comments and templates and marks the list saved. Language names and author stay.
    void Reset();
    void DeleteAll();
    /// Makes room for entries to come; a negative count is 0.
    void Reserve(int count) { m_entries.Reserve(count); }

    /// Returns the index of a similar entry, as it is after the insertion, or NoEntry. `outIndex`, when given,
    /// receives the new entry's index after a sort, and the index of the last entry otherwise.
    int Insert(CWordEntry entry, const InsertOptions &options = {}, int *outIndex = nullptr);
    /// Inserts the entries of another list before this one's `position`, as InsertOptions has it.
    void InsertAll(const CWordList &other, int position);
    /// The texts may be those of the entry itself. Both return the index of another, similar entry or NoEntry;
    /// it is reported also when nothing changed.
    int ReplaceEntry(
        int index, const QString &term1, const QString &term2, const QString &note, bool checkSimilar);
    int SetEntryField(const QString &text, int field, int index, bool checkSimilar);
    void DeleteEntries(Selection selection);
    /// CWordEntry::SwapFields() on every selected entry: moves the contents of a column to the left or right.
    void SwapInEntries(Selection selection, bool swapTexts, bool swapFlags, int a, int b);
    /// Moves entries, or one text field of them with its flag, one place. One that would leave the list is
    /// skipped; the next then changes places with it.
    void MoveEntries(Selection selection, bool up, int field = WholeEntry);
    /// Moves entries, in their order, to where they stand before the one that is at `position` now; at the end
    /// for a position beyond the last.
    void MoveEntriesTo(Selection selection, int position);
    void SetFlags(int language, Selection selection, FlagMode mode);

    /// Entries flagged in language `which`; 2 counts both, an entry flagged twice counting twice.
    int CountFlagged(int which) const;
    bool AnyNote() const;
    /// Entries with neither term, which a file of the program does not keep.
    int CountWithoutTerms() const;

    /// A similar entry has exactly the same note and, in the language asked for or in AnyLanguage, an
    /// alternative in common, case and comments counting.
    bool FindSimilar(const CWordEntry &candidate, int &outIndex, int excludeIndex, int language) const;

    // Order (word_list_sort.cpp)
    /// `key` is a text field or ShuffleKey. Entries equal in all fields come in any order.
    void Sort(int key, const SortOptions &options, CRandom &random);
    /// Whether the entries from `first` to `last` stand in the order that Sort() by a text field gives.
    bool IsSorted(int key, const SortOptions &options, int first, int last) const;

    // Text search (word_list_search.cpp)
    /// The next matching entry after (`downward`) or before `start`, wrapping, `start` itself tried last; a
    /// start of NoEntry means from the first or the last entry.
    TextMatch FindNext(const TextSearch &search, int start, bool downward) const;
    /// All matching entries, ascending.
    std::vector<int> FindAll(const TextSearch &search) const;
    /// Those from `first` up to but not including `last`, for a search in pieces.
    std::vector<int> FindAll(const TextSearch &search, int first, int last) const;
    /// The first entry from `start` on, wrapping, with a term that begins with `prefix`, case ignored; `column`
    /// 0 or 1 looks at that term alone. NoEntry when there is none.
    int FindPrefix(const QString &prefix, int column, int start) const;

    // Duplicates (word_list_merge.cpp); see CDuplicateSearch for finding them
    /// Joins the others into the entry that the selection names first and removes them: alternatives that it
    /// does not have, the pieces of notes that its note lacks, and a flag only where all have it. Returns how
    /// many entries disappeared.
    int MergeEntries(Selection selection);
    /// Merges all entries that share an alternative, in either language, directly or through others. Returns
    /// how many entries disappeared.
    int MergeAll();

    // States of one list (word_list_difference.cpp)
    /// What makes `after` another list than this one. Cheap where they share what did not change.
    ListDifference DifferenceTo(const CWordList &after) const;

private:
    void Assign(QString &member, const QString &text);
    /// The entries of a selection that exist, ascending and each once.
    std::vector<int> Existing(Selection selection) const;
    /// Puts `entry` in the place of another; an equal one changes nothing.
    void Store(int index, CWordEntry entry);
    void SortByKey(int key, const SortOptions &options);
    void MergeGroup(Selection group);
    bool HasPropertiesOf(const CWordList &other) const;

    std::array<QString, 2> m_language;
    QString m_author;
    QString m_comments;
    std::array<bool, 2> m_adaptQuestion = {};
    std::array<QString, 2> m_questionTemplate;
    CEntrySequence m_entries;
    bool m_saved = true;
};
