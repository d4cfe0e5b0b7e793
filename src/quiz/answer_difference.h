// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/answer_check.h"

#include <QFlags>
#include <QList>

/// A stretch of the way from a typed text to the expected one, both as they were written.
struct DifferencePart
{
    enum class Kind {
        Same, ///< Also what only one of them has and what is written otherwise, where it does not count.
        Missing, ///< In `expected` alone: to be added.
        Surplus, ///< In `typed` alone: to be left out.
        Changed,
    };

    Kind kind = Kind::Same;
    QString typed;
    QString expected;
    bool operator==(const DifferencePart &) const = default;
};

/// What an answer is wrong by, where that has a name. The first three may come together; nothing else is wrong
/// then.
enum class Slip {
    LetterCase = 0x01,
    Accent = 0x02, ///< å, ä and ö are letters of their own.
    PunctuationOrBlanks = 0x04,
    SameLook = 0x08, ///< Other characters that look the same.
    OneLetter = 0x10,
    Exchange = 0x20, ///< Two neighbours have changed places.
    OtherWord = 0x40 ///< Less than half of the characters agree.
};
Q_DECLARE_FLAGS(Slips, Slip)
Q_DECLARE_OPERATORS_FOR_FLAGS(Slips)

/// How a wrong answer differs from the nearest text that would have been right. They are compared as the
/// verdict compares them, and shown as they were written.
struct AnswerDifference
{
    QString typed = {};
    QString expected = {};
    /// The fewest characters to add, leave out or change, in order. Characters are what a reader takes for one;
    /// where there is too much to compare in reasonable time or to read, all between the common start and end
    /// is one change. So is another word as a whole.
    QList<DifferencePart> parts = {};
    Slips slips = {};
};

/// A text that differs by its look, letter case, accents, punctuation or blanks alone is nearer than any other;
/// among those as near, the first in the order in which they are tried is taken.
AnswerDifference answerDifference(
    const CWordEntry &entry, int answerColumn, const QString &answer, const CheckingOptions &options);
