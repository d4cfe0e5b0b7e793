// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_numbers.h"

#include <vector>

/// What a format cannot hold, or what a reader left out or took for something else.
enum class LossKind {
    // What a list has and a file would not.
    Terms = 0, ///< Those of the language that is not written.
    Notes = 1,
    Flags = 2,
    QuestionTemplates = 3,
    Author = 4,
    Comments = 5,
    Languages = 6,
    EntriesWithoutTerms = 7,
    Characters = 8, ///< Texts with a character that the encoding lacks.
    // What a file has and a list does not.
    Asterisks = 9, ///< Terms with an asterisk in them, which separates alternatives in a list.
    Brackets = 10, ///< Terms with a square bracket in them, which begins or ends a comment in a list.
    Letters = 11, ///< Terms of which letters went: asterisks or brackets with nothing between them.
    LineBreaks = 12, ///< Texts of several lines, which became one.
    Columns = 13, ///< Columns with texts in them that were left out.
    Rows = 14, ///< Rows without terms, with texts in other columns.
    OtherLanguages = 15, ///< Translations into languages that were not chosen.
    Grades = 16, ///< Results of a learner.
    Tags = 17,
    Markup = 18, ///< Fields with HTML that became text.
    DamagedText = 19, ///< Texts with bytes that are no characters of the encoding.
    OpenQuotes = 20, ///< Quotes that nothing ends.
    Details = 21, ///< Anything else that entries have: pictures, sounds, word classes.
};
inline constexpr int LossKinds = 22;

/// The number of the text that names what is lost, with a place for the count.
constexpr int LossText(LossKind kind)
{
    return Text::FirstLoss + int(kind);
}

struct FormatLoss
{
    LossKind kind = {};
    int count = 0; ///< At least 1; of list properties, how many of them.

    bool operator==(const FormatLoss &) const = default;
};

/// Each kind once, in the order of the kinds.
using FormatLosses = std::vector<FormatLoss>;

/// Counts losses by kind.
class CLossCounter
{
public:
    void Add(LossKind kind, int count = 1);
    int Count(LossKind kind) const;
    FormatLosses Losses() const { return m_losses; }

private:
    FormatLosses m_losses;
};
