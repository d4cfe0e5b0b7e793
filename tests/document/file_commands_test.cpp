// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/file_filters.h"
#include "document/file_watch.h"
#include "document/pending_work.h"
#include "document/recent_files.h"
#include "document/text_numbers.h"
#include "platform/file_name.h"
#include "settings/settings_store.h"
#include "support/test_document.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

class FileCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unsavedChanges_data();
    void unsavedChanges();
    void pendingWork();
    void savingWithAndWithoutAName();
    void changesOutside();
    void openingByDialog();
    void recentFiles();
    void namesThatAreNoText();
    void filters();
};

void FileCommandsTest::unsavedChanges_data()
{
    QTest::addColumn<PromptAnswer>("answer");
    QTest::addColumn<QString>("chosenName"); // For saving the unnamed list.
    QTest::addColumn<bool>("discarded");
    QTest::addColumn<bool>("saved");
    QTest::newRow("no") << PromptAnswer::No << "" << true << false;
    QTest::newRow("cancel") << PromptAnswer::Cancel << "" << false << false;
    QTest::newRow("yes") << PromptAnswer::Yes << "x.gls" << true << true;
    QTest::newRow("yes, but no name chosen") << PromptAnswer::Yes << "" << false << false;
    QTest::newRow("yes, but saving fails") << PromptAnswer::Yes << "no/folder/x.gls" << false << false;
}

void FileCommandsTest::unsavedChanges()
{
    QFETCH(PromptAnswer, answer);
    QFETCH(QString, chosenName);
    QFETCH(bool, discarded);
    QFETCH(bool, saved);
    const QTemporaryDir folder;
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.document.Change([&](CWordList &list) { list.SetFlags(0, std::vector<int>{0}, FlagMode::Toggle); });
    CScriptedChooser chooser;
    if (answer == PromptAnswer::Yes) {
        chooser.paths = {chosenName.isEmpty() ? QString() : folder.filePath(chosenName)};
    }
    test.prompt.answers = {answer};
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    QCOMPARE(files.New(), discarded);
    QCOMPARE(test.document.List().Count(), discarded ? 0 : 1);
    QCOMPARE(test.prompt.texts.value(0), QStringLiteral("Vill du spara ändringarna i Namnlös?"));
    QCOMPARE(QFile::exists(folder.filePath(QStringLiteral("x.gls"))), saved);
}

void FileCommandsTest::pendingWork()
{
    struct CPending : IPendingWork
    {
        explicit CPending(CWin32Doc &edited) : document(edited) { }
        void StoreWhole() override { calls += u'w'; }
        bool HasRest() const override { return rest; }
        void StoreRest() override
        {
            document.Change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("|rest"))); });
            rest = false;
        }
        CWordList ListWithAll() const override { return {}; }
        CWin32Doc &document;
        QString calls;
        bool rest = true;
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("x.gls"));
    TestDocument test;
    CScriptedChooser chooser;
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    CPending pending(test.document);
    files.SetPendingWork(&pending);
    QVERIFY(test.document.OnSaveDocument(path));
    QVERIFY(files.Save() && pending.rest);
    files.Send();
    QCOMPARE(pending.calls, QStringLiteral("ww"));
    // An empty list with a word beside it is no empty list.
    QVERIFY(!files.New() && pending.rest);
    test.prompt.answers = {PromptAnswer::Yes, PromptAnswer::No};
    QVERIFY(files.OpenFile(path));
    QCOMPARE(Describe(test.document.List()), QStringList{QStringLiteral("|rest")});
    pending.rest = true;
    QVERIFY(files.MayDiscard());
    QCOMPARE(test.document.List().Count(), 1);
    QCOMPARE(test.prompt.numbers, QList<int>(3, Text::SaveChanges));
}

void FileCommandsTest::savingWithAndWithoutAName()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lista.gls"));
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.settings.standardFilename = QStringLiteral("%language2 av mig");
    CScriptedChooser chooser;
    chooser.paths = {path, QString()};
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    QVERIFY(files.Save());
    QCOMPARE(chooser.asked.size(), 1);
    QCOMPARE(chooser.asked[0].filters, QStringList{QStringLiteral("Glosfil (*.gls)")});
    QCOMPARE(chooser.asked[0].defaultSuffix, QStringLiteral("gls"));
    QVERIFY(chooser.asked[0].start.endsWith(QStringLiteral("/Engelska av mig.gls")));
    test.document.Change([&](CWordList &list) { list.SetFlags(0, std::vector<int>{0}, FlagMode::Set); });
    QVERIFY(files.Save());
    QCOMPARE(chooser.asked.size(), 1);
    const QString copy = folder.filePath(QStringLiteral("kopia.gls"));
    QVERIFY(files.DoSave(copy, false));
    QVERIFY(QFile::exists(copy) && test.document.Path() == path);
    QVERIFY(!files.SaveAs()); // Cancelled.
    QCOMPARE(chooser.asked[1].start, path);
    QCOMPARE(test.document.Path(), path);
}

void FileCommandsTest::changesOutside()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("x.gls"));
    const auto writeOutside = [&](const char *term) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("Ordelin 2.0\n\n\nA\nB\n1\n\n0\n") + term + "\nx\n");
    };
    TestDocument test(QStringList{QStringLiteral("a|b")});
    CScriptedChooser chooser;
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    CFileWatch watch(test.document, files, test.texts, test.prompt);
    QString notice;
    QObject::connect(&watch, &CFileWatch::NoticeChanged, [&](const QString &told) { notice = told; });
    watch.Look(); // Without a file.
    QVERIFY(files.DoSave(path, true));
    watch.Look();
    QVERIFY(test.prompt.numbers.isEmpty() && notice.isEmpty());

    // While nothing is unsaved it is asked once for each change; a notice stays.
    writeOutside("one");
    test.prompt.answers = {PromptAnswer::No, PromptAnswer::Yes};
    watch.Look();
    watch.Look();
    QCOMPARE(test.prompt.numbers, QList<int>{Text::ReadAgain});
    QVERIFY(notice.contains(path));
    writeOutside("eleven");
    watch.Look();
    QCOMPARE(Describe(test.document.List()), QStringList{QStringLiteral("eleven|x")});
    QVERIFY(notice.isEmpty());

    // Unsaved changes are only told of what stands against them, until they are saved.
    test.document.Change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("c|d"))); });
    writeOutside("five");
    watch.Look();
    QCOMPARE(test.prompt.numbers.size(), 2);
    QVERIFY(!notice.isEmpty());
    const QString other = folder.filePath(QStringLiteral("other.gls"));
    chooser.paths = {QString(), other};
    test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::No, PromptAnswer::No, PromptAnswer::Yes};
    QVERIFY(!files.Save());
    QVERIFY(!files.Save()); // No name was chosen.
    QVERIFY(test.document.IsModified() && !notice.isEmpty());
    QVERIFY(files.Save());
    QCOMPARE(test.document.Path(), other);
    QVERIFY(notice.isEmpty());
    QFile own(other);
    QVERIFY(own.open(QIODevice::Append) && own.write("\n") == 1);
    own.close();
    QVERIFY(files.Save());
    QCOMPARE(test.prompt.numbers.mid(2), QList<int>(4, Text::OverwriteForeignChange));
    QVERIFY(QFile::remove(other));
    watch.Look();
    QVERIFY(notice.contains(other));
    QVERIFY(files.Save() && notice.isEmpty());
}

void FileCommandsTest::openingByDialog()
{
    const QTemporaryDir folder;
    TestDocument test(QStringList{QStringLiteral("a|b")});
    CScriptedChooser chooser;
    chooser.paths = {QString(), folder.filePath(QStringLiteral("missing.gls"))};
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    QVERIFY(!files.Open());
    QCOMPARE(test.document.List().Count(), 1);
    QVERIFY(!files.Open());
    QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotOpen});
    QCOMPARE(chooser.asked[1].filters.size(), 3);
}

void FileCommandsTest::recentFiles()
{
    const QTemporaryDir folder;
    TestDocument test(QStringList{QStringLiteral("a|b")});
    CScriptedChooser chooser;
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    const auto path = [&](int number) {
        return folder.filePath(QString::number(number) + QStringLiteral(".gls"));
    };
    for (int number = 1; number <= 5; ++number) {
        chooser.paths = {path(number)};
        QVERIFY(files.SaveAs());
    }
    QCOMPARE(recent.Paths(), QStringList({path(5), path(4), path(3), path(2)}));
    QCOMPARE(recent.Names().first(), QStringLiteral("5.gls"));
    QVERIFY(files.OpenRecent(path(3)));
    QCOMPARE(recent.Paths(), QStringList({path(3), path(5), path(4), path(2)}));
    QVERIFY(QFile::remove(path(5)));
    QVERIFY(!files.OpenRecent(path(5)));
    QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotOpen});
    QCOMPARE(test.document.Path(), path(3)); // The open list is untouched.
    QVERIFY(!files.OpenFile(path(9)));
    QCOMPARE(CRecentFiles(store, QStringLiteral("root")).Paths(), QStringList({path(3), path(4), path(2)}));
    QVERIFY(QFile::remove(path(2)) && QDir().mkpath(path(2))); // Is there, but can't be read.
    QVERIFY(!files.OpenRecent(path(2)));
    QCOMPARE(CRecentFiles(store, QStringLiteral("root")).Paths(), QStringList({path(3), path(4)}));

    for (const char *same : {"/a/x/l.gls", "/b/x/l.gls", "/l.gls", "/x/m.gls"}) {
        recent.Add(QString::fromLatin1(same));
    }
    QCOMPARE(recent.Names(),
        QStringList({QStringLiteral("m.gls"), QStringLiteral("l.gls (/)"), QStringLiteral("l.gls (b/x)"),
            QStringLiteral("l.gls (a/x)")}));
}

void FileCommandsTest::namesThatAreNoText()
{
    const QTemporaryDir folder;
    const QString path = DecodeFileName(folder.path().toUtf8() + "/caf\xE9.gls");
    TestDocument test(QStringList{QStringLiteral("a|b")});
    CScriptedChooser chooser;
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    QVERIFY(files.DoSave(folder.filePath(QStringLiteral("x.gls")), true));
    QCOMPARE(::rename((folder.path() + QStringLiteral("/x.gls")).toUtf8().constData(),
                 EncodeFileName(path).constData()),
        0);
    QVERIFY(files.OpenFile(QDir::current().relativeFilePath(folder.path()) + path.mid(folder.path().size())));
    QCOMPARE(test.document.Path(), path);
    QCOMPARE(recent.Paths().first(), path);
    QVERIFY(files.Save() && files.OpenRecent(path));
    QVERIFY(IsSameFile(path, folder.path() + QStringLiteral("/./") + path.section(u'/', -1)));
}

void FileCommandsTest::filters()
{
    QCOMPARE(FileFilters(QStringLiteral(
                 "Glosfil|*.gls|Text (Unicode)|*.txt|Bilder|*.png;*.jpg|Alla filer (*.*)|*.*||\n")),
        QStringList({QStringLiteral("Glosfil (*.gls)"), QStringLiteral("Text (Unicode) (*.txt)"),
            QStringLiteral("Bilder (*.png *.jpg)"), QStringLiteral("Alla filer (*)")}));
}

QTEST_GUILESS_MAIN(FileCommandsTest)
#include "file_commands_test.moc"
