// SPDX-License-Identifier: MIT
#pragma once

#include "model/text_search.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

class CWordList;

/// What a file says of itself, and how many entries it has.
struct WordListSummary
{
    std::array<QString, 2> languages = {};
    QString author = {};
    QString comments = {};
    int entries = 0;

    static WordListSummary Of(const CWordList &list);
};

/// What is asked of a file: its number of entries, both bounds included, and texts that its properties contain,
/// letter case ignored. What is missing, empty or made of blanks asks for nothing.
struct WordListFilter
{
    std::optional<int> minimum = {};
    std::optional<int> maximum = {};
    QString author = {};
    QString comments = {};
    std::array<QString, 2> languages = {};
};

/// Why entries of a file are not wanted.
enum class FileFault {
    None,
    Languages, ///< Not those of the list that they would go to.
    TooFew,
    TooMany,
    Author,
    Comments,
    Language1,
    Language2,
    ListFull ///< The list would have more entries than a file may have.
};

/// A filter made ready for many files.
class CWordListFilter
{
public:
    explicit CWordListFilter(const WordListFilter &filter);

    /// The first thing that the filter asks for and the file lacks.
    FileFault FaultOf(const WordListSummary &file) const;

private:
    struct Wanted
    {
        FileFault fault; ///< Where the text is missing.
        CTextMatcher matcher;
    };

    std::optional<int> m_minimum;
    std::optional<int> m_maximum;
    std::vector<Wanted> m_wanted;
};
