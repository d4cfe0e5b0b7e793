// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The syntax of a term: alternatives separated by "*", comments in square brackets, which do not nest.
/// All functions take texts of any length and content, and take time in proportion to it.

/// Joins the alternatives of a term in normal form.
inline constexpr QStringView AlternativeJoint = u" * ";

/// The alternatives of `text` in order: each without empty comments, space-cleaned and not empty.
QStringList SplitAlternatives(const QString &text);

/// True for a text that is one alternative at most and in normal form as it stands.
bool IsSimpleTerm(QStringView text);

/// `text` in normal form: its alternatives joined by AlternativeJoint. The normal form of a normal form is the
/// same, unless a comment of control characters alone became one of a space, which goes the second time.
QString NormalizeTerm(const QString &text);

/// `text` without its comments, in normal form. An unmatched "[" ends the removal, which runs from the end of
/// the text to its start, so comments before it stay.
QString StripComments(const QString &text);

/// Turns control characters below U+0080 into spaces, runs of spaces into one, and drops a space at either end.
/// Other white space stays.
void CleanSpaces(QString &text);

/// Removes the comments that hold nothing but spaces (U+0020).
void RemoveEmptyComments(QString &text);

/// Moves the text before the first separator from `source` to `token` and drops the separator. Without a
/// separator `token` takes everything and the result is false. Both are parts of one text, which must live on.
bool NextToken(QStringView &source, QStringView &token, QChar separator);

/// `text` with commas outside brackets taken as alternative separators and round brackets as comment brackets,
/// in normal form; nothing when there is nothing to correct.
std::optional<QString> SuggestTermCorrection(const QString &text);
