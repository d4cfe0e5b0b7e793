// SPDX-License-Identifier: MIT
#include "tools/importing.h"

#include "support/list_files.h"
#include "support/test_document.h"

#include <QSignalSpy>
#include <QTest>

namespace {

/// An import into a list of two entries, between them.
struct Import
{
    TestDocument test{QStringList{QStringLiteral("a|A"), QStringLiteral("b|B")}};
    CListFiles files;
    std::unique_ptr<CImporting> importing;

    Import()
    {
        test.document.SetInsertionPoint(1);
        importing = std::make_unique<CImporting>(test.document, test.allSettings.import, test.texts);
    }
    void Collect(const QString &path)
    {
        importing->Collect({path});
        QTRY_VERIFY(!importing->IsCollecting());
    }
    /// Imports all of the files.
    void Run()
    {
        QSignalSpy ended(importing.get(), &CImporting::Ended);
        importing->Start();
        QVERIFY(ended.count() == 1 || ended.wait(60000));
    }
    QString Cell(int row, int column) const
    {
        return importing->Files().data(importing->Files().index(row, column)).toString();
    }
    /// The columns behind the folder.
    QString Row(int row) const
    {
        return Cell(row, CImportFilesModel::Name) + u' ' + Cell(row, CImportFilesModel::Status) + u' '
            + Cell(row, CImportFilesModel::ImportedEntries) + u' '
            + Cell(row, CImportFilesModel::IgnoredEntries);
    }
    QString ToolTip(int row) const
    {
        return importing->Files().data(importing->Files().index(row, 0), Qt::ToolTipRole).toString();
    }
    QString List() const { return Joined(test.document.List()); }
};

}

class ImportingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneStep();
    void everyFileHasItsStatus();
    void nothingImported();
    void foldersAndLoops();
    void cancelledInsideAFile();
    void finishedInTheMiddle();
};

void ImportingTest::oneStep()
{
    Import run;
    const QString file =
        run.files.AddList(QStringLiteral("x.gls"), {QStringLiteral("c|C"), QStringLiteral("d|D")});
    run.importing->AddFiles({file, file});
    run.importing->values.miniValue = 7;
    QCOMPARE(run.test.allSettings.import.miniValue, 1);
    run.Run();
    QCOMPARE(run.test.allSettings.import.miniValue, 7);
    const QString imported = QStringLiteral("a|A,c|C,d|D,c|C,d|D,b|B");
    QCOMPARE(run.List(), imported);
    QCOMPARE(run.test.document.InsertionPoint(), 5);
    QVERIFY(run.test.document.IsModified());
    QCOMPARE(run.test.document.UndoCount(), 1);
    run.test.document.Undo();
    QCOMPARE(run.List(), QStringLiteral("a|A,b|B"));
    QCOMPARE(run.test.document.InsertionPoint(), 1);
    QVERIFY(!run.test.document.IsModified());
    run.test.document.Redo();
    QCOMPARE(run.List(), imported);
    QCOMPARE(run.importing->Totals(), (ImportTotals{.importedFiles = 2, .importedEntries = 4}));
    QCOMPARE(run.importing->StatusLine(), QStringLiteral("Klar"));
    QVERIFY(run.importing->Summary().endsWith(QStringLiteral("Importerade glosor: 4. Ignorerade glosor: 0")));
    // The same window imports once.
    QVERIFY(!run.importing->CanStart());
    run.importing->AddFiles({file});
    QCOMPARE(run.importing->FileCount(), QStringLiteral("2 filer."));
}

void ImportingTest::everyFileHasItsStatus()
{
    Import run;
    run.importing->values.useFilter = true;
    run.importing->values.languageMatch = 2;
    run.importing->values.useMaxValue = true;
    run.importing->values.maxValue = 3;
    const QString newer = run.files.AddFile(
        QStringLiteral("newer.gls"), "Ordelin 9\n\n\nEngelska\nSvenska\n1\n\n\n\n\n\n0 0\nC\nc\n\n");
    run.importing->AddFiles({run.files.AddList(QStringLiteral("some.gls"),
                                 {QStringLiteral("a|A"), QStringLiteral("c|C"), QStringLiteral("c|C|n")}),
        run.files.Path(QStringLiteral("<b>missing.gls")), newer,
        run.files.AddList(QStringLiteral("long.gls"), ManyEntries(QStringLiteral("x"), 4)),
        run.files.AddList(QStringLiteral("german.gls"), {}, QStringLiteral("Svenska|Tyska"))});
    run.importing->Remove({7, 4, 4, -1});
    run.importing->AddFiles({run.files.Path(QStringLiteral("german.gls"))});
    run.Run();
    QCOMPARE(run.List(), QStringLiteral("a|A,c|C,c|C|n,b|B"));
    QCOMPARE(run.Row(0), QStringLiteral("some.gls Importerad 2 1"));
    QCOMPARE(run.Row(1), QStringLiteral("<b>missing.gls Felaktig 0 0"));
    QVERIFY(run.ToolTip(1).contains(QStringLiteral("Det gick inte att öppna filen <b>missing.gls.")));
    QCOMPARE(run.Row(2), QStringLiteral("newer.gls Importerad 0 1"));
    QVERIFY(run.ToolTip(2).contains(QStringLiteral("nyare version")));
    QCOMPARE(run.Row(3), QStringLiteral("long.gls Ignorerad 0 0"));
    QVERIFY(run.ToolTip(3).contains(QStringLiteral("för många")));
    QCOMPARE(run.Row(4), QStringLiteral("german.gls Ignorerad 0 0"));
    QCOMPARE(run.importing->Totals(),
        (ImportTotals{
            .badFiles = 1, .ignoredFiles = 2, .importedFiles = 2, .importedEntries = 2, .ignoredEntries = 2}));
}

void ImportingTest::nothingImported()
{
    Import run;
    QVERIFY(!run.importing->CanStart());
    run.importing->values.useFilter = true;
    run.importing->AddFiles(
        {run.files.AddList(QStringLiteral("x.gls"), {QStringLiteral("b|B"), QStringLiteral("a|A")})});
    run.Run();
    QCOMPARE(run.Row(0), QStringLiteral("x.gls Importerad 0 2"));
    QCOMPARE(run.test.document.UndoCount(), 0);
    QVERIFY(!run.test.document.IsModified());
}

void ImportingTest::foldersAndLoops()
{
    Import run;
    run.files.AddList(QStringLiteral("t/b.GLS"), {QStringLiteral("c|C")});
    run.files.AddList(QStringLiteral("t/ä.gls"), {QStringLiteral("c|C")});
    run.files.AddList(QStringLiteral("t/Å.gls"), {QStringLiteral("c|C")});
    run.files.AddFile(QStringLiteral("t/no.txt"), "a\nb\n");
    run.files.AddList(QStringLiteral("t/sub/deep/z.gls"), {QStringLiteral("c|C")});
    QVERIFY(QDir().mkpath(run.files.Path(QStringLiteral("t/folder.gls"))));
    QVERIFY(QFile::link(run.files.Path(QStringLiteral("t")), run.files.Path(QStringLiteral("t/a_loop"))));
    QVERIFY(
        QFile::link(run.files.Path(QStringLiteral("t/sub/deep")), run.files.Path(QStringLiteral("t/a_link"))));
    QVERIFY(
        QFile::link(run.files.Path(QStringLiteral("nowhere")), run.files.Path(QStringLiteral("t/broken.gls"))));
    run.Collect(run.files.Path(QStringLiteral("t")));
    QCOMPARE(run.importing->Files().Paths().replaceInStrings(run.files.Path(QStringLiteral("t/")), QString()),
        (QStringList{QStringLiteral("b.GLS"), QStringLiteral("broken.gls"), QStringLiteral("Å.gls"),
            QStringLiteral("ä.gls"), QStringLiteral("sub/deep/z.gls")}));
    run.Collect(run.files.Path(QStringLiteral("t/no.txt"))); // A file is taken whatever its name.
    run.Collect(run.files.Path(QStringLiteral("t/missing")));
    QCOMPARE(run.importing->Files().rowCount(), 7);
    run.Run();
    QCOMPARE(run.importing->Totals(), (ImportTotals{.badFiles = 2, .importedFiles = 5, .importedEntries = 5}));
}

void ImportingTest::cancelledInsideAFile()
{
    constexpr int Entries = 50'000;
    constexpr int Files = 60;
    Import run;
    const QString large =
        run.files.AddList(QStringLiteral("large.gls"), ManyEntries(QStringLiteral("x"), Entries));
    run.importing->AddFiles({run.files.AddList(QStringLiteral("x.gls"), {QStringLiteral("c|C")})});
    run.importing->AddFiles(QStringList(Files, large));
    connect(run.importing.get(), &CImporting::Changed, this, [&run] {
        if (run.importing->FilesRead() > 0) {
            run.importing->Cancel();
        }
    });
    run.Run();
    // It ends where it likes: what is in the list is what is told, and the files up to there.
    const int imported = run.importing->Totals().importedEntries;
    QVERIFY(imported >= 1 && imported < 1 + Files * Entries);
    const CWordList &list = run.test.document.List();
    QCOMPARE(list.Count(), 2 + imported);
    QCOMPARE(Describe(list.Entry(1)), QStringLiteral("c|C"));
    QCOMPARE(list.Entry(imported).GetText(0),
        imported == 1 ? QStringLiteral("c") : QStringLiteral("x%1").arg((imported - 2) % Entries));
    QCOMPARE(Describe(list.Entry(imported + 1)), QStringLiteral("b|B"));
    QCOMPARE(run.Cell(Files, CImportFilesModel::Status), QStringLiteral("Inte läst"));
    QCOMPARE(run.test.document.UndoCount(), 1);
}

void ImportingTest::finishedInTheMiddle()
{
    Import run;
    run.files.AddList(QStringLiteral("t/large.gls"), ManyEntries(QStringLiteral("x"), 100'000));
    run.importing->Collect({run.files.Path(), run.files.Path()});
    run.importing->StopCollecting();
    QVERIFY(!run.importing->IsCollecting());
    run.Collect(run.files.Path());
    QVERIFY(run.importing->Files().rowCount() > 0);
    run.importing->Start();
    run.importing->Finish();
    QCOMPARE(run.importing->CurrentStage(), CImporting::Stage::Done);
    QCOMPARE(run.test.document.List().Count(), 2 + run.importing->Totals().importedEntries);
    // And an object that goes while its threads work.
    Import other;
    other.importing->AddFiles(run.importing->Files().Paths());
    other.importing->Start();
    other.importing.reset();
    QVERIFY(other.test.document.List().Count() >= 2);
}

QTEST_GUILESS_MAIN(ImportingTest)
#include "importing_test.moc"
