// SPDX-License-Identifier: MIT
#include "document/text_numbers.h"
#include "support/test_document.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Runs `save` while no file can grow beyond some bytes.
bool WithFullDisk(rlim_t bytes, const std::function<bool()> &save)
{
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit low = {bytes, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &low);
    const bool saved = save();
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    return saved;
}

}

class Win32DocTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDocument();
    void newKeepsNamesWhenAllAreGiven();
    void opening_data();
    void opening();
    void refusedFiles();
    void saving();
    void foreignChanges();
    void fileThatWasPutBack();
    void entriesWithoutTerms();
    void undoAcrossSaving();
    void tellsWhatChanged();
    void insertionPointGoesWithItsState();
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
    test.document.Change([](CWordList &changed) { changed.SetAuthor(QStringLiteral("x")); });
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
    test.document.Change([&](CWordList &list) {
        list.SetProperties({.language1 = QStringLiteral("Tyska"),
            .language2 = QStringLiteral("Franska"),
            .author = QStringLiteral("Jag"),
            .questionTemplate1 = QStringLiteral("t")});
    });
    test.document.OnNewDocument();
    QCOMPARE(names(), QStringLiteral("TyskaFranskaJag"));
    QCOMPARE(test.document.List().GetQuestionTemplate(0), QString());
    test.document.Change(
        [&](CWordList &list) { list.SetProperties({.language1 = QString(), .author = QString()}); });
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
    QList<bool> replaced;
    connect(&test.document, &CWin32Doc::Changed, this, [&](const ListChange &change) {
        QCOMPARE(test.document.List().Count(), count); // Told of what is there by then.
        replaced.append(change.replaced);
    });
    const QString path = Write(bytes);
    QCOMPARE(test.document.OpenDocument(path), count > 0);
    QCOMPARE(test.prompt.numbers, shown);
    QCOMPARE(test.document.Path(), keepsPath ? path : QString());
    QCOMPARE(test.document.IsModified(), modified);
    QCOMPARE(test.document.List().Count(), count);
    QCOMPARE(replaced, QList<bool>{true});
    QVERIFY(disconnect(&test.document, &CWin32Doc::Changed, this, nullptr));
}

void Win32DocTest::refusedFiles()
{
    TestDocument test(QStringList{QStringLiteral("old|list")});
    const QString path = Write("Ordelin 2.0\n" + QByteArray(16'000'001, 'x'));
    QVERIFY(!test.document.OpenDocument(path));
    QCOMPARE(test.document.List().Count(), 0);
    QVERIFY(QFile::resize(path, qint64(512) * 1024 * 1024 + 1));
    QVERIFY(!test.document.OpenDocument(path));
    QCOMPARE(test.prompt.numbers, QList<int>({Text::LineTooLong, Text::FileTooLarge}));
    QVERIFY(test.prompt.texts[0].contains(path) && test.prompt.texts[1].contains(path));
    QCOMPARE(test.document.Path(), QString());
}

void Win32DocTest::saving()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.document.Change([&](CWordList &list) { list.SetFlags(0, std::vector<int>{0}, FlagMode::Set); });
    const QString bad = m_folder.filePath(QStringLiteral("no/folder.gls"));
    QVERIFY(!test.document.OnSaveDocument(bad));
    QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotSave});
    QVERIFY(test.prompt.texts.first().contains(bad));
    QCOMPARE(test.document.Path(), QString());
    QCOMPARE(test.document.Title(), QStringLiteral("* Namnlös"));

    // A disk that is full after some bytes: told, and nothing else happened.
    const QString full = m_folder.filePath(QStringLiteral("full.gls"));
    QVERIFY(!WithFullDisk(10, [&] { return test.document.OnSaveDocument(full); }));
    QVERIFY(test.prompt.numbers.last() == Text::CannotSave && test.prompt.texts.last().contains(full));
    QVERIFY(test.document.IsModified() && test.document.Path().isEmpty());
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

void Win32DocTest::foreignChanges()
{
    TestDocument test;
    const QString path = Write("Ordelin 2.0\n\n\nA\nB\n1\n\n1\na\nb\n");
    QDir::setCurrent(m_folder.path());
    QVERIFY(test.document.OpenDocument(QFileInfo(path).fileName()));
    QDir::setCurrent(QDir::rootPath());
    QCOMPARE(test.document.Path(), path); // Whatever folder the program is in later.
    test.document.Change([&](CWordList &list) { list.SetFlags(0, std::vector<int>{0}, FlagMode::Clear); });
    QVERIFY(!test.document.IsChangedOutside());
    // Of the same size, and with the time put back.
    struct stat before = {};
    QCOMPARE(::stat(path.toUtf8().constData(), &before), 0);
    Write("Ordelin 2.0\n\n\nA\nB\n1\n\n1\nx\ny\n");
    const std::array times = {before.st_atim, before.st_mtim};
    QCOMPARE(::utimensat(AT_FDCWD, path.toUtf8().constData(), times.data(), 0), 0);
    QVERIFY(test.document.IsChangedOutside());
    QVERIFY(test.document.OnSaveDocument(path));
    QVERIFY(!test.document.IsChangedOutside()); // Its own change is none.
    QVERIFY(QFile::remove(path));
    QVERIFY(!test.document.IsChangedOutside());
    QVERIFY(test.document.OnSaveDocument(path)); // A file that is gone is made again.
    QVERIFY(test.prompt.numbers.isEmpty());
}

void Win32DocTest::fileThatWasPutBack()
{
    TestDocument test;
    CWin32Doc document({test.texts, test.settings, test.prompt, [] { return QDate(); }, {},
        m_folder.filePath(QStringLiteral("state"))});
    const QString path = Write("Ordelin 2.0\n\n\nA\nB\n1\n\n1\na\nb\n");
    const QString secondName = m_folder.filePath(QStringLiteral("name 2"));
    QCOMPARE(::link(path.toUtf8().constData(), secondName.toUtf8().constData()), 0); // Overwritten, therefore.
    QVERIFY(document.OpenDocument(path));
    document.Change([](CWordList &list) { list.SetComments(QString(5000, u'x')); });
    QVERIFY(!WithFullDisk(2000, [&] { return document.OnSaveDocument(path); }));
    QVERIFY(!document.IsChangedOutside());
    QVERIFY(document.OnSaveDocument(path));
    QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotSave});
}

void Win32DocTest::entriesWithoutTerms()
{
    TestDocument test(
        QStringList{QStringLiteral("a|b"), QStringLiteral("|| a note"), QStringLiteral("*|[ ]||1")});
    const QString path = m_folder.filePath(QStringLiteral("without.gls"));
    QVERIFY(test.document.OnSaveDocument(path));
    QCOMPARE(test.prompt.numbers, QList<int>{Text::EntriesNotSaved});
    QVERIFY(test.prompt.texts[0].contains(u'2'));
    QVERIFY(test.document.IsModified());
    QCOMPARE(test.document.Title(), QStringLiteral("* without.gls"));
    QVERIFY(test.document.SaveCopy(m_folder.filePath(QStringLiteral("copy.gls"))));
    QCOMPARE(test.prompt.numbers.size(), 2);
    test.document.Change([](CWordList &list) { list.DeleteEntries(std::array{1, 2}); });
    QVERIFY(test.document.OnSaveDocument(path));
    QVERIFY(!test.document.IsModified());
    QCOMPARE(test.prompt.numbers.size(), 2);
}

void Win32DocTest::undoAcrossSaving()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    QSignalSpy titles(&test.document, &CWin32Doc::TitleChanged);
    QCOMPARE(test.document.UndoCount(), 0);
    test.document.Change([&](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("c|d"))); });
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

void Win32DocTest::tellsWhatChanged()
{
    using Entries = ListDifference::Entries;
    TestDocument test(QStringList{QStringLiteral("a|1"), QStringLiteral("b|2"), QStringLiteral("c|3"),
        QStringLiteral("d|4"), QStringLiteral("e|5")});
    QList<ListDifference> told;
    connect(&test.document, &CWin32Doc::Changed, this, [&](const ListChange &change) {
        QVERIFY(!change.replaced);
        told.append(change.difference);
    });
    CRandom random(1);
    int steps = 0;
    const auto change = [&](auto function) {
        told.clear();
        steps += int(test.document.Change(function));
        QCOMPARE(test.document.UndoCount(), steps);
        QCOMPARE(test.document.IsModified(), steps > 0);
    };
    // Written anew as it is, sorted as it was, nothing selected: no step, and the list stays saved.
    change([&](CWordList &list) {
        list.Sort(0, {}, random);
        list.SetFlags(0, std::array{1}, FlagMode::Toggle);
        list.SetFlags(0, std::array{1}, FlagMode::Toggle);
        list.DeleteEntries({});
    });
    QVERIFY(told.isEmpty());
    change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("x|y")), {.position = 2}); });
    QCOMPARE(told, (QList{ListDifference{Entries::Inserted, 2, 0, 1}}));
    change([](CWordList &list) { list.DeleteEntries(std::array{1, 2, 4}); });
    QCOMPARE(told, (QList{ListDifference{Entries::Removed, 1, 4, 1}}));
    change([&](CWordList &list) { list.Sort(0, {.ascending = false}, random); });
    QCOMPARE(told, (QList{ListDifference{Entries::Changed, 0, 3, 3}}));
    change([](CWordList &list) {
        list.SetEntryField(QStringLiteral("n"), 2, 1, false);
        list.SetAuthor(QStringLiteral("Eva"));
    });
    QCOMPARE(told, (QList{ListDifference{Entries::Changed, 1, 1, 1, true}}));
    told.clear();
    for (int step = 0; step < 3; ++step) {
        test.document.Undo();
    }
    QCOMPARE(told,
        (QList{ListDifference{Entries::Changed, 1, 1, 1, true}, ListDifference{Entries::Changed, 0, 3, 3},
            ListDifference{Entries::Inserted, 1, 1, 4}}));
    QVERIFY(disconnect(&test.document, &CWin32Doc::Changed, this, nullptr));
}

void Win32DocTest::insertionPointGoesWithItsState()
{
    TestDocument test(QStringList{QStringLiteral("a|1"), QStringLiteral("b|2"), QStringLiteral("c|3")});
    CWin32Doc &document = test.document;
    document.SetInsertionPoint(7);
    QCOMPARE(document.InsertionPoint(), 3);
    document.SetInsertionPoint(2);
    document.Change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("x|y")), {.position = 2}); });
    QCOMPARE(document.InsertionPoint(), 3);
    document.Change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("z|y"))); });
    QCOMPARE(document.InsertionPoint(), 3);
    document.Change([](CWordList &list) { list.DeleteEntries(std::array{0, 2, 4}); });
    QCOMPARE(document.InsertionPoint(), 1);
    document.Change([](CWordList &list) { list.DeleteAll(); });
    QCOMPARE(document.InsertionPoint(), 0);
    for (const int expected : {1, 3, 3, 2}) {
        document.Undo();
        QCOMPARE(document.InsertionPoint(), expected);
    }
    for (const int expected : {3, 3, 1, 0}) {
        document.Redo();
        QCOMPARE(document.InsertionPoint(), expected);
    }
}

void Win32DocTest::listProperties()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.document.SetListProperties(
        {.author = QStringLiteral("A\r\nB"), .questionTemplate2 = QStringLiteral("x\ny")});
    QCOMPARE(test.document.List().GetAuthor(), QStringLiteral("A B"));
    QCOMPARE(test.document.List().GetQuestionTemplate(1), QStringLiteral("x y"));
    QCOMPARE(test.document.UndoCount(), 1);
    test.document.SetListProperties({.author = QStringLiteral("A B")});
    QCOMPARE(test.document.UndoCount(), 1); // Nothing differed.
}

void Win32DocTest::mailing()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    test.settings.standardFilename = QStringLiteral("%language2 av mig");
    test.document.Change([&](CWordList &list) { list.SetFlags(0, std::vector<int>{0}, FlagMode::Toggle); });
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
    test.document.Change([&](CWordList &list) {
        list.SetProperties({.language1 = QStringLiteral("%author"),
            .author = QStringLiteral("A/B"),
            .comments = QStringLiteral("c")});
    });
    QCOMPARE(test.document.ExpandPlaceholders(QStringLiteral("%language1 %language2 %comments %nwords %none")),
        QStringLiteral("A/B Engelska c 1 %none"));
    test.settings.standardFilename = QStringLiteral("%language2: av %author?*");
    QCOMPARE(test.document.SuggestFileName(), QStringLiteral("Engelska av AB"));
}

QTEST_GUILESS_MAIN(Win32DocTest)
#include "win32_doc_test.moc"
