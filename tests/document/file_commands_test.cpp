// SPDX-License-Identifier: MIT
#include "document/export_form.h"
#include "document/file_commands.h"
#include "document/file_filters.h"
#include "document/file_watch.h"
#include "document/pending_work.h"
#include "document/recent_files.h"
#include "platform/file_name.h"
#include "settings/settings_store.h"
#include "support/files.h"
#include "support/scripted_format_dialogs.h"
#include "support/test_document.h"

#include <algorithm>
#include <cstdio>

namespace {

/// The commands over a document, with files of a folder of their own.
struct Files
{
    explicit Files(const QString &entries = u"a|b"_s) : test(entries) { }
    QString Path(const QString &name) const { return folder.filePath(name); }
    void Flag()
    {
        test.document.Change([](CWordList &list) { list.SetFlags(0, std::array{0}, FlagMode::Toggle); });
    }

    QTemporaryDir folder;
    TestDocument test;
    CScriptedChooser chooser;
    CScriptedFormatDialogs formatDialogs;
    CMemoryStore store;
    CRecentFiles recent{store, u"root"_s};
    CFileCommands files{test.document, test.texts, test.prompt, chooser, formatDialogs, recent};
};

}

class FileCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unsavedChanges()
    {
        const struct
        {
            PromptAnswer answer;
            QStringList chosen; // For saving the unnamed list.
            bool discarded, saved;
        } rows[] = {
            {PromptAnswer::No, {}, true, false}, {PromptAnswer::Cancel, {}, false, false},
            {PromptAnswer::Yes, {u"x.gls"_s}, true, true},
            {PromptAnswer::Yes, {QString()}, false, false}, // no name chosen
            {PromptAnswer::Yes, {u"no/folder/x.gls"_s}, false, false}, // saving fails
        };
        for (const auto &row : rows) {
            Files run;
            run.Flag();
            for (const QString &name : row.chosen) {
                run.chooser.paths.append(name.isEmpty() ? QString() : run.Path(name));
            }
            run.test.prompt.answers = {row.answer};
            QCOMPARE(run.files.New(), row.discarded);
            QCOMPARE(run.test.document.List().Count(), row.discarded ? 0 : 1);
            QCOMPARE(run.test.prompt.texts.value(0), u"Vill du spara ändringarna i Namnlös?"_s);
            QCOMPARE(QFile::exists(run.Path(u"x.gls"_s)), row.saved);
        }
    }

    void pendingWork()
    {
        struct CPending : IPendingWork
        {
            explicit CPending(CWin32Doc &edited) : document(edited) { }
            void StoreWhole() override { calls += u'w'; }
            bool HasRest() const override { return rest; }
            void StoreRest() override
            {
                document.Change([](CWordList &list) { list.Insert(MakeEntry(u"|rest"_s)); });
                rest = false;
            }
            CWordList ListWithAll() const override { return {}; }
            CWin32Doc &document;
            QString calls;
            bool rest = true;
        };
        Files run{QString()};
        const QString path = run.Path(u"x.gls"_s);
        CPending pending(run.test.document);
        run.files.SetPendingWork(&pending);
        QVERIFY(run.test.document.OnSaveDocument(path));
        QVERIFY(run.files.Save() && pending.rest);
        run.files.Send();
        QCOMPARE(pending.calls, u"ww"_s);
        // An empty list with a word beside it is no empty list.
        QVERIFY(!run.files.New() && pending.rest);
        run.test.prompt.answers = {PromptAnswer::Yes, PromptAnswer::No};
        QVERIFY(run.files.OpenFile(path));
        QCOMPARE(run.test.Entries(), u"|rest"_s);
        pending.rest = true;
        QVERIFY(run.files.MayDiscard());
        QCOMPARE(run.test.document.List().Count(), 1);
        QCOMPARE(run.test.prompt.numbers, QList<int>(3, Text::SaveChanges));
    }

    void savingWithAndWithoutAName()
    {
        Files run;
        const QString path = run.Path(u"lista.gls"_s);
        run.test.settings.standardFilename = u"%language2 av mig"_s;
        run.chooser.paths = {path, QString()};
        QVERIFY(run.files.Save());
        QCOMPARE(run.chooser.asked.size(), 1);
        QCOMPARE(run.chooser.asked[0].filters.first(), u"Glosfil (*.gls)"_s);
        QCOMPARE(run.chooser.asked[0].defaultSuffix, u"gls"_s);
        QVERIFY(run.chooser.asked[0].start.endsWith(u"/Engelska av mig.gls"_s));
        run.Flag();
        QVERIFY(run.files.Save());
        QCOMPARE(run.chooser.asked.size(), 1);
        const QString copy = run.Path(u"kopia.gls"_s);
        QVERIFY(run.files.DoSave(copy, false));
        QVERIFY(QFile::exists(copy) && run.test.document.Path() == path);
        QVERIFY(!run.files.SaveAs()); // Cancelled.
        QCOMPARE(run.chooser.asked[1].start, path);
        QCOMPARE(run.test.document.Path(), path);
    }

    void changesOutside()
    {
        Files run;
        const QString path = run.Path(u"x.gls"_s);
        const auto writeOutside = [&](const char *term) {
            WriteFile(path, QByteArray("Ordelin 2.0\n\n\nA\nB\n1\n\n0\n") + term + "\nx\n");
        };
        CFileWatch watch(run.test.document, run.files, run.test.texts, run.test.prompt);
        QString notice;
        QObject::connect(&watch, &CFileWatch::NoticeChanged, [&](const QString &told) { notice = told; });
        watch.Look(); // Without a file.
        QVERIFY(run.files.DoSave(path, true));
        watch.Look();
        QVERIFY(run.test.prompt.numbers.isEmpty() && notice.isEmpty());

        // While nothing is unsaved it is asked once for each change; a notice stays.
        writeOutside("one");
        run.test.prompt.answers = {PromptAnswer::No, PromptAnswer::Yes};
        watch.Look();
        watch.Look();
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::ReadAgain});
        QVERIFY(notice.contains(path));
        writeOutside("eleven");
        watch.Look();
        QCOMPARE(run.test.Entries(), u"eleven|x"_s);
        QVERIFY(notice.isEmpty());

        // Unsaved changes are only told of what stands against them, until they are saved.
        run.test.document.Change([](CWordList &list) { list.Insert(MakeEntry(u"c|d"_s)); });
        writeOutside("five");
        watch.Look();
        QCOMPARE(run.test.prompt.numbers.size(), 2);
        QVERIFY(!notice.isEmpty());
        const QString other = run.Path(u"other.gls"_s);
        run.chooser.paths = {QString(), other};
        run.test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::No, PromptAnswer::No, PromptAnswer::Yes};
        QVERIFY(!run.files.Save() && !run.files.Save()); // No name was chosen.
        QVERIFY(run.test.document.IsModified() && !notice.isEmpty());
        QVERIFY(run.files.Save());
        QCOMPARE(run.test.document.Path(), other);
        QVERIFY(notice.isEmpty());
        WriteFile(other, Content(other) + "\n");
        QVERIFY(run.files.Save());
        QCOMPARE(run.test.prompt.numbers.mid(2), QList<int>(4, Text::OverwriteForeignChange));
        QVERIFY(QFile::remove(other));
        watch.Look();
        QVERIFY(notice.contains(other));
        QVERIFY(run.files.Save() && notice.isEmpty());
    }

    void recentFiles()
    {
        Files run;
        const auto path = [&](int number) { return run.Path(QString::number(number) + u".gls"_s); };
        run.chooser.paths = {QString()};
        QVERIFY(!run.files.Open()); // Cancelled.
        for (int number = 1; number <= 5; ++number) {
            run.chooser.paths = {path(number)};
            QVERIFY(run.files.SaveAs());
        }
        QCOMPARE(run.recent.Paths(), QStringList({path(5), path(4), path(3), path(2)}));
        QCOMPARE(run.recent.Names().first(), u"5.gls"_s);
        QVERIFY(run.files.OpenRecent(path(3)));
        QCOMPARE(run.recent.Paths(), QStringList({path(3), path(5), path(4), path(2)}));
        QVERIFY(QFile::remove(path(5)));
        QVERIFY(!run.files.OpenRecent(path(5)));
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::CannotOpen});
        QCOMPARE(run.test.document.Path(), path(3)); // The open list is untouched.
        QVERIFY(!run.files.OpenFile(path(9)));
        QCOMPARE(CRecentFiles(run.store, u"root"_s).Paths(), QStringList({path(3), path(4), path(2)}));
        QVERIFY(QFile::remove(path(2)) && QDir().mkpath(path(2))); // Is there, but can't be read.
        QVERIFY(!run.files.OpenRecent(path(2)));
        QCOMPARE(CRecentFiles(run.store, u"root"_s).Paths(), QStringList({path(3), path(4)}));

        for (const char *same : {"/a/x/l.gls", "/b/x/l.gls", "/l.gls", "/x/m.gls"}) {
            run.recent.Add(QString::fromLatin1(same));
        }
        QCOMPARE(
            run.recent.Names(), QStringList({u"m.gls"_s, u"l.gls (/)"_s, u"l.gls (b/x)"_s, u"l.gls (a/x)"_s}));
    }

    void namesThatAreNoText()
    {
        Files run;
        const QString path = DecodeFileName(run.folder.path().toUtf8() + "/caf\xE9.gls");
        QVERIFY(run.files.DoSave(run.Path(u"x.gls"_s), true));
        QCOMPARE(
            ::rename((run.folder.path() + u"/x.gls"_s).toUtf8().constData(), EncodeFileName(path).constData()),
            0);
        QVERIFY(run.files.OpenFile(
            QDir::current().relativeFilePath(run.folder.path()) + path.mid(run.folder.path().size())));
        QCOMPARE(run.test.document.Path(), path);
        QCOMPARE(run.recent.Paths().first(), path);
        QVERIFY(run.files.Save() && run.files.OpenRecent(path));
        QVERIFY(IsSameFile(path, run.folder.path() + u"/./"_s + path.section(u'/', -1)));
    }

    void separatedText()
    {
        Files run;
        run.Flag();
        const QString path = run.Path(u"a.csv"_s);
        WriteFile(path, "Svenska;Engelska;Extra\nhund [1;dog;x\n");
        run.test.prompt.answers = {PromptAnswer::No, PromptAnswer::No};
        // Cancelled: the list is as it was.
        QVERIFY(!run.files.OpenFile(path));
        QCOMPARE(run.test.Entries(), u"a|b||1"_s);
        QVERIFY(run.recent.Paths().isEmpty());

        // What the preview told of is not told again. Saving asks for a name.
        run.formatDialogs.onImport = [](CImportPreview &preview) {
            preview.SetColumn(2, TextColumn::Note);
            return true;
        };
        QVERIFY(run.files.OpenFile(path));
        QCOMPARE(run.test.Entries(), u"hund [1|dog|x"_s);
        QVERIFY(run.test.document.Path().isEmpty() && run.test.document.IsModified());
        QCOMPARE(run.test.document.List().GetLanguage(0), u"Svenska"_s);
        QCOMPARE(run.test.prompt.numbers, QList<int>(2, Text::SaveChanges));
        QCOMPARE(run.recent.Paths(), QStringList{path});
        QVERIFY(!run.files.Save());
        QCOMPARE(run.chooser.asked.size(), 1);

        // The next one in the folder begins with the same choices; what lies behind the preview is told.
        const QString next = run.Path(u"b.csv"_s);
        WriteFile(next, "Svenska;Engelska;Extra\n" + QByteArray("a;b;c\n").repeated(300) + "[x;y;z\n");
        run.formatDialogs.onImport = [](CImportPreview &preview) {
            return preview.Column(2) == TextColumn::Note && preview.Losses().empty();
        };
        run.test.prompt.answers = {PromptAnswer::No, PromptAnswer::No};
        QVERIFY(run.files.OpenFile(next));
        QCOMPARE(run.test.document.List().Count(), 301);
        QCOMPARE(run.test.prompt.numbers.last(), Text::NotAllRead);
        QVERIFY(run.test.prompt.texts.last().endsWith(u"Termer med klamrar, som omger kommentarer: 1"_s));

        const QString picture = run.Path(u"c.csv"_s);
        WriteFile(picture, QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
        QVERIFY(!run.files.OpenFile(picture));
        QCOMPARE(run.test.prompt.numbers.last(), Text::NoText);
    }

    void copiesInOtherFormats()
    {
        Files run(u"a * b|c|note|1"_s);
        const QString own = run.Path(u"own.txt"_s);
        QVERIFY(run.files.DoSave(own, true));
        run.Flag();
        QString losses;
        run.formatDialogs.onExport = [&](CExportForm &form) {
            losses = form.Losses();
            if (form.HasLayout()) {
                form.ChooseSeparator(1);
                form.ChooseAlternatives(int(AlternativeMark::Semicolon));
                form.ChooseMark(false);
            } else if (form.HasTerms()) {
                form.ChooseTerms(int(PlainTextTerms::Term2));
                losses = form.Losses();
            }
            return true;
        };
        const auto filterOf = [&](FormatId id) {
            const auto formats = FormatsToSave();
            return std::ranges::find(formats, &FormatOf(id)) - formats.begin();
        };
        // The name tells the format where the filter is another; saving a copy saves no list.
        const QString separated = run.Path(u"x.csv"_s);
        run.chooser.paths = {separated};
        run.chooser.filter = filterOf(FormatId::Glossary);
        QVERIFY(!run.files.SaveAs());
        QCOMPARE(Content(separated), QByteArray("Svenska;Engelska;note\r\n\"a; b\";c;note\r\n"));
        QVERIFY(losses.contains(u"Kommentarer till listan: 1"_s));
        QVERIFY(run.test.document.IsModified() && run.test.document.Path() == own);

        // Where several formats have a suffix, the filter tells.
        const QString plain = run.Path(u"y.txt"_s);
        run.chooser.paths = {plain};
        run.chooser.filter = filterOf(FormatId::PlainText);
        QVERIFY(run.files.DoSave({}, false));
        QCOMPARE(Content(plain), QByteArray("c\r\n"));
        QVERIFY(losses.contains(u"Termer: 1"_s) && losses.contains(u"Anteckningar: 1"_s));

        // The list's own file stays one that holds all.
        run.chooser.paths = {own};
        QVERIFY(run.files.SaveAs());
        QVERIFY(Content(own).startsWith("Ordelin") && !run.test.document.IsModified());

        run.chooser.paths = {run.Path(u"no/folder/z.csv"_s), run.Path(u"z.csv"_s)};
        QVERIFY(!run.files.DoSave({}, false));
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::CannotSave});
        run.formatDialogs.onExport = [](CExportForm &) { return false; };
        QVERIFY(!run.files.DoSave({}, false) && !QFile::exists(run.Path(u"z.csv"_s)));
    }

    void filters()
    {
        QCOMPARE(
            FileFilters(u"Glosfil|*.gls|Text (Unicode)|*.txt|Bilder|*.png;*.jpg|Alla filer (*.*)|*.*||\n"_s),
            QStringList({u"Glosfil (*.gls)"_s, u"Text (Unicode) (*.txt)"_s, u"Bilder (*.png *.jpg)"_s,
                u"Alla filer (*)"_s}));
    }
};

QTEST_GUILESS_MAIN(FileCommandsTest)
#include "file_commands_test.moc"
