// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/dictionary_filter.h"
#include "fileformats/text_encoding.h"
#include "fileformats/word_list_file.h"

#include <QStringList>

#include <array>
#include <optional>
#include <vector>

struct Format;

/// What a column of a separated text holds.
enum class TextColumn { LeftOut = 0, Term1 = 1, Term2 = 2, Note = 3, Flag1 = 4, Flag2 = 5 };

/// How a separated text (CSV and the like) is laid out.
struct SeparatedTextOptions
{
    char16_t separator = u',';
    char16_t quote = u'"'; ///< 0 for none.
    /// Missing: found out in reading, UTF-8 with a mark in writing.
    std::optional<TextEncoding> encoding = {};
    /// Whether UTF-8 begins with a byte-order mark when it is written; spreadsheets go by it.
    bool writesMark = true;
    /// Whether the first row names the columns: those of the terms name the languages.
    bool hasHeading = true;
    /// Rows with text in front of the heading, which are left out; none in writing.
    int titleRows = 0;
    /// What the columns are, from the first on; those beyond are left out. Empty in writing: what the list has.
    std::vector<TextColumn> columns = {};

    bool operator==(const SeparatedTextOptions &) const = default;
};

/// How texts of other programs become terms. Nothing within brackets is changed.
struct TermOptions
{
    bool semicolonsSeparate = false; ///< ";" between alternatives
    bool commasSeparate = false;
    bool slashesSeparate = false; ///< " / ", with its blanks
    bool roundBracketsAreComments = false; ///< "(...)" becomes "[...]".

    bool operator==(const TermOptions &) const = default;
};

struct FormatReadOptions
{
    /// Read as this; null: recognised by its content and suffix.
    const Format *format = nullptr;
    /// Missing: guessed.
    std::optional<SeparatedTextOptions> separated = {};
    TermOptions terms = {};
    /// Which languages of a file with several, counted from 0 in the order of the file.
    std::array<int, 2> languages = {0, 1};
    DictionaryFilter dictionary = {};
    const KeepGoing *keepGoing = nullptr; ///< May be null.
};

/// What of the two terms a plain text gets, one a line.
enum class PlainTextTerms {
    Both = 0, ///< A line for each, the way plain text is read.
    Term1 = 1,
    Term2 = 2
};

/// What stands between the alternatives of a term in a format that has nothing of its own for them.
enum class AlternativeMark { Asterisk = 0, Semicolon = 1, Comma = 2, Slash = 3 };

struct FormatWriteOptions
{
    /// Of the glossary file; `backupFolder` of all.
    WriteOptions file = {};
    /// Missing: by the suffix of the path, else commas.
    std::optional<SeparatedTextOptions> separated = {};
    PlainTextTerms plainText = PlainTextTerms::Both;
    AlternativeMark alternatives = AlternativeMark::Asterisk;
};
