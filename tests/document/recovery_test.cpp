// SPDX-License-Identifier: MIT
#include "document/recovery.h"
#include "document/text_numbers.h"
#include "fileformats/word_list_file.h"
#include "support/test_document.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>

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
    return QDir(folder).entryList({QStringLiteral("*.copy")}, QDir::Files);
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
    void everyDocumentHasItsOwnCopy();
    void partOfACopy_data();
    void partOfACopy();
    void copiesOfTheFormerLayout();
    void failedCopiesAreTriedAgain();
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
    QCOMPARE(Copies(copies).size(), 1);
    QVERIFY(program.test.document.OnSaveDocument(folder.filePath(QStringLiteral("x.gls"))));
    QVERIFY(Copies(copies).isEmpty());
    program.Add("c|d");
    program.Settle();
    QCOMPARE(Copies(copies).size(), 1);
    program.test.document.OnNewDocument(); // The changes were given up.
    QVERIFY(Copies(copies).isEmpty());
}

void RecoveryTest::offeredAfterACrash_data()
{
    QTest::addColumn<PromptAnswer>("answer");
    QTest::addColumn<bool>("restored");
    QTest::addColumn<int>("copiesAfterwards");
    QTest::newRow("yes") << PromptAnswer::Yes << true << 1;
    QTest::newRow("no") << PromptAnswer::No << false << 0;
    QTest::newRow("cancel") << PromptAnswer::Cancel << false << 1;
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
        Program third(copies); // The copy is kept by the second one now.
        QVERIFY(!third.recovery.Offer(third.test.texts, third.test.prompt));
        QCOMPARE(Describe(next.test.document.List()).join(u','), QStringLiteral("a|α,c|d"));
        QCOMPARE(next.test.document.Path(), file);
        QVERIFY(next.test.document.IsModified());
        QVERIFY(!next.test.document.IsChangedOutside());
        QVERIFY(next.test.document.OnSaveDocument(file));
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
    Program next(copies);
    next.test.prompt.answers = {PromptAnswer::Yes};
    QVERIFY(next.recovery.Offer(next.test.texts, next.test.prompt));
    QVERIFY(next.test.document.IsChangedOutside());
}

void RecoveryTest::runningProgramsKeepTheirCopies()
{
    const QTemporaryDir folder;
    Program running(folder.path());
    running.Add("a|b");
    running.Settle();
    // A lock is of a program that runs, however old it is.
    const QString lock = QDir(folder.path()).entryList({QStringLiteral("*.lock")}, QDir::Files).value(0);
    const std::array times = {timespec{1000000000, 0}, timespec{1000000000, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, folder.filePath(lock).toUtf8().constData(), times.data(), 0), 0);
    Program other(folder.path());
    QVERIFY(!other.recovery.Offer(other.test.texts, other.test.prompt));
    QVERIFY(other.test.prompt.numbers.isEmpty());
}

void RecoveryTest::everyDocumentHasItsOwnCopy()
{
    const QTemporaryDir folder;
    Program program(folder.filePath(QStringLiteral("state")));
    CWin32Doc &document = program.test.document;
    const QString saved = folder.filePath(QStringLiteral("b.gls"));
    program.Add("b|b");
    QVERIFY(document.OnSaveDocument(saved));
    document.OnNewDocument();
    program.Add("a|a");
    program.Settle();
    const QStringList first = Copies(folder.filePath(QStringLiteral("state")));
    QVERIFY(document.OpenDocument(saved));
    QVERIFY(Copies(folder.filePath(QStringLiteral("state"))).isEmpty());
    program.Add("c|c");
    QTest::qWait(1); // While it is being written, the list is replaced once more.
    document.OnNewDocument();
    program.Settle();
    QTest::qWait(1);
    QVERIFY(Copies(folder.filePath(QStringLiteral("state"))).isEmpty());
    program.Add("d|d");
    program.Settle();
    const QStringList last = Copies(folder.filePath(QStringLiteral("state")));
    QVERIFY(last.size() == 1 && last != first);
}

void RecoveryTest::partOfACopy_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QList<int>>("asked");
    QTest::newRow("an entry less than counted")
        << QByteArray("count=2") << QByteArray("count=3") << QList<int>{Text::RecoverPart};
    QTest::newRow("whole") << QByteArray("count=2") << QByteArray("count=2")
                           << QList<int>{Text::RecoverChanges};
    QTest::newRow("no list in it") << QByteArray("Ordelin 2") << QByteArray("Ordinary ")
                                   << QList<int>{Text::RecoverPart};
    QTest::newRow("damaged head") << QByteArray("count=") << QByteArray("count=x") << QList<int>{};
    QTest::newRow("no head") << QByteArray("Ordelin copy 1") << QByteArray("Ordelin copy 2") << QList<int>{};
}

void RecoveryTest::partOfACopy()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QList<int>, asked);
    const QTemporaryDir folder;
    const QString list = folder.filePath(QStringLiteral("x.gls"));
    const QString state = folder.filePath(QStringLiteral("state"));
    {
        Program crashed(state);
        crashed.Add("a|b");
        QVERIFY(crashed.test.document.OnSaveDocument(list));
        crashed.Add("c|d");
        crashed.Settle();
    }
    QFile file(state + u'/' + Copies(state).value(0));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray damaged = file.readAll().replace(before, after);
    QVERIFY(file.resize(0) && file.seek(0) && file.write(damaged) == damaged.size());
    file.close();
    Program next(state);
    if (!asked.isEmpty()) {
        next.test.prompt.answers = {PromptAnswer::Yes};
    }
    QCOMPARE(next.recovery.Offer(next.test.texts, next.test.prompt), !asked.isEmpty());
    QCOMPARE(next.test.prompt.numbers, asked);
    if (asked == QList<int>{Text::RecoverPart}) {
        QCOMPARE(next.test.document.Path(), QString()); // Part of a list never takes the place of the whole.
    }
    QCOMPARE(Copies(state).size(), 1);
}

void RecoveryTest::copiesOfTheFormerLayout()
{
    const QTemporaryDir folder;
    CWordList list = MakeList({QStringLiteral("a|α")});
    QVERIFY(WriteWordListFile(list, folder.filePath(QStringLiteral("id.gls")), {.forceUnicode = true}));
    QFile origin(folder.filePath(QStringLiteral("id.path")));
    QVERIFY(origin.open(QIODevice::WriteOnly));
    origin.write("1 2\n/home/me/mine.gls");
    origin.close();
    QFile remains(folder.filePath(QStringLiteral("other.path")));
    QVERIFY(remains.open(QIODevice::WriteOnly));
    Program next(folder.path());
    next.test.prompt.answers = {PromptAnswer::Yes};
    QVERIFY(next.recovery.Offer(next.test.texts, next.test.prompt));
    QVERIFY(next.test.prompt.texts.first().contains(QStringLiteral("mine.gls")));
    QCOMPARE(Describe(next.test.document.List()).join(u','), QStringLiteral("a|α"));
    QCOMPARE(next.test.document.Path(), QString()); // The two files may be of two lists.
    QVERIFY(!remains.exists());
    next.recovery.Finish();
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

void RecoveryTest::failedCopiesAreTriedAgain()
{
    const QTemporaryDir folder;
    const QString state = folder.filePath(QStringLiteral("state"));
    QFile inTheWay(state);
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    Program program(state);
    const QSignalSpy failed(&program.recovery, &CRecovery::CopyFailed);
    program.Add("a|b");
    QTRY_COMPARE(failed.size(), 1);
    program.Settle();
    QVERIFY(inTheWay.remove());
    QTRY_COMPARE(Copies(state).size(), 1);
    QCOMPARE(failed.size(), 1);
}

QTEST_GUILESS_MAIN(RecoveryTest)
#include "recovery_test.moc"
