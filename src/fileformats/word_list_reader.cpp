// SPDX-License-Identifier: MIT
#include "fileformats/foreign_reader.h"
#include "fileformats/glossary_reader.h"
#include "fileformats/glossary_version.h"
#include "fileformats/reading.h"
#include "fileformats/text_file_reader.h"
#include "fileformats/word_list_file.h"
#include "fileformats/word_list_filter.h"
#include "model/word_list.h"

#include <algorithm>
#include <new>

namespace {

/// What is read of a file: all of it, or its properties and the number of its entries.
struct Reading
{
    CWordList &list;
    const KeepGoing *keepGoing;
    bool countsOnly = false;
    int count = 0; ///< Only where entries are not kept.

    int Entries() const { return std::max(count, list.Count()); }
};

void ReadBody(Reading &reading, CTextFileReader &reader, const GlossaryVersion &version)
{
    if (reading.countsOnly) {
        reading.count = CountGlossaryBody(reading.list, reader, version, reading.keepGoing);
    } else {
        ReadGlossaryBody(reading.list, reader, version, reading.keepGoing);
    }
}

/// The first line decides who reads the rest.
ReadResult Dispatch(Reading &reading, CTextFileReader &reader)
{
    QString header;
    reader.ReadLine(header);
    const auto *const version = std::ranges::find(Glossary::Versions, header, &GlossaryVersion::header);
    if (version != Glossary::Versions.end()) {
        ReadBody(reading, reader, *version);
        return reader.Lossy() ? ReadResult::ReadLossy : ReadResult::Read;
    }
    if (header.startsWith(Glossary::ProgramName)) {
        ReadBody(reading, reader, Glossary::Version23);
        return ReadResult::NewerVersion;
    }
    if (header == ForeignHeader) {
        return ReadForeignVocabulary(reading.list, reader, reading.keepGoing);
    }
    if (reading.countsOnly) {
        reading.count = CountPlainText(reader, reading.keepGoing);
    } else {
        ReadPlainText(reading.list, reader, reading.keepGoing);
    }
    return ReadResult::PlainText;
}

/// Half a file is not taken for a whole one: saving it would lose the rest.
ReadResult ReadAll(Reading &reading, CTextFileReader &reader)
{
    ReadResult result = ReadResult::TooLarge;
    if (reader.Size() <= FileLimits::MostBytes) {
        try {
            result = Dispatch(reading, reader);
            result = FailureOf(reader, reading.Entries()).value_or(result);
        } catch (const std::bad_alloc &) {
            result = ReadResult::TooLarge;
        }
    }
    if (IsRefused(result)) {
        reading.list.Reset();
    }
    return result;
}

}

ReadResult ReadWordListFile(CWordList &list, const QString &path, const KeepGoing *keepGoing)
{
    list.Reset();
    CTextFileReader reader;
    Reading reading{.list = list, .keepGoing = keepGoing};
    return reader.Open(path) ? ReadAll(reading, reader) : ReadResult::CannotOpen;
}

ReadResult ReadWordList(CWordList &list, QIODevice &device, const KeepGoing *keepGoing)
{
    list.Reset();
    CTextFileReader reader;
    reader.Open(device);
    Reading reading{.list = list, .keepGoing = keepGoing};
    return ReadAll(reading, reader);
}

ReadResult ReadWordListSummary(WordListSummary &summary, const QString &path, const KeepGoing *keepGoing)
{
    CWordList list;
    CTextFileReader reader;
    Reading reading{.list = list, .keepGoing = keepGoing, .countsOnly = true};
    const ReadResult result = reader.Open(path) ? ReadAll(reading, reader) : ReadResult::CannotOpen;
    summary = WordListSummary::Of(list);
    summary.entries = IsRefused(result) ? 0 : reading.Entries();
    return result;
}
