// SPDX-License-Identifier: MIT
#include "document/recovery.h"
#include "fileformats/word_list_file.h"
#include "support/files.h"
#include "support/test_document.h"

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

/// What a program leaves that ended with a changed list.
struct Crash
{
    QTemporaryDir folder;
    QString file = folder.filePath(u"min lista.gls"_s);
    QString state = folder.filePath(u"state"_s);

    Crash()
    {
        Program crashed(state);
        crashed.Add("a|α");
        QVERIFY(crashed.test.document.OnSaveDocument(file));
        crashed.Add("c|d");
        crashed.Settle();
    }
};

QStringList Copies(const QString &folder)
{
    return QDir(folder).entryList({u"*.copy"_s}, QDir::Files);
}

}

class RecoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offeredAfterACrash()
    {
        const struct
        {
            PromptAnswer answer;
            bool restored;
            int copiesAfterwards;
            bool isFileNewer = false;
        } rows[] = {
            {PromptAnswer::Yes, true, 1},
            {PromptAnswer::Yes, true, 1, true},
            {PromptAnswer::No, false, 0},
            {PromptAnswer::Cancel, false, 1},
        };
        for (const auto &row : rows) {
            const Crash crash;
            if (row.isFileNewer) {
                WriteFile(crash.file, "newer\nwork\n");
            }
            Program next(crash.state);
            next.test.prompt.answers = {row.answer};
            QCOMPARE(next.recovery.Offer(next.test.texts, next.test.prompt), row.restored);
            QCOMPARE(next.test.prompt.numbers, QList<int>{Text::RecoverChanges});
            QVERIFY(next.test.prompt.texts.first().contains(u"min lista.gls"_s));
            QCOMPARE(Copies(crash.state).size(), row.copiesAfterwards);
            if (row.restored) {
                Program third(crash.state); // The copy is kept by the second one now.
                QVERIFY(!third.recovery.Offer(third.test.texts, third.test.prompt));
                QCOMPARE(next.test.Entries(), u"a|α,c|d"_s);
                QCOMPARE(next.test.document.Path(), crash.file);
                QVERIFY(next.test.document.IsModified());
                QCOMPARE(next.test.document.IsChangedOutside(), row.isFileNewer);
                QVERIFY(next.test.document.OnSaveDocument(crash.file));
                QVERIFY(Copies(crash.state).isEmpty());
            }
        }
    }

    void runningProgramsKeepTheirCopies()
    {
        const QTemporaryDir folder;
        Program running(folder.path());
        running.Add("a|b");
        running.Settle();
        // A lock is of a program that runs, however old it is.
        const QString lock = QDir(folder.path()).entryList({u"*.lock"_s}, QDir::Files).value(0);
        const std::array times = {timespec{1000000000, 0}, timespec{1000000000, 0}};
        QCOMPARE(::utimensat(AT_FDCWD, folder.filePath(lock).toUtf8().constData(), times.data(), 0), 0);
        Program other(folder.path());
        QVERIFY(!other.recovery.Offer(other.test.texts, other.test.prompt));
        QVERIFY(other.test.prompt.numbers.isEmpty());
    }

    void everyDocumentHasItsOwnCopy()
    {
        const QTemporaryDir folder;
        const QString state = folder.filePath(u"state å"_s);
        Program program(state);
        CWin32Doc &document = program.test.document;
        const QString saved = folder.filePath(u"b.gls"_s);
        program.Settle();
        QVERIFY(Copies(state).isEmpty());
        program.Add("b|b");
        program.Settle();
        QCOMPARE(Copies(state).size(), 1);
        QVERIFY(document.OnSaveDocument(saved));
        QVERIFY(Copies(state).isEmpty());
        document.OnNewDocument();
        program.Add("a|a");
        program.Settle();
        const QStringList first = Copies(state);
        QVERIFY(document.OpenDocument(saved)); // The changes were given up.
        QVERIFY(Copies(state).isEmpty());
        program.Add("c|c");
        QTest::qWait(1); // While it is being written, the list is replaced once more.
        document.OnNewDocument();
        program.Settle();
        QTest::qWait(1);
        QVERIFY(Copies(state).isEmpty());
        program.Add("d|d");
        program.Settle();
        const QStringList last = Copies(state);
        QVERIFY(last.size() == 1 && last != first);
    }

    void partOfACopy()
    {
        const struct
        {
            QByteArray before, after;
            QList<int> asked;
        } rows[] = {
            {"count=2", "count=3", {Text::RecoverPart}}, // an entry less than counted
            {"count=2", "count=2", {Text::RecoverChanges}},
            // No list in it.
            {"O\0r\0d\0e\0l\0i\0n\0 \0"_ba, "O\0r\0d\0i\0n\0a\0r\0y\0"_ba, {Text::RecoverPart}},
            {"count=", "count=x", {}}, // damaged head
            {"Ordelin copy 1", "Ordelin copy 2", {}}, // no head
        };
        for (const auto &row : rows) {
            const Crash crash;
            const QString copy = crash.state + u'/' + Copies(crash.state).value(0);
            QVERIFY(Content(copy).contains(row.before));
            WriteFile(copy, Content(copy).replace(row.before, row.after));
            Program next(crash.state);
            next.test.prompt.answers = QList<PromptAnswer>(row.asked.size(), PromptAnswer::Yes);
            QCOMPARE(next.recovery.Offer(next.test.texts, next.test.prompt), !row.asked.isEmpty());
            QCOMPARE(next.test.prompt.numbers, row.asked);
            // Part of a list never takes the place of the whole.
            QCOMPARE(next.test.document.Path().isEmpty(), row.asked != QList<int>{Text::RecoverChanges});
            QCOMPARE(Copies(crash.state).size(), 1);
        }
    }

    void copiesOfTheFormerLayout()
    {
        const QTemporaryDir folder;
        CWordList list = MakeList("a|α");
        QVERIFY(WriteWordListFile(list, folder.filePath(u"id.gls"_s), {.forceUnicode = true}));
        WriteFile(folder.filePath(u"id.path"_s), "1 2\n/home/me/mine.gls");
        const QString remains = WriteFile(folder.filePath(u"other.path"_s), {});
        Program next(folder.path());
        next.test.prompt.answers = {PromptAnswer::Yes};
        QVERIFY(next.recovery.Offer(next.test.texts, next.test.prompt));
        QVERIFY(next.test.prompt.texts.first().contains(u"mine.gls"_s));
        QCOMPARE(next.test.Entries(), u"a|α"_s);
        QCOMPARE(next.test.document.Path(), QString()); // The two files may be of two lists.
        QVERIFY(!QFile::exists(remains));
        next.recovery.Finish();
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
    }

    void failedCopiesAreTriedAgain()
    {
        const QTemporaryDir folder;
        const QString state = folder.filePath(u"state"_s);
        WriteFile(state, {}); // Is in the way.
        Program program(state);
        const QSignalSpy failed(&program.recovery, &CRecovery::CopyFailed);
        program.Add("a|b");
        QTRY_COMPARE(failed.size(), 1);
        program.Settle();
        QVERIFY(QFile::remove(state));
        QTRY_COMPARE(Copies(state).size(), 1);
        QCOMPARE(failed.size(), 1);
    }
};

QTEST_GUILESS_MAIN(RecoveryTest)
#include "recovery_test.moc"
