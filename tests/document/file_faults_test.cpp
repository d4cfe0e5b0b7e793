// SPDX-License-Identifier: MIT
#include "document/recovery.h"
#include "fileformats/word_list_file.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "support/failing_calls.h"
#include "support/test_document.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

// Each row makes one file call of the real classes fail, or kills the program there, in a process of its own:
// first the first call, then the second, until none is left. Whatever happens, old or new content is there, and
// whole.

namespace {

enum Exit { Succeeded = 0, Failed = 1, FewerCalls = 2 };

QStringList Entries(const QString &word)
{
    return NumberedEntries(300, word + u" %1|λ %1"_s);
}

struct Folders
{
    QString path;
    QString State() const { return path + u"/state"_s; }
    QString List() const { return path + u"/list.gls"_s; }
    QString OtherList() const { return path + u"/other.gls"_s; }
    QString Ini() const { return path + u"/Ordelin.ini"_s; }
};

bool SaveList(const Folders &folders, const QString &word)
{
    CWordList list = MakeList(Entries(word));
    return WriteWordListFile(list, folders.List(), {.backupFolder = folders.State()});
}

/// The words that the list's entries are made of; empty when they are not those of one whole list.
QString WordOf(const CWordList &list)
{
    const QString word = list.Count() > 0 ? list.Entry(0).GetText(0).section(u' ', 0, 0) : QString();
    return Describe(list) == Entries(word) ? word : QString();
}

/// Changes the list of a file, then that of another one; both with a copy for recovery.
bool KeepCopies(const Folders &folders)
{
    TestDocument test;
    CRecovery recovery(test.document, folders.State(), 0);
    bool kept = true;
    for (const auto &file :
        {std::pair(folders.List(), u"first"_s), std::pair(folders.OtherList(), u"second"_s)}) {
        if (!test.document.OpenDocument(file.first)) {
            return false;
        }
        test.document.Change([&file](CWordList &list) {
            list.DeleteAll();
            for (const QString &entry : Entries(file.second)) {
                list.Insert(MakeEntry(entry));
            }
        });
        kept = recovery.Keep();
    }
    return kept;
}

bool SaveSettings(const Folders &folders, const QString &author)
{
    const CTexts texts;
    CIniStore store(folders.Ini(), CAppSettings::RootPath());
    CAppSettings settings(store, texts);
    settings.Exchange(true);
    settings.editor.author = author;
    settings.find.language = 2;
    settings.Exchange(false);
    return store.Flush();
}

bool Run(const QString &work, const Folders &folders)
{
    if (work == u"copies"_s) {
        return KeepCopies(folders);
    }
    const QString changed = u"changed"_s;
    return work == u"settings"_s ? SaveSettings(folders, changed) : SaveList(folders, changed);
}

int Drive(const QStringList &arguments)
{
    const int number = arguments.at(2).toInt();
    FailCall(CallFault(arguments.at(1).toInt()), number);
    const bool succeeded = Run(arguments.at(0), {arguments.at(3)});
    const int calls = CallCount();
    FailCall(CallFault::None, 0);
    return !succeeded ? Failed : calls < number ? FewerCalls : Succeeded;
}

/// What the next program is offered, one copy after the other: the question, the file and the words of its
/// list.
QStringList Offered(const Folders &folders)
{
    QStringList found;
    for (;;) {
        TestDocument test;
        CRecovery recovery(test.document, folders.State(), 0);
        test.prompt.answers = {PromptAnswer::Yes};
        if (!recovery.Offer(test.texts, test.prompt)) {
            test.prompt.answers.clear();
            return found;
        }
        found.append(u"%1 %2 %3"_s.arg(test.prompt.numbers.first())
                         .arg(QFileInfo(test.document.Path()).fileName(), WordOf(test.document.List())));
        recovery.Finish();
    }
}

}

class FileFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faults()
    {
        for (const QString &work : {u"list"_s, u"overwriting"_s, u"copies"_s, u"settings"_s}) {
            for (const CallFault fault : {CallFault::Kill, CallFault::Once, CallFault::FullDisk}) {
                int exit = Succeeded;
                for (int number = 1; exit != FewerCalls && !QTest::currentTestFailed(); ++number) {
                    QVERIFY(number < 200);
                    exit = LetFail(work, fault, number);
                }
            }
        }
    }

private:
    /// The exit code of a process in which that call failed.
    int LetFail(const QString &work, CallFault fault, int number) const
    {
        const QTemporaryDir folder;
        const Folders folders = {folder.path()};
        SetUp(work, folders);
        const int exit = QProcess::execute(QCoreApplication::applicationFilePath(),
            {u"drive"_s, work, QString::number(int(fault)), QString::number(number), folder.path()});
        if (!QList<int>({Succeeded, Failed, FewerCalls, KilledByFault}).contains(exit)) {
            QTest::qFail("unknown exit code", __FILE__, __LINE__);
        }
        Check(work, folders, fault, exit);
        if (QTest::currentTestFailed()) {
            qWarning("%s, fault %d, call %d, exit code %d", qPrintable(work), int(fault), number, exit);
        }
        return exit;
    }

    void SetUp(const QString &work, const Folders &folders) const
    {
        QVERIFY(SaveList(folders, u"old"_s));
        QVERIFY(QFile::copy(folders.List(), folders.OtherList()));
        QVERIFY(SaveSettings(folders, u"old"_s));
        if (work == u"overwriting"_s) {
            const QByteArray path = QFile::encodeName(folders.List());
            QCOMPARE(::link(path.constData(), (path + ".second-name").constData()), 0);
        }
    }

    void Check(const QString &work, const Folders &folders, CallFault fault, int exit) const
    {
        const bool succeeded = exit == Succeeded || exit == FewerCalls;
        CWordList list;
        (void)ReadWordListFile(list, folders.List());
        const QString word = WordOf(list);
        const QStringList offered = Offered(folders);
        if (work == u"settings"_s) {
            const CTexts texts;
            CIniStore store(folders.Ini(), CAppSettings::RootPath());
            CAppSettings settings(store, texts);
            settings.Exchange(true);
            const QString &author = settings.editor.author;
            QVERIFY(author == u"changed"_s || (!succeeded && author == u"old"_s));
            QVERIFY(!settings.isFirstRun && settings.find.language == 2);
        } else if (work == u"copies"_s) {
            QCOMPARE(word, u"old"_s);
            for (const QString &copy : offered) {
                QVERIFY2(
                    copy == u"70161 list.gls first"_s || copy == u"70161 other.gls second"_s, qPrintable(copy));
            }
            QVERIFY(!succeeded || offered.contains(u"70161 other.gls second"_s));
        } else if (word.isEmpty()) {
            QVERIFY(fault != CallFault::Once && !succeeded && work == u"overwriting"_s);
            QCOMPARE(offered, QStringList{u"70053 list.gls old"_s});
        } else {
            QCOMPARE(offered, QStringList());
            QVERIFY(word == u"changed"_s || (!succeeded && word == u"old"_s));
            QVERIFY(exit != Failed || fault == CallFault::FullDisk || word == u"old"_s);
        }
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"drive"_s) {
        return Drive(arguments.mid(2));
    }
    FileFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "file_faults_test.moc"
