// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"

#include "fileformats/anki_text.h"
#include "fileformats/dictionary_format.h"
#include "fileformats/kvtml.h"
#include "fileformats/plain_formats.h"
#include "fileformats/separated_text.h"
#include "fileformats/separated_text_guess.h"
#include "fileformats/text_detection.h"
#include "fileformats/word_list_filter.h"
#include "model/word_list.h"
#include "platform/regular_file.h"
#include "platform/safe_file.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <functional>
#include <new>
#include <vector>

namespace {

constexpr std::array GlossarySuffixes = {QLatin1StringView("gls")};
constexpr std::array KvtmlSuffixes = {QLatin1StringView("kvtml")};
constexpr std::array DictionarySuffixes = {
    QLatin1StringView("index"), QLatin1StringView("dict"), QLatin1StringView("dz")};
constexpr std::array SeparatedTextSuffixes = {
    QLatin1StringView("csv"), QLatin1StringView("tsv"), QLatin1StringView("tab"), QLatin1StringView("psv")};
constexpr std::array PlainTextSuffixes = {QLatin1StringView("txt")};

constexpr std::array Table = {
    Format{.id = FormatId::Glossary,
        .key = QLatin1StringView("glossary"),
        .name = Text::FormatGlossary,
        .suffixes = GlossarySuffixes,
        .holdsEverything = true,
        .recognises = GlossaryFormat::Recognises,
        .read = GlossaryFormat::Read,
        .count = GlossaryFormat::Count,
        .write = GlossaryFormat::Write},
    Format{.id = FormatId::WordQuiz,
        .key = QLatin1StringView("wordquiz"),
        .name = Text::FormatWordQuiz,
        .suffixes = {},
        .recognises = WordQuizFormat::Recognises,
        .read = WordQuizFormat::Read},
    Format{.id = FormatId::Kvtml,
        .key = QLatin1StringView("kvtml"),
        .name = Text::FormatKvtml,
        .suffixes = KvtmlSuffixes,
        .recognises = KvtmlFormat::Recognises,
        .read = KvtmlFormat::Read,
        .count = KvtmlFormat::Count,
        .write = KvtmlFormat::Write},
    Format{.id = FormatId::Dictionary,
        .key = QLatin1StringView("dictionary"),
        .name = Text::FormatDictionary,
        .suffixes = DictionarySuffixes,
        .isWordList = false,
        .recognises = DictionaryFormat::Recognises,
        .read = DictionaryFormat::Read},
    Format{.id = FormatId::AnkiText,
        .key = QLatin1StringView("anki"),
        .name = Text::FormatAnkiText,
        .suffixes = PlainTextSuffixes,
        .recognises = AnkiTextFormat::Recognises,
        .read = AnkiTextFormat::Read,
        .count = AnkiTextFormat::Count,
        .write = AnkiTextFormat::Write},
    Format{.id = FormatId::SeparatedText,
        .key = QLatin1StringView("separated"),
        .name = Text::FormatSeparatedText,
        .suffixes = SeparatedTextSuffixes,
        .recognises = SeparatedTextFormat::Recognises,
        .read = SeparatedTextFormat::Read,
        .count = SeparatedTextFormat::Count,
        .write = SeparatedTextFormat::Write},
    Format{.id = FormatId::PlainText,
        .key = QLatin1StringView("text"),
        .name = Text::FormatPlainText,
        .suffixes = PlainTextSuffixes,
        .recognises = PlainTextFormat::Recognises,
        .read = PlainTextFormat::Read,
        .count = PlainTextFormat::Count,
        .write = PlainTextFormat::Write},
};

template<class Condition>
std::vector<const Format *> FormatsThat(Condition condition)
{
    std::vector<const Format *> formats;
    for (const Format &format : Table) {
        if (std::invoke(condition, format)) {
            formats.push_back(&format);
        }
    }
    return formats;
}

QString SuffixOf(const QString &path)
{
    return QFileInfo(path).suffix().toLower();
}

/// The start of a source, which is back at its start afterwards.
QByteArray HeadOf(QIODevice &device)
{
    device.seek(0);
    QByteArray head = device.read(FormatSample::SampleSize);
    device.seek(0);
    return head;
}

const Format *Recognise(FormatSource &source, const QByteArray &head)
{
    const FormatSample sample = {
        .head = head, .isWhole = head.size() >= source.device.size(), .suffix = SuffixOf(source.path)};
    const auto *const found = std::ranges::find_if(Table, [&](const Format &format) {
        return format.recognises != nullptr && format.recognises(sample, source);
    });
    source.device.seek(0);
    return found == Table.end() ? nullptr : &*found;
}

/// What a file was that no row recognised, after it was read.
const Format *FormatAsBefore(ReadResult result)
{
    return result == ReadResult::PlainText ? &FormatOf(FormatId::PlainText) : nullptr;
}

ReadResult ReadAs(const Format &format, CWordList &list, FormatSource &source, const FormatReadOptions &options,
    CLossCounter &losses)
{
    if (!format.CanRead()) {
        return ReadResult::CannotOpen;
    }
    if (format.isWordList && source.device.size() > FileLimits::MostBytes) {
        return ReadResult::TooLarge;
    }
    const ReadResult result = format.read(list, source, options, losses);
    return list.Count() > FileLimits::MostEntries ? ReadResult::TooLarge : result;
}

/// Whether a file of the format may become that of a list which was read from it.
bool MayHaveList(const Format &format)
{
    // Kept: a WordQuiz file becomes a glossary file when its list is saved.
    return format.holdsEverything || format.id == FormatId::WordQuiz;
}

FormatReading Read(CWordList &list, FormatSource &source, const FormatReadOptions &options)
{
    FormatReading reading;
    CLossCounter losses;
    list.Reset();
    try {
        const QByteArray head = HeadOf(source.device);
        reading.format = options.format != nullptr ? options.format : Recognise(source, head);
        if (reading.format != nullptr) {
            reading.result = ReadAs(*reading.format, list, source, options, losses);
        } else if (LooksBinary(head)) {
            reading.result = ReadResult::Binary;
        } else {
            reading.result = ReadWordList(list, source.device, options.keepGoing);
            reading.format = FormatAsBefore(reading.result);
        }
    } catch (const std::bad_alloc &) {
        reading.result = ReadResult::TooLarge;
    }
    if (IsRefused(reading.result)) {
        list.Reset();
        return reading;
    }
    if (reading.format != nullptr && !MayHaveList(*reading.format)) {
        list.SetSaved(false);
    }
    reading.losses = losses.Losses();
    return reading;
}

/// Takes all that a device without random access gives, unless it fails or that is too much.
ReadResult ReadToEnd(QIODevice &device, QByteArray &bytes)
{
    std::vector<char> piece(size_t(1024) * 1024);
    while (true) {
        const qint64 read = device.read(piece.data(), qint64(piece.size()));
        if (read < 0) {
            return device.atEnd() ? ReadResult::Read : ReadResult::CannotOpen;
        }
        if (read == 0 && !device.waitForReadyRead(-1)) {
            return ReadResult::Read;
        }
        if (read > FileLimits::MostBytes - bytes.size()) {
            return ReadResult::TooLarge;
        }
        bytes.append(piece.data(), read);
    }
}

}

std::span<const Format> Formats()
{
    return Table;
}

const Format &FormatOf(FormatId id)
{
    return *std::ranges::find(Table, id, &Format::id);
}

const Format *FindFormat(QStringView key)
{
    const auto *const found =
        std::ranges::find_if(Table, [key](const Format &format) { return format.key == key; });
    return found == Table.end() ? nullptr : &*found;
}

const Format *FindFormatForWriting(const QString &path)
{
    const QString suffix = SuffixOf(path);
    // From the end: a special format may share the suffix of a general one.
    const auto found = std::find_if(Table.rbegin(), Table.rend(), [&suffix](const Format &format) {
        return format.CanWrite()
            && std::ranges::any_of(format.suffixes, [&suffix](QLatin1StringView own) { return own == suffix; });
    });
    return found == Table.rend() ? nullptr : &*found;
}

std::vector<const Format *> FormatsToOpen()
{
    return FormatsThat([](const Format &format) { return format.CanRead() && format.isWordList; });
}

std::vector<const Format *> FormatsToSave()
{
    return FormatsThat(&Format::CanWrite);
}

std::vector<const Format *> FormatsToStayIn()
{
    return FormatsThat([](const Format &format) { return format.CanWrite() && format.holdsEverything; });
}

QStringList PatternsOf(const Format &format)
{
    QStringList patterns;
    for (const QLatin1StringView suffix : format.suffixes) {
        patterns.append(QStringLiteral("*.") + suffix);
    }
    return patterns;
}

bool FormatReading::MayBeSavedOver() const
{
    return (result == ReadResult::Read || result == ReadResult::ReadLossy) && format != nullptr
        && MayHaveList(*format);
}

FormatReading ReadListFile(CWordList &list, const QString &path, const FormatReadOptions &options)
{
    QFile file;
    if (!OpenRegularFile(file, path)) {
        list.Reset();
        return {};
    }
    FormatSource source = {.device = file, .path = path};
    return Read(list, source, options);
}

FormatReading ReadListDevice(CWordList &list, QIODevice &device, const FormatReadOptions &options)
{
    if (!device.isSequential()) {
        FormatSource source = {.device = device};
        return Read(list, source, options);
    }
    QByteArray bytes;
    const ReadResult result = ReadToEnd(device, bytes);
    if (IsRefused(result)) {
        list.Reset();
        return {.result = result};
    }
    return ReadListBytes(list, bytes, options);
}

FormatReading ReadListBytes(CWordList &list, const QByteArray &bytes, const FormatReadOptions &options)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    FormatSource source = {.device = buffer};
    return Read(list, source, options);
}

const Format *RecogniseFile(const QString &path)
{
    QFile file;
    if (!OpenRegularFile(file, path)) {
        return nullptr;
    }
    FormatSource source = {.device = file, .path = path};
    return Recognise(source, HeadOf(file));
}

FormatReading ReadListSummary(WordListSummary &summary, const QString &path, const FormatReadOptions &options)
{
    summary = {};
    QFile file;
    if (!OpenRegularFile(file, path)) {
        return {};
    }
    FormatSource source = {.device = file, .path = path};
    const QByteArray head = HeadOf(file);
    const Format *const format = options.format != nullptr ? options.format : Recognise(source, head);
    if (format == nullptr ? !LooksBinary(head) : format->id == FormatId::Glossary) {
        // Counted without being kept.
        const ReadResult result = ReadWordListSummary(summary, path, options.keepGoing);
        return {.result = result, .format = format != nullptr ? format : FormatAsBefore(result)};
    }
    CWordList list;
    FormatReading reading = Read(list, source, options);
    summary = WordListSummary::Of(list);
    return reading;
}

SeparatedTextOptions SeparatedOptionsFor(const QString &path)
{
    SeparatedTextOptions options;
    if (const char16_t separator = SeparatorOfSuffix(SuffixOf(path)); separator != 0) {
        options.separator = separator;
    }
    return options;
}

FormatLosses LossesOf(const CWordList &list, const Format &format, const FormatWriteOptions &options)
{
    CLossCounter losses;
    if (format.count != nullptr) {
        format.count(list, options, losses);
    }
    return losses.Losses();
}

bool WriteListFile(
    const CWordList &list, const QString &path, const Format &format, const FormatWriteOptions &options)
{
    FormatWriteOptions complete = options;
    if (!complete.separated) {
        complete.separated = SeparatedOptionsFor(path);
    }
    CSafeFile file;
    if (!format.CanWrite() || !file.Open(path, options.file.backupFolder)) {
        return false;
    }
    if (!format.write(list, file.Device(), complete)) {
        file.Cancel();
        return false;
    }
    return file.Commit();
}

bool WriteListDevice(
    const CWordList &list, QIODevice &device, const Format &format, const FormatWriteOptions &options)
{
    return format.CanWrite() && format.write(list, device, options);
}
