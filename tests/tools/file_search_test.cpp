// SPDX-License-Identifier: MIT
#include "tools/file_search.h"

#include "support/list_files.h"
#include "support/test_document.h"
#include "tools/file_patterns.h"

#include <QSignalSpy>
#include <QTest>

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
    void patterns();
    void aTreeWithEverythingOdd();
    void whatIsShown();
    void filters();
    void stopped();
};

void FileSearchTest::patterns()
{
    const auto match = [](const char *patterns, const char *name) {
        return CFilePatterns(QString::fromUtf8(patterns)).Match(QString::fromUtf8(name));
    };
    QVERIFY(match("", "a.GLS") && match(" ; ", "a.gls") && !match("", "a.gls~") && !match("", "agls"));
    QVERIFY(match("*.txt; *.GLS", "Å.gls") && match("*.*", "none") && match("*", ""));
    QVERIFY(match("Å?B*c*.g", "åxbcxc.g") && !match("a?b", "ab") && !match("[ab].gls", "a.gls"));
    QVERIFY(!match("*a*a*a*a*a*a*a*b", QByteArray(3000, 'a')));
    const CFilePatterns both(QStringLiteral("*.gls;a*"));
    QVERIFY(both.MatchAsGlossaryOnly(u"b.gls") && !both.MatchAsGlossaryOnly(u"a.gls"));
}

void FileSearchTest::aTreeWithEverythingOdd()
{
    Search run;
    const QString list = run.files.AddList(QStringLiteral("b.gls"), {QStringLiteral("c|C")});
    run.files.AddFile(QStringLiteral("plain.gls"), "a\nb\n");
    run.files.AddFile(QStringLiteral("plain.txt"), "a\nb\n");
    run.files.AddFile(QStringLiteral("foreign.txt"), "WordQuiz\n[Vocabulary]\n1\n2\na\nb\n");
    run.files.AddFile(QStringLiteral("not.gls"), "WordQuiz\n");
    run.files.AddFile(QStringLiteral("empty.gls"), {});
    run.files.AddFile(QFile::decodeName("no ending"), "Ordelin 2.3-micro\n");
    run.files.AddList(QStringLiteral("sub/.hidden/x.gls"), {});
    QVERIFY(QDir().mkpath(run.files.Path(QStringLiteral("folder.gls"))));
    QCOMPARE(::mkfifo(qPrintable(run.files.Path(QStringLiteral("pipe.gls"))), 0600), 0);
    QVERIFY(QFile::link(list, run.files.Path(QStringLiteral("sub/link.gls"))));
    QVERIFY(QFile::link(run.files.Path(), run.files.Path(QStringLiteral("a"))));
    QVERIFY(QFile::link(run.files.Path(QStringLiteral("gone")), run.files.Path(QStringLiteral("broken.gls"))));
    // Glossary files of every kind; of the others only what is no plain text.
    QCOMPARE(run.Run(), QStringLiteral("b.gls,sub/link.gls,sub/.hidden/x.gls"));
    QCOMPARE(
        run.search->CountLine(), QStringLiteral("Hittade filer: 3. Filer och mappar som inte kunde läsas: 3."));
    QCOMPARE(run.Run(QStringLiteral("*.txt;*.gls")),
        QStringLiteral("b.gls,foreign.txt,plain.txt,sub/link.gls,sub/.hidden/x.gls"));
    run.search->values.searchSubDirectories = false;
    QCOMPARE(run.Run(QStringLiteral("*.*")),
        QStringLiteral("b.gls,empty.gls,foreign.txt,no ending,plain.gls,plain.txt"));
    QVERIFY(!run.test.allSettings.filesearch.searchSubDirectories);
    // No folder: told, and what was found stays.
    run.search->values.path = list;
    QCOMPARE(run.Run().count(u','), 5);
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::FolderMissing});
    QCOMPARE(run.test.allSettings.filesearch.path, run.files.Path());
}

void FileSearchTest::whatIsShown()
{
    Search run;
    const QString long_ = QString(5000, u'x');
    run.files.AddList(
        QStringLiteral("a.gls"), ManyEntries(QStringLiteral("x"), 9), QStringLiteral("Tyska|A|Å|") + long_);
    run.files.AddList(
        QStringLiteral("b.gls"), ManyEntries(QStringLiteral("x"), 10), QStringLiteral("tyska|B|Ä"));
    run.files.AddList(QStringLiteral("c.gls"), {}, QStringLiteral("Engelska|C|B"));
    run.Run();
    CFoundFilesOrder &found = run.search->Found();
    const auto cell = [&](int row, int column) { return found.index(row, column).data().toString(); };
    QCOMPARE(cell(0, CFoundFilesModel::Languages), QStringLiteral("Tyska - A"));
    QCOMPARE(cell(0, CFoundFilesModel::Comments).size(), 1000);
    QCOMPARE(cell(1, CFoundFilesModel::Path), run.files.Path(QStringLiteral("b.gls")));
    QVERIFY(!cell(1, CFoundFilesModel::Date).isEmpty());
    for (const auto &[column, order] : {std::pair(CFoundFilesModel::Author, "c.gls,a.gls,b.gls"),
             {CFoundFilesModel::Entries, "c.gls,a.gls,b.gls"},
             {CFoundFilesModel::Languages, "c.gls,a.gls,b.gls"}}) {
        found.sort(column);
        QCOMPARE(run.Found(), QLatin1StringView(order));
    }
    found.sort(CFoundFilesModel::Entries, Qt::DescendingOrder);
    QCOMPARE(run.Found(), QStringLiteral("b.gls,a.gls,c.gls"));
    found.sort(-1);
    QCOMPARE(run.Found(), QStringLiteral("a.gls,b.gls,c.gls"));
}

void FileSearchTest::filters()
{
    Search run;
    run.files.AddList(
        QStringLiteral("a.gls"), {QStringLiteral("c|C")}, QStringLiteral("Svenska|Tyska|Åke|Kapitel"));
    run.files.AddList(
        QStringLiteral("b.gls"), ManyEntries(QStringLiteral("x"), 3), QStringLiteral("Tyska|Svenska"));
    FileSearchSettings &values = run.search->values;
    values.lang1 = QStringLiteral(" svensk ");
    QCOMPARE(run.Run(), QStringLiteral("a.gls,b.gls"));
    values.useFilter = true;
    QCOMPARE(run.Run(), QStringLiteral("a.gls"));
    values.lang1.clear();
    values.useMiniValue = true;
    values.miniValue = 2;
    QCOMPARE(run.Run(), QStringLiteral("b.gls"));
    values.useMaxValue = true;
    values.maxValue = 2;
    QCOMPARE(run.Run(), QString());
}

void FileSearchTest::stopped()
{
    Search run;
    for (int i = 0; i < 50; ++i) {
        run.files.AddList(QStringLiteral("%1/x.gls").arg(i), ManyEntries(QStringLiteral("x"), 1000));
    }
    QVERIFY(run.search->Start());
    QVERIFY(run.search->IsSearching() && !run.search->FolderLine().isEmpty());
    run.search->Stop();
    QVERIFY(!run.search->IsSearching() && run.search->FolderLine().isEmpty());
    QCOMPARE(run.Run().count(u','), 49);
    QVERIFY(run.search->Start());
    run.search.reset();
}

QTEST_GUILESS_MAIN(FileSearchTest)
#include "file_search_test.moc"
