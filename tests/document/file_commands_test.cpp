// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/file_filters.h"
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
