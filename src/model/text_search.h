// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_entry.h"

#include <QString>

#include <optional>
#include <vector>

/// Which entries a search looks at, by their flag in one language.
enum class FlagFilter { Any = -1, Flagged = 0, NotFlagged = 1 };

/// What to look for. With wildcards "*" is any run of characters, the shortest that fits, and "?" any one
/// character.
struct TextSearch
{
    QString text = {};
    /// A text field, or AllColumns: 0, 1, 2 in this order.
    int column = AllColumns;
    bool matchCase = false;
    /// Neither beside the match is a letter, digit or combining mark.
    bool wholeWord = false;
    bool wildcard = false;
    FlagFilter flag1 = FlagFilter::Any;
    FlagFilter flag2 = FlagFilter::Any;
};

/// Where a search found its text: positions are code units of the stored field, `end` is the last one of the
/// match (start - 1 for an empty match).
struct TextMatch
{
    int entry = NoEntry;
    int column = 0;
    int start = 0;
    int end = -1;

    bool IsFound() const { return entry != NoEntry; }
    bool operator==(const TextMatch &) const = default;
};

/// A search text made ready for many fields. Case is ignored unit by unit, by simple case folding: positions
/// never shift, and å and a, é and e are different letters.
class CTextMatcher
{
public:
    explicit CTextMatcher(const TextSearch &search);

    struct Range
    {
        qsizetype start = 0;
        qsizetype length = 0;
        bool operator==(const Range &) const = default;
    };
    /// The match in an entry that stands at `index` of its list; it is not found when there is none.
    TextMatch FindIn(const CWordEntry &entry, int index) const;
    /// The first place in `field` where the text is found.
    std::optional<Range> Find(QStringView field) const;
    /// True when `field` begins with the text; whole words and wildcards are not considered.
    bool IsPrefixOf(QStringView field) const;

private:
    /// A run of the pattern between two "*".
    struct Segment
    {
        QString text;
        std::vector<bool> any; // Where a "?" stands; empty when none does.
    };

    char16_t Fold(QChar unit) const { return m_folding ? m_folding[unit.unicode()] : unit.unicode(); }
    /// The end of `segment` in `field` when it stands at `position`, else -1.
    qsizetype EndOfSegment(const Segment &segment, QStringView field, qsizetype position) const;
    /// The start and end of the first place of `segment` at or after `from` that keeps the boundaries asked
    /// for.
    std::optional<std::pair<qsizetype, qsizetype>> FindSegment(const Segment &segment, QStringView field,
        qsizetype from, bool boundaryBefore, bool boundaryAfter) const;
    std::optional<Range> FindWildcard(QStringView field) const;

    const char16_t *m_folding; // None when case counts.
    bool m_wholeWord;
    int m_column;
    FlagFilter m_flag1;
    FlagFilter m_flag2;
    QString m_text;
    std::vector<Segment> m_segments;
    bool m_isPlain = false; // Neither case, nor words, nor wildcards count.
};
