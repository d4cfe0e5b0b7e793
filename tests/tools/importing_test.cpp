// SPDX-License-Identifier: MIT
#include "tools/importing.h"

#include "support/list_files.h"
#include "support/test_document.h"

namespace {

/// An import into a list of two entries, between them.
struct Import
{
    TestDocument test{QStringList{u"a|A"_s, u"b|B"_s}};
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
    QString Cell(int row, int column) const { return importing->Files().index(row, column).data().toString(); }
    /// The columns behind the folder.
    QString Row(int row) const
    {
        return Cell(row, CImportFilesModel::Name) + u' ' + Cell(row, CImportFilesModel::Status) + u' '
            + Cell(row, CImportFilesModel::ImportedEntries) + u' '
            + Cell(row, CImportFilesModel::IgnoredEntries);
    }
    QString ToolTip(int row) const { return importing->Files().index(row, 0).data(Qt::ToolTipRole).toString(); }
    QString List() const { return Joined(test.document.List()); }
};

}

class ImportingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneStep()
    {
        Import run;
        const QString file = run.files.AddList(u"x.gls"_s, {u"c|C"_s, u"d|D"_s});
        run.importing->AddFiles({file, file});
        run.importing->values.miniValue = 7;
        QCOMPARE(run.test.allSettings.import.miniValue, 1);
        run.Run();
        QCOMPARE(run.test.allSettings.import.miniValue, 7);
        const QString imported = u"a|A,c|C,d|D,c|C,d|D,b|B"_s;
        QCOMPARE(run.List(), imported);
        QCOMPARE(run.test.document.InsertionPoint(), 5);
        QVERIFY(run.test.document.IsModified());
        QCOMPARE(run.test.document.UndoCount(), 1);
        run.test.document.Undo();
        QCOMPARE(run.List(), u"a|A,b|B"_s);
        QCOMPARE(run.test.document.InsertionPoint(), 1);
        QVERIFY(!run.test.document.IsModified());
        run.test.document.Redo();
        QCOMPARE(run.List(), imported);
        QCOMPARE(run.importing->Totals(), (ImportTotals{.importedFiles = 2, .importedEntries = 4}));
        QCOMPARE(run.importing->StatusLine(), u"Klar"_s);
        QVERIFY(run.importing->Summary().endsWith(u"Importerade glosor: 4. Ignorerade glosor: 0"_s));
        // The same window imports once.
        QVERIFY(!run.importing->CanStart());
        run.importing->AddFiles({file});
        QCOMPARE(run.importing->FileCount(), u"2 filer."_s);
        // Nothing new: no step.
        Import none;
        QVERIFY(!none.importing->CanStart());
        none.importing->values.useFilter = true;
        none.importing->AddFiles({none.files.AddList(u"x.gls"_s, {u"b|B"_s, u"a|A"_s})});
        none.Run();
        QCOMPARE(none.Row(0), u"x.gls Importerad 0 2"_s);
        QVERIFY(none.test.document.UndoCount() == 0 && !none.test.document.IsModified());
    }

    void everyFileHasItsStatus()
    {
        Import run;
        run.importing->values.useFilter = true;
        run.importing->values.languageMatch = 2;
        run.importing->values.useMaxValue = true;
        run.importing->values.maxValue = 3;
        const QString newer =
            run.files.AddFile(u"newer.gls"_s, "Ordelin 9\n\n\nEngelska\nSvenska\n1\n\n\n\n\n\n0 0\nC\nc\n\n");
        run.importing->AddFiles({run.files.AddList(u"some.gls"_s, {u"a|A"_s, u"c|C"_s, u"c|C|n"_s}),
            run.files.Path(u"<b>missing.gls"_s), newer,
            run.files.AddList(u"long.gls"_s, ManyEntries(u"x"_s, 4)),
            run.files.AddList(u"german.gls"_s, {}, u"Svenska|Tyska"_s),
            run.files.AddFile(u"cards.csv"_s, "Engelska,Svenska,Ljud\na*,a,x.mp3\ne,\"f\ng\",\n")});
        run.importing->Remove({7, 4, 4, -1});
        run.importing->AddFiles({run.files.Path(u"german.gls"_s)});
        run.Run();
        QCOMPARE(run.List(), u"a|A,c|C,c|C|n,a|a,f g|e,b|B"_s);
        QCOMPARE(run.Row(0), u"some.gls Importerad 2 1"_s);
        QCOMPARE(run.Row(1), u"<b>missing.gls Felaktig 0 0"_s);
        QVERIFY(run.ToolTip(1).contains(u"Det gick inte att öppna filen <b>missing.gls."_s));
        QCOMPARE(run.Row(2), u"newer.gls Importerad 0 1"_s);
        QVERIFY(run.ToolTip(2).contains(u"nyare version"_s));
        QCOMPARE(run.Row(3), u"long.gls Ignorerad 0 0"_s);
        QVERIFY(run.ToolTip(3).contains(u"för många"_s));
        QCOMPARE(run.Row(5), u"german.gls Ignorerad 0 0"_s);
        QCOMPARE(run.importing->Totals(),
            (ImportTotals{.badFiles = 1,
                .ignoredFiles = 2,
                .importedFiles = 3,
                .importedEntries = 4,
                .ignoredEntries = 2}));
        QCOMPARE(run.Row(4), u"cards.csv Importerad, inte allt 2 0"_s);
        QVERIFY2(run.ToolTip(4).endsWith(
                     u"Kommer inte med oförändrat: Termer med asterisk, som skiljer svarsalternativ åt: 1; "
                     "Termer som förlorade asterisker eller tomma klamrar: 1; "
                     "Texter på flera rader, som blev en: 1; Utelämnade kolumner: 1."_s),
            qPrintable(run.ToolTip(4)));
        QCOMPARE(run.importing->Files().Reason(0), QString());
    }

    void foldersAndLoops()
    {
        Import run;
        run.files.AddList(u"t/b.GLS"_s, {u"c|C"_s});
        run.files.AddList(u"t/ä.gls"_s, {u"c|C"_s});
        run.files.AddList(u"t/Å.gls"_s, {u"c|C"_s});
        run.files.AddFile(u"t/no.txt"_s, "a\nb\n");
        run.files.AddList(u"t/sub/deep/z.gls"_s, {u"c|C"_s});
        QVERIFY(QDir().mkpath(run.files.Path(u"t/folder.gls"_s)));
        QVERIFY(QFile::link(run.files.Path(u"t"_s), run.files.Path(u"t/a_loop"_s)));
        QVERIFY(QFile::link(run.files.Path(u"t/sub/deep"_s), run.files.Path(u"t/a_link"_s)));
        QVERIFY(QFile::link(run.files.Path(u"nowhere"_s), run.files.Path(u"t/broken.gls"_s)));
        run.Collect(run.files.Path(u"t"_s));
        QCOMPARE(run.importing->Files().Paths().replaceInStrings(run.files.Path(u"t/"_s), QString()),
            (QStringList{u"b.GLS"_s, u"broken.gls"_s, u"Å.gls"_s, u"ä.gls"_s, u"sub/deep/z.gls"_s}));
        run.Collect(run.files.Path(u"t/no.txt"_s)); // A file is taken whatever its name.
        run.Collect(run.files.Path(u"t/missing"_s));
        QCOMPARE(run.importing->Files().rowCount(), 7);
        run.Run();
        QCOMPARE(
            run.importing->Totals(), (ImportTotals{.badFiles = 2, .importedFiles = 5, .importedEntries = 5}));
    }

    void cancelledInsideAFile()
    {
        constexpr int Entries = 50'000;
        constexpr int Files = 60;
        Import run;
        const QString large = run.files.AddList(u"large.gls"_s, ManyEntries(u"x"_s, Entries));
        run.importing->AddFiles({run.files.AddList(u"x.gls"_s, {u"c|C"_s})});
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
        QCOMPARE(Describe(list.Entry(1)), u"c|C"_s);
        QCOMPARE(
            list.Entry(imported).GetText(0), imported == 1 ? u"c"_s : u"x%1"_s.arg((imported - 2) % Entries));
        QCOMPARE(Describe(list.Entry(imported + 1)), u"b|B"_s);
        QCOMPARE(run.Cell(Files, CImportFilesModel::Status), u"Inte läst"_s);
        QCOMPARE(run.test.document.UndoCount(), 1);
    }

    void finishedInTheMiddle()
    {
        Import run;
        run.files.AddList(u"t/large.gls"_s, ManyEntries(u"x"_s, 100'000));
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
};

QTEST_GUILESS_MAIN(ImportingTest)
#include "importing_test.moc"
