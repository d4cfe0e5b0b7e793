// SPDX-License-Identifier: MIT
#include "document/recovery.h"
#include "resources/text_numbers.h"
#include "support/test_document.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A program with its document and its recovery copies, written at once after a change.
struct Program
{
    TestDocument test;
    CRecovery recovery;

    explicit Program(const QString &folder) : recovery(test.document, folder, 0) { }
    void Add(const char *entry)
    {
        test.document.Change([entry](CWordList &list) { list.Insert(MakeEntry(QString::fromUtf8(entry))); });
    }
    /// Lets the copy be written.
    void Settle()
    {
        QTest::qWait(1);
        recovery.Wait();
    }
};

QStringList Copies(const QString &folder)
{
    return QDir(folder).entryList({QStringLiteral("*.gls"), QStringLiteral("*.path")}, QDir::Files);
}

}

class RecoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyComesAndGoes();
    void offeredAfterACrash_data();
    void offeredAfterACrash();
    void fileChangedSinceTheCrash();
    void runningProgramsKeepTheirCopies();
};

void RecoveryTest::copyComesAndGoes()
{
    const QTemporaryDir folder;
    Program program(folder.filePath(QStringLiteral("state å")));
    const QString copies = folder.filePath(QStringLiteral("state å"));
    program.Settle();
    QVERIFY(Copies(copies).isEmpty());
    program.Add("a|b");
    program.Settle();
    QCOMPARE(Copies(copies).size(), 2);
    QVERIFY(program.test.document.OnSaveDocument(folder.filePath(QStringLiteral("x.gls"))));
    QVERIFY(Copies(copies).isEmpty());
    program.Add("c|d");
    program.Settle();
    QCOMPARE(Copies(copies).size(), 2);
    program.test.document.OnNewDocument(); // The changes were given up.
    program.Settle();
    QVERIFY(Copies(copies).isEmpty());
    QVERIFY(program.recovery.FindLost().empty());
}

void RecoveryTest::offeredAfterACrash_data()
{
    QTest::addColumn<PromptAnswer>("answer");
    QTest::addColumn<bool>("restored");
    QTest::addColumn<int>("copiesAfterwards"); // Files: the list and its path.
    QTest::newRow("yes") << PromptAnswer::Yes << true << 2;
    QTest::newRow("no") << PromptAnswer::No << false << 0;
    QTest::newRow("cancel") << PromptAnswer::Cancel << false << 2;
}

void RecoveryTest::offeredAfterACrash()
{
    QFETCH(PromptAnswer, answer);
    QFETCH(bool, restored);
    QFETCH(int, copiesAfterwards);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("min lista.gls"));
    const QString copies = folder.filePath(QStringLiteral("state"));
    {
        Program crashed(copies);
        crashed.Add("a|α");
        QVERIFY(crashed.test.document.OnSaveDocument(file));
        crashed.Add("c|d");
        crashed.Settle();
    }
    Program next(copies);
    next.test.prompt.answers = {answer};
    QCOMPARE(next.recovery.Offer(next.test.texts, next.test.prompt), restored);
    QCOMPARE(next.test.prompt.numbers, QList<int>{Text::RecoverChanges});
    QVERIFY(next.test.prompt.texts.first().contains(QStringLiteral("min lista.gls")));
    QCOMPARE(Copies(copies).size(), copiesAfterwards);
    if (restored) {
        QCOMPARE(Describe(next.test.document.List()).join(u','), QStringLiteral("a|α,c|d"));
        QCOMPARE(next.test.document.Path(), file);
        QVERIFY(next.test.document.IsModified());
        QVERIFY(next.test.document.OnSaveDocument(file)); // Not taken for a change by another program.
        QVERIFY(Copies(copies).isEmpty());
    }
}

void RecoveryTest::fileChangedSinceTheCrash()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("x.gls"));
    const QString copies = folder.filePath(QStringLiteral("state"));
    {
        Program crashed(copies);
        crashed.Add("a|b");
        QVERIFY(crashed.test.document.OnSaveDocument(file));
        crashed.Add("lost|work");
        crashed.Settle();
        Program other(folder.filePath(QStringLiteral("elsewhere")));
        other.Add("newer|work");
        QVERIFY(other.test.document.OnSaveDocument(file));
    }
    QFile remains(copies + QStringLiteral("/no-list.path"));
    QVERIFY(remains.open(QIODevice::WriteOnly));
    Program next(copies);
    next.test.prompt.answers = {PromptAnswer::Yes, PromptAnswer::No};
    QVERIFY(next.recovery.Offer(next.test.texts, next.test.prompt));
    QVERIFY(!next.test.document.OnSaveDocument(file));
    QCOMPARE(next.test.prompt.numbers, QList<int>({Text::RecoverChanges, Text::OverwriteForeignChange}));
    QVERIFY(!remains.exists());
}

void RecoveryTest::runningProgramsKeepTheirCopies()
{
    const QTemporaryDir folder;
    Program running(folder.path());
    running.Add("a|b");
    running.Settle();
    Program other(folder.path());
    QVERIFY(other.recovery.FindLost().empty());
    QVERIFY(!other.recovery.Offer(other.test.texts, other.test.prompt));
    QVERIFY(other.test.prompt.numbers.isEmpty());
}

QTEST_GUILESS_MAIN(RecoveryTest)
#include "recovery_test.moc"
