// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/formats.h"
#include "fileformats/word_list_filter.h"
#include "model/word_list.h"

#include <unordered_set>

enum class LanguageMatch {
    Any = 0,
    /// One language of the file is one of the list's.
    One = 1,
    /// Both languages are the same, in this order or the other.
    Both = 2
};

struct ImportOptions
{
    /// Without it every file that can be read is imported whole, whatever the rest says.
    bool useFilter = false;
    LanguageMatch languageMatch = LanguageMatch::Any;
    /// Skip entries whose terms and note are exactly those of one that is there.
    bool ignoreDuplicates = false;
    /// Terms keep their places where a language stands the right way round as well as crossed: where names are
    /// missing, say.
    bool prefersStraight = false;
    WordListFilter filter = {};
};

enum class ImportResult {
    Imported = 0,
    Ignored = 1, ///< The filter did not let it through.
    Bad = 2 ///< Nothing could be read, or there is no room for its entries.
};

/// What became of one file.
struct FileImport
{
    ImportResult result = ImportResult::Bad;
    ReadResult read = ReadResult::CannotOpen;
    FileFault fault = FileFault::None;
    FormatLosses losses = {}; ///< What its reader could not take.
    int importedEntries = 0;
    int ignoredEntries = 0;
};

/// Puts the entries of files into a list, those of each file behind those of the file before. Works on a list
/// of its own, so it may live on any thread.
class CFileImport
{
public:
    /// The first entry goes to `position`, or to the end where it is beyond the last or negative.
    CFileImport(CWordList target, int position, const ImportOptions &options);

    /// Reads a file of any kind. Where the list's languages stand in the file the other way round, its terms
    /// change places. `keepGoing` set to false stops between two records; what is in the list by then stays.
    FileImport ImportFile(const QString &path, const KeepGoing &keepGoing);
    /// The same with what was read of a file.
    FileImport ImportList(const CWordList &file, const KeepGoing &keepGoing);

    const CWordList &Target() const { return m_target; }
    CWordList TakeTarget() { return std::move(m_target); }

private:
    struct TextsHash
    {
        size_t operator()(const CWordEntry *entry) const;
    };
    struct TextsEqual
    {
        bool operator()(const CWordEntry *a, const CWordEntry *b) const;
    };

    FileFault FaultOf(const CWordList &file) const;
    bool HasLanguagesOf(const CWordList &file) const;
    bool IsCrossed(const CWordList &file) const;
    bool SameLanguage(int own, const CWordList &file, int language) const;
    /// Inserts what is wanted of a file, and counts it.
    void InsertEntries(const CWordList &file, const KeepGoing &keepGoing, FileImport &outcome);

    CWordList m_target;
    int m_position;
    ImportOptions m_options;
    CWordListFilter m_filter;
    // Filled at the first use. The entries belong to the list, in which they neither change nor go.
    std::unordered_set<const CWordEntry *, TextsHash, TextsEqual> m_known;
    bool m_isKnownFilled = false;
};
