// SPDX-License-Identifier: MIT
#include "fileformats/file_import.h"

#include "support/list_files.h"

namespace {

/// A list in Swedish and English.
CWordList Target(const char *entries = "a|A,b|B")
{
    CWordList list = MakeList(entries);
    list.SetProperties({.language1 = u"Svenska"_s, .language2 = u"Engelska"_s});
    return list;
}

/// The result, the entries imported and ignored, and the list.
QString Import(CFileImport &import, const QString &path)
{
    const KeepGoing keepGoing = true;
    const FileImport outcome = import.ImportFile(path, keepGoing);
    return u"%1 %2 %3: "_s.arg(int(outcome.result)).arg(outcome.importedEntries).arg(outcome.ignoredEntries)
        + Joined(import.Target());
}

}

class FileImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void position()
    {
        const CListFiles files;
        const QString file = files.AddList(u"x.gls"_s, {u"c|C|n|12"_s, u"d|D"_s});
        for (const auto &[position, first, second] :
            {std::tuple(0, "c|C|n|12,d|D,a|A,b|B", "c|C|n|12,d|D,c|C|n|12,d|D,a|A,b|B"),
                {1, "a|A,c|C|n|12,d|D,b|B", "a|A,c|C|n|12,d|D,c|C|n|12,d|D,b|B"},
                {9, "a|A,b|B,c|C|n|12,d|D", "a|A,b|B,c|C|n|12,d|D,c|C|n|12,d|D"},
                {-1, "a|A,b|B,c|C|n|12,d|D", "a|A,b|B,c|C|n|12,d|D,c|C|n|12,d|D"}}) {
            // Without the filter it has no effect.
            CFileImport import(Target(), position, {.ignoreDuplicates = true});
            QCOMPARE(Import(import, file), u"0 2 0: "_s + QLatin1StringView(first));
            QCOMPARE(Import(import, file), u"0 2 0: "_s + QLatin1StringView(second));
        }
    }

    void languages()
    {
        const struct
        {
            const char *file;
            bool crossed, hasOne, hasBoth;
        } rows[] = {
            {"svenska|ENGELSKA", false, true, true}, // the same, letter case ignored
            {"Engelska|Svenska", true, true, true},
            {"Svenska|Tyska", false, true, false},
            {"Tyska|Svenska", true, true, false}, // one of them in the other column
            {"Svenska|Svenska", true, true, false},
            {"Tyska|Franska", false, false, false},
            {"|", false, false, false},
        };
        for (const auto &row : rows) {
            const CListFiles files;
            const QString path = files.AddList(u"x.gls"_s, {u"c * d|C|n|1"_s}, QString::fromUtf8(row.file));
            const QString imported = u"0 1 0: "_s + (row.crossed ? u"C|c * d|n|1"_s : u"c * d|C|n|1"_s);
            const auto import = [&](bool useFilter, LanguageMatch match) {
                CFileImport run(Target("a|A"), 0, {.useFilter = useFilter, .languageMatch = match});
                return Import(run, path);
            };
            QCOMPARE(import(false, LanguageMatch::Both), imported + u",a|A"_s);
            QCOMPARE(import(true, LanguageMatch::Any), imported + u",a|A"_s);
            QCOMPARE(import(true, LanguageMatch::One).startsWith(imported), row.hasOne);
            QCOMPARE(import(true, LanguageMatch::Both), row.hasBoth ? imported + u",a|A"_s : u"1 0 0: a|A"_s);
        }
    }

    void filters()
    {
        using enum FileFault;
        const std::pair<WordListFilter, FileFault> rows[] = {
            {{.minimum = 2, .maximum = 2}, None}, // bounds are included
            {{.minimum = 3}, TooFew}, {{.maximum = 1}, TooMany},
            // Parts of all texts, in any case, trimmed.
            {{.author = u" åKE "_s, .comments = u"KAPITEL"_s, .languages = {u"svensk"_s, u"GELSK"_s}}, None},
            {{.author = u"*"_s}, Author}, // no wildcards
            {{.author = u"ake"_s}, Author}, // accents count
            {{.comments = u"Åke"_s}, Comments},
            {{.languages = {u"Engelska"_s, {}}}, Language1}, // languages stay in their columns
            {{.languages = {QString(), u"Svenska"_s}}, Language2},
            {{.minimum = 3, .author = u"x"_s}, TooFew}, // the number comes first
        };
        const CListFiles files;
        const QString path =
            files.AddList(u"x.gls"_s, {u"a|A"_s, u"b|B"_s}, u"Svenska|Engelska|Åke Öberg|Kapitel 3"_s);
        const KeepGoing keepGoing = true;
        for (const auto &[filter, fault] : rows) {
            CFileImport import({}, 0, {.useFilter = true, .filter = filter});
            const FileImport outcome = import.ImportFile(path, keepGoing);
            QCOMPARE(outcome.fault, fault);
            QCOMPARE(outcome.result, fault == FileFault::None ? ImportResult::Imported : ImportResult::Ignored);
            CFileImport without({}, 0, {.filter = filter});
            QCOMPARE(without.ImportFile(path, keepGoing).importedEntries, 2);
        }
    }

    void duplicatesAsByTheObviousLoop()
    {
        CRandom random(7);
        const CListFiles files;
        const auto text = [&random] { return RandomText(random, u"aAå", 2); };
        QStringList expected;
        for (int i = 0; i < 60; ++i) {
            expected.append(text() + u'|' + text() + u'x' + u'|' + text());
        }
        CWordList target = MakeList(expected);
        expected = Describe(target);
        target.SetProperties({.language1 = u"Svenska"_s, .language2 = u"Engelska"_s});
        CFileImport import(target, 5, {.useFilter = true, .ignoreDuplicates = true});
        int position = 5;
        for (int file = 0; file < 6; ++file) {
            const bool crossed = file % 2 == 1;
            QStringList entries;
            int ignored = 0;
            for (int i = 0; i < 80; ++i) {
                const QStringList terms = {text(), text() + u'x'};
                const QString note = text();
                entries.append(terms.join(u'|') + u'|' + note);
                const QString wanted =
                    Describe(MakeEntry(terms.at(crossed) + u'|' + terms.at(!crossed) + u'|' + note));
                if (expected.contains(wanted)) {
                    ++ignored;
                } else {
                    expected.insert(position++, wanted);
                }
            }
            const QString path = files.AddList(
                u"%1.gls"_s.arg(file % 4), entries, crossed ? u"Engelska|Svenska"_s : u"Svenska|Engelska"_s);
            const KeepGoing keepGoing = true;
            const FileImport outcome = import.ImportFile(path, keepGoing);
            QCOMPARE(outcome.ignoredEntries, ignored);
            QCOMPARE(outcome.importedEntries, 80 - ignored);
            QCOMPARE(Describe(import.Target()), expected);
            // Once more it brings nothing.
            QCOMPARE(import.ImportFile(path, keepGoing).ignoredEntries, 80);
        }
    }

    void badFiles()
    {
        const CListFiles files;
        const QString good = files.AddList(u"x.gls"_s, {u"c|C"_s});
        const QString plain = files.AddFile(u"x.txt"_s, "d\nD\ne");
        CFileImport import(Target("a|A"), 1, {});
        QCOMPARE(Import(import, files.Path(u"missing.gls"_s)), u"2 0 0: a|A"_s);
        QCOMPARE(Import(import, files.Path()), u"2 0 0: a|A"_s);
        QCOMPARE(Import(import, files.AddFile(u"y.gls"_s, "WordQuiz\nx")), u"2 0 0: a|A"_s);
        QCOMPARE(Import(import, plain), u"0 1 0: a|A,d|D"_s);
        const KeepGoing stopped = false;
        QCOMPARE(import.ImportFile(good, stopped).importedEntries, 0);
        QCOMPARE(Joined(import.Target()), u"a|A,d|D"_s);
    }

    void summaries()
    {
        const CListFiles files;
        // Author, comments, languages, a wrong number.
        const QByteArray header = "\nÅ\r\nc\r\n1\r\n2\r\n99\r\n";
        const QByteArray questions = "0\r\n\r\n1\r\n%word?\r\n";
        const QList<QByteArray> contents = {"Ordelin 1" + header + "\r\n!a\r\nA\r\n\r\n\r\n \r\n\r\nb",
            "Ordelin 2.0" + header + "\r\n1\r\na\r\nA\r\n0\r\n\r\n\r\n0\r\nb\r\nB",
            "Ordelin 2.3" + header + questions
                + "\r\n1 0\r\na\r\nA\r\nn\r\n0 0\r\n\r\n\r\nn\r\n0 0\r\nb\r\nB\r\n",
            "Ordelin 2.3-mini" + header + questions + "\r\na\r\nA\r\n\r\nb\r\nB\r\nn",
            "Ordelin 2.3-micro" + header + questions + "\r\na\r\nA\r\nb\r\nB\r\nc", "Ordelin 2.3-micro",
            "Ordelin 9" + header, "WordQuiz\n[Vocabulary]\n1\n2\na[x]\nA\n[x]\n\nb\n", "WordQuiz\n",
            "a\nA\n\n\nb\n\nc", "", QByteArray("\xFF\xFEO\0r\0d\0", 8)};
        for (const QByteArray &content : contents) {
            const QString path = files.AddFile(u"x"_s, content);
            CWordList list;
            WordListSummary summary;
            QCOMPARE(ReadWordListSummary(summary, path), ReadWordListFile(list, path));
            QCOMPARE(summary.entries, list.Count());
            QCOMPARE(summary.author, list.GetAuthor());
            QCOMPARE(summary.comments, list.GetComments());
            QCOMPARE(summary.languages[0] + u'|' + summary.languages[1],
                list.GetLanguage(0) + u'|' + list.GetLanguage(1));
        }
        WordListSummary summary;
        QCOMPARE(ReadWordListSummary(summary, files.Path()), ReadResult::CannotOpen);
    }
};

QTEST_GUILESS_MAIN(FileImportTest)
#include "file_import_test.moc"
