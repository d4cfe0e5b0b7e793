// SPDX-License-Identifier: MIT
#include "tools/file_search.h"

#include "support/list_files.h"
#include "support/test_document.h"
#include "tools/file_patterns.h"

#include <sys/stat.h>

namespace {

struct Search
{
    TestDocument test;
    CListFiles files;
    std::unique_ptr<CFileSearch> search =
        std::make_unique<CFileSearch>(test.allSettings.filesearch, test.texts, test.prompt);

    Search() { search->values.path = files.Path(); }
    /// The paths found, below the folder, with commas between them.
    QString Run(const QString &fileType = {})
    {
        search->values.filetype = fileType;
        QSignalSpy ended(search.get(), &CFileSearch::Ended);
        if (search->Start() && ended.count() == 0) {
            ended.wait(60000);
        }
        return Found();
    }
    QString Found() const
    {
        QStringList paths;
        for (int row = 0; row < search->Found().rowCount(); ++row) {
            paths.append(search->Found().FileOf(row).path.mid(files.Path().size() + 1));
        }
        return paths.join(u',');
    }
};

}

class FileSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void patterns()
    {
        const auto match = [](const char *patterns, const char *name) {
            return CFilePatterns(QString::fromUtf8(patterns)).Match(QString::fromUtf8(name));
        };
        QVERIFY(match("", "a.GLS") && match(" ; ", "a.gls") && !match("", "a.gls~") && !match("", "agls"));
        QVERIFY(match("*.txt; *.GLS", "Å.gls") && match("*.*", "none") && match("*", ""));
        QVERIFY(match("Å?B*c*.g", "åxbcxc.g") && !match("a?b", "ab") && !match("[ab].gls", "a.gls"));
        QVERIFY(!match("*a*a*a*a*a*a*a*b", QByteArray(3000, 'a')));
        const CFilePatterns both(u"*.gls;a*"_s);
        QVERIFY(both.MatchAsGlossaryOnly(u"b.gls") && !both.MatchAsGlossaryOnly(u"a.gls"));
    }

    void aTreeWithEverythingOdd()
    {
        Search run;
        const QString list = run.files.AddList(u"b.gls"_s, {u"c|C"_s});
        run.files.AddFile(u"plain.gls"_s, "a\nb\n");
        run.files.AddFile(u"plain.txt"_s, "a\nb\n");
        run.files.AddFile(u"foreign.txt"_s, "WordQuiz\n[Vocabulary]\n1\n2\na\nb\n");
        run.files.AddFile(u"not.gls"_s, "WordQuiz\n");
        run.files.AddFile(u"empty.gls"_s, {});
        run.files.AddFile(QFile::decodeName("no ending"), "Ordelin 2.3-micro\n");
        run.files.AddList(u"sub/.hidden/x.gls"_s, {});
        QVERIFY(QDir().mkpath(run.files.Path(u"folder.gls"_s)));
        QCOMPARE(::mkfifo(qPrintable(run.files.Path(u"pipe.gls"_s)), 0600), 0);
        QVERIFY(QFile::link(list, run.files.Path(u"sub/link.gls"_s)));
        QVERIFY(QFile::link(run.files.Path(), run.files.Path(u"a"_s)));
        QVERIFY(QFile::link(run.files.Path(u"gone"_s), run.files.Path(u"broken.gls"_s)));
        // Glossary files of every kind; of the others only what is no plain text.
        QCOMPARE(run.Run(), u"b.gls,sub/link.gls,sub/.hidden/x.gls"_s);
        QCOMPARE(run.search->CountLine(), u"3 filer hittade. Filer och mappar som inte kunde läsas: 3."_s);
        QCOMPARE(run.Run(u"*.txt;*.gls"_s), u"b.gls,foreign.txt,plain.txt,sub/link.gls,sub/.hidden/x.gls"_s);
        run.search->values.searchSubDirectories = false;
        QCOMPARE(run.Run(u"*.*"_s), u"b.gls,empty.gls,foreign.txt,no ending,plain.gls,plain.txt"_s);
        QVERIFY(!run.test.allSettings.filesearch.searchSubDirectories);
        // No folder: told, and what was found stays.
        run.search->values.path = list;
        QCOMPARE(run.Run().count(u','), 5);
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::FolderMissing});
        QCOMPARE(run.test.allSettings.filesearch.path, run.files.Path());
    }

    void whatIsShown()
    {
        Search run;
        run.files.AddList(u"a.gls"_s, ManyEntries(u"x"_s, 9), u"Tyska|A|Å|"_s + QString(5000, u'x'));
        run.files.AddList(u"b.gls"_s, ManyEntries(u"x"_s, 10), u"tyska|B|Ä"_s);
        run.files.AddList(u"c.gls"_s, {}, u"Engelska|C|B"_s);
        run.Run();
        CFoundFilesOrder &found = run.search->Found();
        const auto cell = [&](int row, int column) { return found.index(row, column).data().toString(); };
        QCOMPARE(cell(0, CFoundFilesModel::Languages), u"Tyska - A"_s);
        QCOMPARE(cell(0, CFoundFilesModel::Comments).size(), 1000);
        QCOMPARE(cell(1, CFoundFilesModel::Path), run.files.Path(u"b.gls"_s));
        QVERIFY(!cell(1, CFoundFilesModel::Date).isEmpty());
        for (const int column :
            {CFoundFilesModel::Author, CFoundFilesModel::Entries, CFoundFilesModel::Languages}) {
            found.sort(column);
            QCOMPARE(run.Found(), u"c.gls,a.gls,b.gls"_s);
        }
        found.sort(CFoundFilesModel::Entries, Qt::DescendingOrder);
        QCOMPARE(run.Found(), u"b.gls,a.gls,c.gls"_s);
        found.sort(-1);
        QCOMPARE(run.Found(), u"a.gls,b.gls,c.gls"_s);
    }

    void filters()
    {
        Search run;
        run.files.AddList(u"a.gls"_s, {u"c|C"_s}, u"Svenska|Tyska|Åke|Kapitel"_s);
        run.files.AddList(u"b.gls"_s, ManyEntries(u"x"_s, 3), u"Tyska|Svenska"_s);
        FileSearchSettings &values = run.search->values;
        values.lang1 = u" svensk "_s;
        QCOMPARE(run.Run(), u"a.gls,b.gls"_s);
        values.useFilter = true;
        QCOMPARE(run.Run(), u"a.gls"_s);
        values.lang1.clear();
        values.useMiniValue = true;
        values.miniValue = 2;
        QCOMPARE(run.Run(), u"b.gls"_s);
        values.useMaxValue = true;
        values.maxValue = 2;
        QCOMPARE(run.Run(), QString());
    }

    void stopped()
    {
        Search run;
        for (int i = 0; i < 50; ++i) {
            run.files.AddList(u"%1/x.gls"_s.arg(i), ManyEntries(u"x"_s, 1000));
        }
        QVERIFY(run.search->Start());
        QVERIFY(run.search->IsSearching() && !run.search->FolderLine().isEmpty());
        run.search->Stop();
        QVERIFY(!run.search->IsSearching() && run.search->FolderLine().isEmpty());
        QCOMPARE(run.Run().count(u','), 49);
        QVERIFY(run.search->Start());
        run.search.reset();
    }
};

QTEST_GUILESS_MAIN(FileSearchTest)
#include "file_search_test.moc"
