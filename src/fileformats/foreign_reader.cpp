// SPDX-License-Identifier: MIT
#include "fileformats/foreign_reader.h"

#include "fileformats/glossary_version.h"
#include "fileformats/reading.h"
#include "fileformats/text_file_reader.h"
#include "model/term_syntax.h"
#include "platform/collation.h"

// Entries are appended without the search for similar ones: what it finds changes nothing here, and it would
// make the reading of long files quadratic.

ReadResult ReadForeignVocabulary(CWordList &list, CTextFileReader &reader, const KeepGoing *keepGoing)
{
    list.SetAuthor({});
    QString line;
    const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
    do {
        if (!reader.ReadLine(line)) {
            return ReadResult::CannotOpen;
        }
        CleanSpaces(line);
    } while (!collator.Equal(line, u"[Vocabulary]"));

    bool namesKnown = false;
    QString term1;
    QString term2;
    while (MayGoOn(list, keepGoing) && reader.ReadLine(term1)) {
        reader.ReadLine(term2);
        const qsizetype suffix = term1.lastIndexOf(u'[');
        if (suffix >= 0) {
            term1.truncate(suffix);
        }
        CleanSpaces(term1);
        CleanSpaces(term2);
        if (term1.isEmpty() && term2.isEmpty()) {
            continue;
        }
        if (namesKnown) {
            list.Insert(CWordEntry(term1, term2));
        } else {
            list.SetProperties({.language1 = term1, .language2 = term2});
            namesKnown = true;
        }
    }
    list.SetSaved(true);
    return ReadResult::Read;
}

void ReadPlainText(CWordList &list, CTextFileReader &reader, const KeepGoing *keepGoing)
{
    reader.Rewind();
    QString term1;
    QString term2;
    while (MayGoOn(list, keepGoing) && reader.ReadLine(term1) && reader.ReadLine(term2)) {
        if (!term1.isEmpty() || !term2.isEmpty()) {
            list.Insert(CWordEntry(term1, term2));
        }
    }
    list.SetLanguage(1, {});
    list.SetLanguage(0, {});
    list.SetComments({});
    list.SetAuthor({});
    list.SetSaved(false);
}

int CountPlainText(CTextFileReader &reader, const KeepGoing *keepGoing)
{
    reader.Rewind();
    return CountRecords(reader, GlossaryVersion(), keepGoing); // Terms alone, like those of no other version.
}
