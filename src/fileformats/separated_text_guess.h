// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/format_options.h"

#include <QString>

#include <span>

class QIODevice;

struct SeparatedTextGuess
{
    SeparatedTextOptions options;
    /// Every row has two columns at least, so that a file without a telling name may be taken for one.
    bool looksSeparated = false;
};

/// Whether a first row is one by which spreadsheets say the separator, and no row: "sep=;".
bool SaysSeparator(std::span<const QStringView> cells);

/// Whether a row of a text with several columns is a remark on the file, and no entry: "# Chapter 3".
bool IsComment(std::span<const QStringView> cells);

/// Rows as they are at the start of a text.
struct SampleRows
{
    std::vector<QStringList> rows;
    int quotedFields = 0;
    int brokenFields = 0; ///< With a quote that nothing closes, or with text behind the closing one.

    static constexpr int Most = 200;
};
/// The last row is left out where the text goes on behind it (`isWhole` false), since it may be cut off.
SampleRows TakeSampleRows(const QString &head, bool isWhole, char16_t separator, char16_t quote);

/// What the start of a text tells of its layout; `suffix` is that of its file, lower case and perhaps empty.
/// The encoding stays open.
SeparatedTextGuess GuessSeparatedText(const QString &head, bool isWhole, QStringView suffix = {});

/// Options with nothing missing, by the content of the device where they are; it is back at its start
/// afterwards.
SeparatedTextOptions CompletedOptions(QIODevice &device, const std::optional<SeparatedTextOptions> &options,
    QStringView suffix, const KeepGoing *keepGoing = nullptr);

/// The separator that files with this suffix have; 0 where it tells nothing.
char16_t SeparatorOfSuffix(QStringView suffix);
