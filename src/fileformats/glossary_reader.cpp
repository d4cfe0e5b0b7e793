// SPDX-License-Identifier: MIT
#include "fileformats/glossary_reader.h"

#include "fileformats/text_file_reader.h"
#include "model/term_syntax.h"
#include "model/word_list.h"

#include <algorithm>
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

void ReadHeader(CWordList &list, CTextFileReader &reader, const GlossaryVersion &version)
{
    list.SetAuthor(HeaderLine(reader));
    list.SetComments(HeaderLine(reader));
    list.SetLanguage(0, HeaderLine(reader));
    list.SetLanguage(1, HeaderLine(reader));
    // The count only reserves room, and no more than a file of this size can fill.
    const qint64 count = std::atoll(NarrowHeaderLine(reader).constData());
    list.Reserve(int(std::clamp<qint64>(count, 0, reader.Size() / 2)));
    if (version.hasQuestions) {
        for (const int direction : {0, 1}) {
            const QByteArray mark = NarrowHeaderLine(reader);
            list.SetQuestionTemplate(direction, HeaderLine(reader));
            list.SetAdaptQuestion(direction, !mark.isEmpty() && mark.front() != '0');
        }
    }
    HeaderLine(reader); // The empty line between header and records.
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
    ReadHeader(list, reader, version);
    while (keepGoing == nullptr || *keepGoing) {
        QString flags;
        QString term1;
        QString term2;
        QString note;
        if ((version.hasFlagLine && !reader.ReadLine(flags)) || !reader.ReadLine(term1)
            || !reader.ReadLine(term2) || (version.hasNote && !reader.ReadLine(note))) {
            break;
        }
        if (term1.isEmpty() && term2.isEmpty()) {
            continue;
        }
        QString flag1;
        QString flag2;
        NextToken(flags, flag1, u' ');
        NextToken(flags, flag2, u' ');
        bool marked = false;
        if (version.hasFlagMark) {
            marked = TakeFlagMark(term1);
            marked = TakeFlagMark(term2) || marked;
        }
        list.Insert(CWordEntry(
            std::move(term1), std::move(term2), std::move(note), marked || IsSet(flag1), IsSet(flag2)));
    }
    list.SetSaved(true);
}
