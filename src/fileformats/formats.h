// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/format_loss.h"
#include "fileformats/format_options.h"
#include "fileformats/word_list_file.h"

#include <QByteArray>
#include <QStringList>

#include <span>

class CWordList;
class QIODevice;

enum class FormatId { Glossary, WordQuiz, Kvtml, Dictionary, AnkiText, SeparatedText, PlainText };

/// What a reader is given to read.
struct FormatSource
{
    QIODevice &device; ///< Open for reading, random access, at its start.
    QString path = {}; ///< Empty where it is no file.
};

/// The start of a file, by which its format is recognised.
struct FormatSample
{
    QByteArrayView head; ///< As much as is looked at, at most SampleSize.
    bool isWhole = false; ///< The file has no more.
    QString suffix = {}; ///< Lower case; empty where there is none.

    static constexpr qint64 SampleSize = 65536;
};

/// A row of the table of formats. Where a function is null the format can't do that.
struct Format
{
    FormatId id;
    QLatin1StringView key; ///< For command lines and settings; never translated.
    int name; ///< The number of its text.
    std::span<const QLatin1StringView> suffixes; ///< Lower case, without a dot; the first is the usual one.
    /// Holds all that a list has: a list may stay bound to such a file.
    bool holdsEverything = false;
    /// Its files are a list each, which is read whole; otherwise what is read must be chosen.
    bool isWordList = true;

    bool (*recognises)(const FormatSample &sample, FormatSource &source) = nullptr;
    /// Puts what it reads into an empty list. What it could not take is counted.
    ReadResult (*read)(CWordList &list, FormatSource &source, const FormatReadOptions &options,
        CLossCounter &losses) = nullptr;
    /// Whatever it can't write it counts here and then leaves out in write().
    void (*count)(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses) = nullptr;
    /// Returns false when anything failed.
    bool (*write)(const CWordList &list, QIODevice &device, const FormatWriteOptions &options) = nullptr;

    /// Whether a text of any kind may be taken for it.
    bool IsText() const { return id == FormatId::SeparatedText || id == FormatId::PlainText; }
    bool CanRead() const { return read != nullptr; }
    bool CanWrite() const { return write != nullptr; }
};

/// The table. What is recognised first stands first; general formats stand behind special ones.
std::span<const Format> Formats();
const Format &FormatOf(FormatId id);
/// By key or by suffix; null when there is none.
const Format *FindFormat(QStringView name);
/// By the suffix of a name or path, for writing; null when no format has it.
const Format *FindFormatForWriting(const QString &path);
/// The suffixes by which FindFormat() finds a format, beside its key.
QStringList SuffixesNaming(const Format &format);
/// Those whose files can be opened as a list, those that a copy can be saved in, and those that a list can stay
/// bound to.
std::vector<const Format *> FormatsToOpen();
std::vector<const Format *> FormatsToSave();
std::vector<const Format *> FormatsToStayIn();
/// Name patterns of the files of a format: "*.csv", "*.tsv".
QStringList PatternsOf(const Format &format);

/// What became of reading.
struct FormatReading
{
    ReadResult result = ReadResult::CannotOpen;
    /// What it was read as; null when it was refused before that.
    const Format *format = nullptr;
    FormatLosses losses = {};

    /// Whether saving the list may overwrite the file: nothing of it would be lost.
    bool MayBeSavedOver() const;
};

/// Replaces the content of `list` by that of a file of any format; what no format recognises is read as
/// ReadWordListFile() does. The list is empty when the file is refused. A list of a format that can't hold
/// everything counts as changed.
[[nodiscard]] FormatReading ReadListFile(
    CWordList &list, const QString &path, const FormatReadOptions &options = {});
/// The same from an open device. One without random access, a pipe, is first read into memory, no more than
/// FileLimits allows.
[[nodiscard]] FormatReading ReadListDevice(
    CWordList &list, QIODevice &device, const FormatReadOptions &options = {});
[[nodiscard]] FormatReading ReadListBytes(
    CWordList &list, const QByteArray &bytes, const FormatReadOptions &options = {});

/// What ReadListFile() would read a file as; null when no format recognises it, or when it can't be opened.
const Format *RecogniseFile(const QString &path);

/// What a file says of itself, and how many entries ReadListFile() would read.
[[nodiscard]] FormatReading ReadListSummary(
    WordListSummary &summary, const QString &path, const FormatReadOptions &options = {});

/// How a separated text of this name is written: tabs in a ".tsv", commas where the suffix tells nothing.
SeparatedTextOptions SeparatedOptionsFor(const QString &path);
/// What of the list a file of the format would not have; ask before writing.
FormatLosses LossesOf(const CWordList &list, const Format &format, const FormatWriteOptions &options = {});
/// Writes the file as safely as a glossary file (see CSafeFile). Returns false when anything failed, or when
/// the format can't be written; the old file is then what it was. The list's saved mark is left alone.
[[nodiscard]] bool WriteListFile(
    const CWordList &list, const QString &path, const Format &format, const FormatWriteOptions &options = {});
/// The same to an open device.
[[nodiscard]] bool WriteListDevice(
    const CWordList &list, QIODevice &device, const Format &format, const FormatWriteOptions &options = {});
