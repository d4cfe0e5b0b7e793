// SPDX-License-Identifier: MIT
#include "document/recovery.h"
#include "fileformats/word_list_file.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "support/failing_calls.h"
#include "support/test_document.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

// Each row makes one file call of the real classes fail, or kills the program there, in a process of its own:
// first the first call, then the second, until none is left. Whatever happens, old or new content is there, and
// whole.

namespace {

enum Exit { Succeeded = 0, Failed = 1, FewerCalls = 2 };

QStringList Entries(const QString &word)
{
    QStringList entries;
    for (int i = 0; i < 300; ++i) {
        entries.append(QStringLiteral("%1 %2|λ %2").arg(word).arg(i));
    }
    return entries;
}

struct Folders
{
    QString path;
    QString State() const { return path + QStringLiteral("/state"); }
    QString List() const { return path + QStringLiteral("/list.gls"); }
    QString OtherList() const { return path + QStringLiteral("/other.gls"); }
    QString Ini() const { return path + QStringLiteral("/Ordelin.ini"); }
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
    for (const auto &file : {std::pair(folders.List(), QStringLiteral("first")),
             std::pair(folders.OtherList(), QStringLiteral("second"))}) {
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
    if (work == QStringLiteral("copies")) {
        return KeepCopies(folders);
    }
    const QString changed = QStringLiteral("changed");
    return work == QStringLiteral("settings") ? SaveSettings(folders, changed) : SaveList(folders, changed);
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
        found.append(QStringLiteral("%1 %2 %3")
                         .arg(test.prompt.numbers.first())
                         .arg(QFileInfo(test.document.Path()).fileName(), WordOf(test.document.List())));
        recovery.Finish();
    }
}

}

class FileFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faults_data();
    void faults();

private:
    void SetUp(const QString &work, const Folders &folders) const;
    void Check(const QString &work, const Folders &folders, CallFault fault, int exit) const;
};

void FileFaultsTest::faults_data()
{
    QTest::addColumn<QString>("work");
    QTest::addColumn<CallFault>("fault");
    for (const char *work : {"list", "overwriting", "copies", "settings"}) {
        const QString name = QString::fromLatin1(work);
        QTest::addRow("%s, killed", work) << name << CallFault::Kill;
        QTest::addRow("%s, a call fails", work) << name << CallFault::Once;
        QTest::addRow("%s, the disk is full", work) << name << CallFault::FullDisk;
    }
}

void FileFaultsTest::faults()
{
    QFETCH(QString, work);
    QFETCH(CallFault, fault);
    int exit = Succeeded;
    for (int number = 1; exit != FewerCalls; ++number) {
        const QTemporaryDir folder;
        const Folders folders = {folder.path()};
        SetUp(work, folders);
        exit = QProcess::execute(QCoreApplication::applicationFilePath(),
            {QStringLiteral("drive"), work, QString::number(int(fault)), QString::number(number),
                folder.path()});
        QVERIFY2(exit == Succeeded || exit == Failed || exit == FewerCalls || exit == KilledByFault,
            qPrintable(QString::number(exit)));
        QVERIFY(number < 200);
        Check(work, folders, fault, exit);
        if (QTest::currentTestFailed()) {
            qWarning("at call %d, exit code %d", number, exit);
            return;
        }
    }
}

void FileFaultsTest::SetUp(const QString &work, const Folders &folders) const
{
    QVERIFY(SaveList(folders, QStringLiteral("old")));
    QVERIFY(QFile::copy(folders.List(), folders.OtherList()));
    QVERIFY(SaveSettings(folders, QStringLiteral("old")));
    if (work == QStringLiteral("overwriting")) {
        const QByteArray path = QFile::encodeName(folders.List());
        QCOMPARE(::link(path.constData(), (path + ".second-name").constData()), 0);
    }
}

void FileFaultsTest::Check(const QString &work, const Folders &folders, CallFault fault, int exit) const
{
    const bool succeeded = exit == Succeeded || exit == FewerCalls;
    CWordList list;
    (void)ReadWordListFile(list, folders.List());
    const QString word = WordOf(list);
    const QStringList offered = Offered(folders);
    if (work == QStringLiteral("settings")) {
        const CTexts texts;
        CIniStore store(folders.Ini(), CAppSettings::RootPath());
        CAppSettings settings(store, texts);
        settings.Exchange(true);
        const QString &author = settings.editor.author;
        QVERIFY(author == QStringLiteral("changed") || (!succeeded && author == QStringLiteral("old")));
        QVERIFY(!settings.isFirstRun && settings.find.language == 2);
    } else if (work == QStringLiteral("copies")) {
        QCOMPARE(word, QStringLiteral("old"));
        for (const QString &copy : offered) {
            QVERIFY2(copy == QStringLiteral("70161 list.gls first")
                    || copy == QStringLiteral("70161 other.gls second"),
                qPrintable(copy));
        }
        QVERIFY(!succeeded || offered.contains(QStringLiteral("70161 other.gls second")));
    } else if (word.isEmpty()) {
        QVERIFY(fault != CallFault::Once && !succeeded && work == QStringLiteral("overwriting"));
        QCOMPARE(offered, QStringList{QStringLiteral("70053 list.gls old")});
    } else {
        QCOMPARE(offered, QStringList());
        QVERIFY(word == QStringLiteral("changed") || (!succeeded && word == QStringLiteral("old")));
        QVERIFY(exit != Failed || fault == CallFault::FullDisk || word == QStringLiteral("old"));
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == QStringLiteral("drive")) {
        return Drive(arguments.mid(2));
    }
    FileFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "file_faults_test.moc"
