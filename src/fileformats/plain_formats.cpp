// SPDX-License-Identifier: MIT
#include "fileformats/plain_formats.h"

#include "fileformats/foreign_reader.h"
#include "fileformats/glossary_version.h"
#include "fileformats/reading.h"
#include "fileformats/text_detection.h"
#include "fileformats/text_file_reader.h"
#include "fileformats/text_output.h"
#include "model/word_list.h"

#include <algorithm>

namespace {

QString FirstLineOf(const FormatSample &sample)
{
    constexpr qsizetype Enough = 200; // Bytes; no first line that says the format is longer.
    QString text = DecodeHead(sample.head.first(std::min(Enough, sample.head.size())));
    const auto end = std::ranges::find_if(text, [](QChar unit) { return unit == u'\n' || unit == u'\r'; });
    text.truncate(end - text.begin());
    return text;
}

void Open(CTextFileReader &reader, FormatSource &source, const KeepGoing *keepGoing)
{
    if (IsUnmarkedUtf8(source.device, keepGoing)) {
        reader.OpenUtf8(source.device);
    } else {
        reader.Open(source.device);
    }
}

/// Calls `visit` with each term that a plain text gets, empty ones too.
template<class Visit>
void ForEachLine(const CWordEntry &entry, PlainTextTerms terms, Visit visit)
{
    if (terms != PlainTextTerms::Term2) {
        visit(entry.GetText(0));
    }
    if (terms != PlainTextTerms::Term1) {
        visit(entry.GetText(1));
    }
}

/// Whether anything is written of an entry. A pair of lines may have an empty one, a line alone not.
bool IsWritten(const CWordEntry &entry, PlainTextTerms terms)
{
    bool any = false;
    ForEachLine(entry, terms, [&any](const QString &term) { any = any || !term.isEmpty(); });
    return any;
}

}

void CountProperties(const CWordList &list, bool holdsAuthor, bool holdsComments, CLossCounter &losses)
{
    for (const int direction : {0, 1}) {
        losses.Add(LossKind::QuestionTemplates, int(!list.GetQuestionTemplate(direction).isEmpty()));
    }
    losses.Add(LossKind::Author, int(!holdsAuthor && !list.GetAuthor().isEmpty()));
    losses.Add(LossKind::Comments, int(!holdsComments && !list.GetComments().isEmpty()));
}

bool GlossaryFormat::Recognises(const FormatSample &sample, FormatSource & /*source*/)
{
    return FirstLineOf(sample).startsWith(Glossary::ProgramName);
}

ReadResult GlossaryFormat::Read(
    CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter & /*losses*/)
{
    return ReadWordList(list, source.device, options.keepGoing);
}

void GlossaryFormat::Count(const CWordList &list, const FormatWriteOptions & /*options*/, CLossCounter &losses)
{
    losses.Add(LossKind::EntriesWithoutTerms, list.CountWithoutTerms());
}

bool GlossaryFormat::Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options)
{
    CWordList copy = list; // Writing marks it saved.
    return WriteWordList(copy, device, options.file);
}

bool WordQuizFormat::Recognises(const FormatSample &sample, FormatSource & /*source*/)
{
    return FirstLineOf(sample) == ForeignHeader;
}

ReadResult WordQuizFormat::Read(
    CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter & /*losses*/)
{
    CTextFileReader reader;
    Open(reader, source, options.keepGoing);
    QString header;
    reader.ReadLine(header);
    if (header != ForeignHeader) {
        return ReadResult::Damaged;
    }
    const ReadResult result = ReadForeignVocabulary(list, reader, options.keepGoing);
    return FailureOf(reader, list.Count()).value_or(result);
}

bool PlainTextFormat::Recognises(const FormatSample &sample, FormatSource &source)
{
    // What is too large to be read is not looked through either.
    return source.device.size() <= FileLimits::MostBytes && !LooksBinary(sample.head)
        && IsUnmarkedUtf8(source.device);
}

ReadResult PlainTextFormat::Read(
    CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter & /*losses*/)
{
    CTextFileReader reader;
    Open(reader, source, options.keepGoing);
    ReadPlainText(list, reader, options.keepGoing);
    return FailureOf(reader, list.Count()).value_or(ReadResult::PlainText);
}

void PlainTextFormat::Count(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses)
{
    list.ForEach([&](int, const CWordEntry &entry) {
        const bool isWritten = IsWritten(entry, options.plainText);
        losses.Add(LossKind::EntriesWithoutTerms, int(!isWritten));
        losses.Add(LossKind::Notes, int(entry.HasNote()));
        losses.Add(LossKind::Flags, int(entry.GetFlag(0)) + int(entry.GetFlag(1)));
        if (options.plainText != PlainTextTerms::Both) {
            losses.Add(LossKind::Terms, int(!entry.GetText(2 - int(options.plainText)).isEmpty()));
        }
        ForEachLine(entry, options.plainText, [&losses](const QString &term) {
            losses.Add(LossKind::Characters, int(!CanBeWritten(term, TextEncoding::Utf8)));
        });
    });
    CountProperties(list, false, false, losses);
    for (const int language : {0, 1}) {
        losses.Add(LossKind::Languages, int(!list.GetLanguage(language).isEmpty()));
    }
}

bool PlainTextFormat::Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options)
{
    // Without a mark: with one, what is beyond U+FFFF is not read back.
    CTextOutput output(device, TextEncoding::Utf8, false);
    list.ForEach([&](int, const CWordEntry &entry) {
        if (IsWritten(entry, options.plainText)) {
            ForEachLine(entry, options.plainText, [&output](const QString &term) {
                output.Write(term);
                output.Write(u"\r\n");
            });
        }
    });
    return output.Finish();
}
