// SPDX-License-Identifier: MIT
#include "fileformats/foreign_reader.h"
#include "fileformats/glossary_reader.h"
#include "fileformats/glossary_version.h"
#include "fileformats/text_file_reader.h"
#include "fileformats/word_list_file.h"
#include "model/word_list.h"

#include <algorithm>
#include <new>
#include <optional>

namespace {

/// The first line decides who reads the rest.
ReadResult Dispatch(CWordList &list, CTextFileReader &reader, const KeepGoing *keepGoing)
{
    QString header;
    reader.ReadLine(header);
    const auto *const version = std::ranges::find(Glossary::Versions, header, &GlossaryVersion::header);
    if (version != Glossary::Versions.end()) {
        ReadGlossaryBody(list, reader, *version, keepGoing);
        return reader.Lossy() ? ReadResult::ReadLossy : ReadResult::Read;
    }
    if (header.startsWith(Glossary::ProgramName)) {
        ReadGlossaryBody(list, reader, Glossary::Version23, keepGoing);
        return ReadResult::NewerVersion;
    }
    if (header == ForeignHeader) {
        return ReadForeignVocabulary(list, reader, keepGoing);
    }
    ReadPlainText(list, reader, keepGoing);
    return ReadResult::PlainText;
}

/// What became of the reading when it did not reach the end.
std::optional<ReadResult> Failure(const CWordList &list, const CTextFileReader &reader)
{
    if (reader.Failed()) {
        return ReadResult::CannotOpen;
    }
    if (reader.LineTooLong()) {
        return ReadResult::LineTooLong;
    }
    if (list.Count() > FileLimits::MostEntries) {
        return ReadResult::TooLarge;
    }
    return std::nullopt;
}

/// Half a file is not taken for a whole one: saving it would lose the rest.
ReadResult ReadAll(CWordList &list, CTextFileReader &reader, const KeepGoing *keepGoing)
{
    ReadResult result = ReadResult::TooLarge;
    if (reader.Size() <= FileLimits::MostBytes) {
        try {
            result = Dispatch(list, reader, keepGoing);
            result = Failure(list, reader).value_or(result);
        } catch (const std::bad_alloc &) {
            result = ReadResult::TooLarge;
        }
    }
    if (IsRefused(result)) {
        list.Reset();
    }
    return result;
}

}

ReadResult ReadWordListFile(CWordList &list, const QString &path, const KeepGoing *keepGoing)
{
    list.Reset();
    CTextFileReader reader;
    return reader.Open(path) ? ReadAll(list, reader, keepGoing) : ReadResult::CannotOpen;
}

ReadResult ReadWordList(CWordList &list, QIODevice &device, const KeepGoing *keepGoing)
{
    list.Reset();
    CTextFileReader reader;
    reader.Open(device);
    return ReadAll(list, reader, keepGoing);
}
