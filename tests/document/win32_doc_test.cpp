// SPDX-License-Identifier: MIT
#include "resources/text_numbers.h"
#include "support/test_document.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

class Win32DocTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDocument();
    void newKeepsNamesWhenAllAreGiven();
    void opening_data();
    void opening();
    void saving();
    void foreignChangesAreNotOverwritten();
    void undoAcrossSaving();
    void listProperties();
    void mailing();
    void placeholders();

private:
    QTemporaryDir m_folder;
    QString Write(const QByteArray &bytes)
    {
        const QString path = m_folder.filePath(QStringLiteral("list.gls"));
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
    }
};

void Win32DocTest::newDocument()
{
    TestDocument test;
    const CWordList &list = test.document.List();
    QCOMPARE(list.GetLanguage(0) + u'/' + list.GetLanguage(1), QStringLiteral("Svenska/Engelska"));
    QVERIFY(list.GetComments().startsWith(QStringLiteral("Skapad "))
        && list.GetComments().contains(QStringLiteral("2004")));
    QVERIFY(list.IsSaved());
    QCOMPARE(test.document.Title(), QStringLiteral("Namnlös"));
    // Properties alone make no list worth saving.
    test.document.BeginChange().SetAuthor(QStringLiteral("x"));
    QVERIFY(!test.document.IsModified());
    QCOMPARE(test.document.Title(), QStringLiteral("* Namnlös"));
}

void Win32DocTest::newKeepsNamesWhenAllAreGiven()
{
    TestDocument test;
    test.settings.language1 = QStringLiteral("Finska");
    test.settings.author = QStringLiteral("Ny");
    const auto names = [&] {
        const CWordList &list = test.document.List();
        return list.GetLanguage(0) + list.GetLanguage(1) + list.GetAuthor();
    };
    test.document.BeginChange().SetProperties({.language1 = QStringLiteral("Tyska"),
        .language2 = QStringLiteral("Franska"),
        .author = QStringLiteral("Jag"),
        .questionTemplate1 = QStringLiteral("t")});
    test.document.OnNewDocument();
    QCOMPARE(names(), QStringLiteral("TyskaFranskaJag"));
    QCOMPARE(test.document.List().GetQuestionTemplate(0), QString());
    test.document.BeginChange().SetProperties({.language1 = QString(), .author = QString()});
    test.document.OnNewDocument();
    QCOMPARE(names(), QStringLiteral("FinskaFranskaNy"));
}

void Win32DocTest::opening_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<int>>("shown");
    QTest::addColumn<bool>("keepsPath");
    QTest::addColumn<bool>("modified");
    QTest::addColumn<int>("count");
    QTest::newRow("own file") << QByteArray("Ordelin 2.0\n\n\nA\nB\n1\n\n1\na\nb\n") << QList<int>{} << true
                              << false << 1;
    QTest::newRow("lossy header") << QByteArray("\xEF\xBB\xBFOrdelin 2.0\n\n\nA\nB\n1\xCE\xB1\n\n1\na\nb\n")
                                  << QList<int>{} << true << false << 1;
    QTest::newRow("newer version") << QByteArray("Ordelin 3\n\n\nA\nB\n1\n0\n\n0\n\n\n1\na\nb\n\n")
                                   << QList<int>{Text::NewerVersion} << false << false << 1;
    QTest::newRow("plain text") << QByteArray("a\nb\n") << QList<int>{Text::ReadAsPlainText} << false << true
                                << 1;
    QTest::newRow("foreign file without vocabulary")
        << QByteArray("WordQuiz\n") << QList<int>{Text::CannotOpen} << false << false << 0;
}

void Win32DocTest::opening()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<int>, shown);
    QFETCH(bool, keepsPath);
    QFETCH(bool, modified);
    QFETCH(int, count);
    TestDocument test(QStringList{QStringLiteral("old|list")});
    const QSignalSpy replaced(&test.document, &CWin32Doc::ListReplaced);
    const QSignalSpy converted(&test.document, &CWin32Doc::FileConverted);
    const QString path = Write(bytes);
    QCOMPARE(test.document.OpenDocument(path), count > 0);
    QCOMPARE(test.prompt.numbers, shown);
    QCOMPARE(test.document.Path(), keepsPath ? path : QString());
    QCOMPARE(test.document.IsModified(), modified);
    QCOMPARE(test.document.List().Count(), count);
    QCOMPARE(replaced.count(), 1);
    QCOMPARE(converted.count(), 0); // Told from the event loop.
    QCoreApplication::processEvents();
    QCOMPARE(converted.count(), int(count > 0 && !keepsPath));
}

void Win32DocTest::saving()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.document.BeginChange().SetFlags(0, std::vector<int>{0}, FlagMode::Set);
    const QString bad = m_folder.filePath(QStringLiteral("no/folder.gls"));
    QVERIFY(!test.document.OnSaveDocument(bad));
    QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotSave});
    QVERIFY(test.prompt.texts.first().contains(bad));
    QCOMPARE(test.document.Path(), QString());
    QCOMPARE(test.document.Title(), QStringLiteral("* Namnlös"));

    // A disk that is full after some bytes: told, and nothing else happened.
    const QString full = m_folder.filePath(QStringLiteral("full.gls"));
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {10, 10};
        setrlimit(RLIMIT_FSIZE, &limit);
        const bool saved = test.document.OnSaveDocument(full);
        const bool told =
            test.prompt.numbers.last() == Text::CannotSave && test.prompt.texts.last().contains(full);
        _exit(!saved && told && test.document.IsModified() && test.document.Path().isEmpty() ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    QCOMPARE(status, 0);
    QVERIFY(!QFile::exists(full));

    const QString good = m_folder.filePath(QStringLiteral("min lista.gls"));
    test.settings.alwaysSaveInUnicode = true;
    QVERIFY(test.document.OnSaveDocument(good));
    QCOMPARE(test.document.Title(), QStringLiteral("min lista.gls"));
    QVERIFY(!test.document.IsModified());
    QFile file(good);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith("\xFF\xFE"));
}

void Win32DocTest::foreignChangesAreNotOverwritten()
{
    TestDocument test;
    const QByteArray foreign = "Ordelin 2.0\n\n\nA\nB\n1\n\n1\nforeign\nchange\n";
    const QString path = Write("Ordelin 2.0\n\n\nA\nB\n1\n\n1\na\nb\n");
    QDir::setCurrent(m_folder.path());
    QVERIFY(test.document.OpenDocument(QFileInfo(path).fileName()));
    QDir::setCurrent(QDir::rootPath());
    QCOMPARE(test.document.Path(), path); // Whatever folder the program is in later.
    test.document.BeginChange().SetFlags(0, std::vector<int>{0}, FlagMode::Clear);
    Write(foreign);
    test.prompt.answers = {PromptAnswer::No, PromptAnswer::Yes};
    QVERIFY(!test.document.OnSaveDocument(path));
    QCOMPARE(test.prompt.numbers, QList<int>{Text::OverwriteForeignChange});
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), foreign);
    QVERIFY(test.document.IsModified());
    QVERIFY(test.document.OnSaveDocument(path));
    QVERIFY(test.document.OnSaveDocument(path)); // Its own change is none to ask about.
    QCOMPARE(test.prompt.numbers.size(), 2);
    QVERIFY(QFile::remove(path));
    QVERIFY(test.document.OnSaveDocument(path)); // A file that is gone is made again.
    QCOMPARE(test.prompt.numbers.size(), 2);
}

void Win32DocTest::undoAcrossSaving()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    QSignalSpy titles(&test.document, &CWin32Doc::TitleChanged);
    QCOMPARE(test.document.UndoCount(), 0);
    test.document.BeginChange().Insert(MakeEntry(QStringLiteral("c|d")));
    test.document.UpdateTitleMark();
    QCOMPARE(titles.count(), 1);
    QVERIFY(test.document.OnSaveDocument(m_folder.filePath(QStringLiteral("undo.gls"))));
    QVERIFY(!test.document.IsModified());
    test.document.Undo();
    QCOMPARE(Describe(test.document.List()).join(u','), QStringLiteral("a|b"));
    QVERIFY(test.document.IsModified()); // The file holds the other state.
    QCOMPARE(test.document.Path(), m_folder.filePath(QStringLiteral("undo.gls")));
    test.document.Redo();
    QVERIFY(!test.document.IsModified());
    test.document.OnNewDocument();
    QCOMPARE(test.document.UndoCount() + test.document.RedoCount(), 0);
}

void Win32DocTest::listProperties()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.document.SetListProperties(
        {.author = QStringLiteral("A\r\nB\tC"), .questionTemplate2 = QStringLiteral("x\ny")});
    QCOMPARE(test.document.List().GetAuthor(), QStringLiteral("A  B C"));
    QCOMPARE(test.document.List().GetQuestionTemplate(1), QStringLiteral("x y"));
    QCOMPARE(test.document.UndoCount(), 1);
    test.document.SetListProperties({.author = QStringLiteral("A  B C")});
    QCOMPARE(test.document.UndoCount(), 1); // Nothing differed.
}

void Win32DocTest::mailing()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.settings.standardFilename = QStringLiteral("%language2 av mig");
    test.document.BeginChange().SetSaved(false);
    test.document.OnFileSendMail();
    QCOMPARE(test.started.size(), 1);
    const QString file = test.started[0].value(2);
    QCOMPARE(test.started[0].mid(0, 2), QStringList({QStringLiteral("xdg-email"), QStringLiteral("--attach")}));
    QVERIFY(file.endsWith(QStringLiteral("/Engelska av mig.gls")) && QFile::exists(file));
    QVERIFY(test.document.IsModified() && test.document.Path().isEmpty());
    test.canStartPrograms = false;
    test.document.OnFileSendMail();
    QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotStartMail});
}

void Win32DocTest::placeholders()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.document.BeginChange().SetProperties({.language1 = QStringLiteral("%author"),
        .author = QStringLiteral("A/B"),
        .comments = QStringLiteral("c")});
    QCOMPARE(test.document.ExpandPlaceholders(QStringLiteral("%language1 %language2 %comments %nwords %none")),
        QStringLiteral("A/B Engelska c 1 %none"));
    test.settings.standardFilename = QStringLiteral("%language2: av %author?*");
    QCOMPARE(test.document.SuggestFileName(), QStringLiteral("Engelska av AB"));
}

QTEST_GUILESS_MAIN(Win32DocTest)
#include "win32_doc_test.moc"
