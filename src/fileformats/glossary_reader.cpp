// SPDX-License-Identifier: MIT
#include "fileformats/glossary_reader.h"

#include "fileformats/reading.h"
#include "fileformats/text_file_reader.h"
#include "model/term_syntax.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

QString HeaderLine(CTextFileReader &reader)
{
    QString line;
    reader.ReadLine(line);
    return line;
}

QByteArray NarrowHeaderLine(CTextFileReader &reader)
{
    QByteArray line;
    reader.ReadNarrowLine(line);
    return line;
}

/// Anything but an empty text and one that begins with "0" is a set mark.
bool IsSet(QStringView mark)
{
    return !mark.isEmpty() && mark.front() != u'0';
}

/// Returns how many entries the header tells of; any number may stand there.
qint64 ReadHeader(CWordList &list, CTextFileReader &reader, const GlossaryVersion &version)
{
    list.SetAuthor(HeaderLine(reader));
    list.SetComments(HeaderLine(reader));
    list.SetLanguage(0, HeaderLine(reader));
    list.SetLanguage(1, HeaderLine(reader));
    const qint64 count = std::atoll(NarrowHeaderLine(reader).constData());
    if (version.hasQuestions) {
        for (const int direction : {0, 1}) {
            const QByteArray mark = NarrowHeaderLine(reader);
            list.SetQuestionTemplate(direction, HeaderLine(reader));
            list.SetAdaptQuestion(direction, !mark.isEmpty() && mark.front() != '0');
        }
    }
    HeaderLine(reader); // The empty line between header and records.
    return count;
}

/// The two marks of a flag line.
std::array<bool, 2> FlagsOf(QStringView line)
{
    std::array<bool, 2> flags = {};
    for (bool &flag : flags) {
        QStringView mark;
        NextToken(line, mark, u' ');
        flag = IsSet(mark);
    }
    return flags;
}

/// Takes the flag mark of version 1 off a term.
bool TakeFlagMark(QString &term)
{
    if (!term.startsWith(u'!')) {
        return false;
    }
    term[0] = u' ';
    return true;
}

}

void ReadGlossaryBody(
    CWordList &list, CTextFileReader &reader, const GlossaryVersion &version, const KeepGoing *keepGoing)
{
    const qint64 count = ReadHeader(list, reader, version);
    // It only reserves room, and no more than a file of this size can fill.
    list.Reserve(int(std::clamp<qint64>(count, 0, reader.Size() / 2)));
    while (MayGoOn(list, keepGoing)) {
        QStringView line;
        std::array<bool, 2> flags = {};
        if (version.hasFlagLine) {
            if (!reader.ReadLine(line)) {
                break;
            }
            flags = FlagsOf(line);
        }
        QString term1;
        QString term2;
        QString note;
        if (!reader.ReadLine(term1) || !reader.ReadLine(term2) || (version.hasNote && !reader.ReadLine(note))) {
            break;
        }
        if (term1.isEmpty() && term2.isEmpty()) {
            continue;
        }
        if (version.hasFlagMark) {
            const bool marked = TakeFlagMark(term1);
            flags[0] = TakeFlagMark(term2) || marked;
        }
        list.Insert(CWordEntry(std::move(term1), std::move(term2), std::move(note), flags[0], flags[1]));
    }
    list.SetSaved(true);
}

int CountGlossaryBody(
    CWordList &list, CTextFileReader &reader, const GlossaryVersion &version, const KeepGoing *keepGoing)
{
    ReadHeader(list, reader, version);
    return CountRecords(reader, version, keepGoing);
}
