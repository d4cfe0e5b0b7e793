// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"
#include "fileformats/text_detection.h"
#include "fileformats/word_list_filter.h"
#include "model/word_list.h"
#include "platform/regular_file.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <new>
#include <vector>

namespace {

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
    const FormatSample sample = {.head = head,
        .isWhole = head.size() >= source.device.size(),
        .suffix = QFileInfo(source.path).suffix().toLower()};
    const auto found = std::ranges::find_if(Formats(), [&](const Format &format) {
        return format.recognises != nullptr && format.recognises(sample, source);
    });
    source.device.seek(0);
    return found == Formats().end() ? nullptr : &*found;
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
