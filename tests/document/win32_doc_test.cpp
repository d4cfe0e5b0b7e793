// SPDX-License-Identifier: MIT
#include "document/text_numbers.h"
#include "support/files.h"
#include "support/full_disk.h"
#include "support/test_document.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class Win32DocTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDocument()
    {
        TestDocument test;
        const CWordList &list = test.document.List();
        QCOMPARE(list.GetLanguage(0) + u'/' + list.GetLanguage(1), u"Svenska/Engelska"_s);
        QVERIFY(list.GetComments().startsWith(u"Skapad "_s) && list.GetComments().contains(u"2004"_s));
        QVERIFY(list.IsSaved());
        QCOMPARE(test.document.Title(), u"Namnlös"_s);
        // Properties alone make no list worth saving.
        test.document.Change([](CWordList &changed) { changed.SetAuthor(u"x"_s); });
        QVERIFY(!test.document.IsModified());
        QCOMPARE(test.document.Title(), u"* Namnlös"_s);

        // Names are kept where all are given.
        test.settings.language1 = u"Finska"_s;
        test.settings.author = u"Ny"_s;
        const auto names = [&] {
            const CWordList &kept = test.document.List();
            return kept.GetLanguage(0) + kept.GetLanguage(1) + kept.GetAuthor() + kept.GetQuestionTemplate(0);
        };
        test.document.SetListProperties({.language1 = u"Tyska"_s,
            .language2 = u"Franska"_s,
            .author = u"Jag"_s,
            .questionTemplate1 = u"t"_s});
        test.document.OnNewDocument();
        QCOMPARE(names(), u"TyskaFranskaJag"_s);
        test.document.SetListProperties({.language1 = QString(), .author = QString()});
        test.document.OnNewDocument();
        QCOMPARE(names(), u"FinskaFranskaNy"_s);
    }

    void opening()
    {
        const struct
        {
            QByteArray bytes;
            QList<int> shown;
            bool keepsPath, modified;
            QString entries;
        } rows[] = {
            {"Ordelin 2.0\n\n\nA\nB\n1\n\n1\na\nb\n", {}, true, false, u"a|b||1"_s}, // own file
            // Lossy header.
            {"\xEF\xBB\xBFOrdelin 2.0\n\n\nA\nB\n1\xCE\xB1\n\n1\na\nb\n", {}, true, false, u"a|b||1"_s},
            {"Ordelin 3\n\n\nA\nB\n1\n0\n\n0\n\n\n1\na\nb\n\n", {Text::NewerVersion}, false, false,
                u"a|b||1"_s},
            {"a\nb\n", {Text::ReadAsPlainText}, false, true, u"a|b"_s},
            {"WordQuiz\n", {Text::CannotOpen}, false, false, {}}, // without vocabulary
        };
        for (const auto &row : rows) {
            TestDocument test(u"old|list"_s);
            QList<bool> replaced;
            QObject::connect(&test.document, &CWin32Doc::Changed, [&](const ListChange &change) {
                QCOMPARE(test.Entries(), row.entries); // Told of what is there by then.
                replaced.append(change.replaced);
            });
            const QString path = Write(row.bytes);
            QCOMPARE(test.document.OpenDocument(path), !row.entries.isEmpty());
            QCOMPARE(test.prompt.numbers, row.shown);
            QCOMPARE(test.document.Path(), row.keepsPath ? path : QString());
            QCOMPARE(test.document.IsModified(), row.modified);
            QCOMPARE(test.Entries(), row.entries);
            QCOMPARE(replaced, QList<bool>{true});
        }
    }

    void refusedFiles()
    {
        TestDocument test(u"old|list"_s);
        const QString path = Write("Ordelin 2.0\n" + QByteArray(16'000'001, 'x'));
        QVERIFY(!test.document.OpenDocument(path));
        QCOMPARE(test.document.List().Count(), 0);
        QVERIFY(QFile::resize(path, qint64(512) * 1024 * 1024 + 1));
        QVERIFY(!test.document.OpenDocument(path));
        QCOMPARE(test.prompt.numbers, QList<int>({Text::LineTooLong, Text::FileTooLarge}));
        QVERIFY(test.prompt.texts[0].contains(path) && test.prompt.texts[1].contains(path));
        QCOMPARE(test.document.Path(), QString());
    }

    void saving()
    {
        TestDocument test(u"a|b"_s);
        test.document.Change([&](CWordList &list) { list.SetFlags(0, std::array{0}, FlagMode::Set); });
        const QString bad = Path(u"no/folder.gls"_s);
        QVERIFY(!test.document.OnSaveDocument(bad));
        QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotSave});
        QVERIFY(test.prompt.texts.first().contains(bad));
        QCOMPARE(test.document.Path(), QString());
        QCOMPARE(test.document.Title(), u"* Namnlös"_s);

        // A disk that is full after some bytes: told, and nothing else happened.
        const QString full = Path(u"full.gls"_s);
        QVERIFY(!WithFullDisk(10, [&] { return test.document.OnSaveDocument(full); }));
        QVERIFY(test.prompt.numbers.last() == Text::CannotSave && test.prompt.texts.last().contains(full));
        QVERIFY(test.document.IsModified() && test.document.Path().isEmpty());
        QVERIFY(!QFile::exists(full));

        const QString good = Path(u"min lista.gls"_s);
        test.settings.alwaysSaveInUnicode = true;
        QVERIFY(test.document.OnSaveDocument(good));
        QCOMPARE(test.document.Title(), u"min lista.gls"_s);
        QVERIFY(!test.document.IsModified());
        QVERIFY(Content(good).startsWith("\xFF\xFE"));
    }

    void foreignChanges()
    {
        TestDocument test;
        const QString path = Write("Ordelin 2.0\n\n\nA\nB\n1\n\n1\na\nb\n");
        QDir::setCurrent(m_folder.path());
        QVERIFY(test.document.OpenDocument(QFileInfo(path).fileName()));
        QDir::setCurrent(QDir::rootPath());
        QCOMPARE(test.document.Path(), path); // Whatever folder the program is in later.
        test.document.Change([&](CWordList &list) { list.SetFlags(0, std::array{0}, FlagMode::Clear); });
        QVERIFY(!test.document.IsChangedOutside());
        // Of the same size, and with the time put back.
        struct stat before = {};
        QCOMPARE(::stat(path.toUtf8().constData(), &before), 0);
        Write("Ordelin 2.0\n\n\nA\nB\n1\n\n1\nx\ny\n");
        const std::array times = {before.st_atim, before.st_mtim};
        QCOMPARE(::utimensat(AT_FDCWD, path.toUtf8().constData(), times.data(), 0), 0);
        QVERIFY(test.document.IsChangedOutside() && test.document.OnSaveDocument(path));
        QVERIFY(!test.document.IsChangedOutside()); // Its own change is none.
        QVERIFY(QFile::remove(path));
        QVERIFY(!test.document.IsChangedOutside());
        QVERIFY(test.document.OnSaveDocument(path)); // A file that is gone is made again.
        QVERIFY(test.prompt.numbers.isEmpty());
    }

    void fileThatWasPutBack()
    {
        TestDocument test;
        CWin32Doc document(
            {test.texts, test.settings, test.prompt, [] { return QDate(); }, {}, Path(u"state"_s)});
        const QString path = Write("Ordelin 2.0\n\n\nA\nB\n1\n\n1\na\nb\n");
        const QByteArray name = path.toUtf8();
        QCOMPARE(::link(name.constData(), (name + " 2").constData()), 0); // Overwritten, therefore.
        QVERIFY(document.OpenDocument(path));
        document.Change([](CWordList &list) { list.SetComments(QString(5000, u'x')); });
        QVERIFY(!WithFullDisk(2000, [&] { return document.OnSaveDocument(path); }));
        QVERIFY(!document.IsChangedOutside() && document.OnSaveDocument(path));
        QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotSave});
    }

    void entriesWithoutTerms()
    {
        TestDocument test(u"a|b,|| a note,*|[ ]||1"_s);
        const QString path = Path(u"without.gls"_s);
        QVERIFY(test.document.OnSaveDocument(path));
        QCOMPARE(test.prompt.numbers, QList<int>{Text::EntriesNotSaved});
        QVERIFY(test.prompt.texts[0].contains(u'2'));
        QVERIFY(test.document.IsModified());
        QCOMPARE(test.document.Title(), u"* without.gls"_s);
        QVERIFY(test.document.SaveCopy(Path(u"copy.gls"_s)));
        QCOMPARE(test.prompt.numbers.size(), 2);
        test.document.Change([](CWordList &list) { list.DeleteEntries(std::array{1, 2}); });
        QVERIFY(test.document.OnSaveDocument(path) && !test.document.IsModified());
        QCOMPARE(test.prompt.numbers.size(), 2);
    }

    void undoAcrossSaving()
    {
        TestDocument test(u"a|b"_s);
        QSignalSpy titles(&test.document, &CWin32Doc::TitleChanged);
        QCOMPARE(test.document.UndoCount(), 0);
        test.document.Change([&](CWordList &list) { list.Insert(MakeEntry(u"c|d"_s)); });
        QCOMPARE(titles.count(), 1);
        QVERIFY(test.document.OnSaveDocument(Path(u"undo.gls"_s)) && !test.document.IsModified());
        test.document.Undo();
        QCOMPARE(test.Entries(), u"a|b"_s);
        QVERIFY(test.document.IsModified()); // The file holds the other state.
        QCOMPARE(test.document.Path(), Path(u"undo.gls"_s));
        test.document.Redo();
        QVERIFY(!test.document.IsModified());
        test.document.OnNewDocument();
        QCOMPARE(test.document.UndoCount() + test.document.RedoCount(), 0);
    }

    void tellsWhatChanged()
    {
        using Entries = ListDifference::Entries;
        TestDocument test(u"a|1,b|2,c|3,d|4,e|5"_s);
        QList<ListDifference> told;
        QObject::connect(&test.document, &CWin32Doc::Changed, [&](const ListChange &change) {
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
        change([](CWordList &list) { list.Insert(MakeEntry(u"x|y"_s), {.position = 2}); });
        QCOMPARE(told, (QList{ListDifference{Entries::Inserted, 2, 0, 1}}));
        change([](CWordList &list) { list.DeleteEntries(std::array{1, 2, 4}); });
        QCOMPARE(told, (QList{ListDifference{Entries::Removed, 1, 4, 1}}));
        change([&](CWordList &list) { list.Sort(0, {.ascending = false}, random); });
        QCOMPARE(told, (QList{ListDifference{Entries::Changed, 0, 3, 3}}));
        change([](CWordList &list) {
            list.SetEntryField(u"n"_s, 2, 1, false);
            list.SetAuthor(u"Eva"_s);
        });
        QCOMPARE(told, (QList{ListDifference{Entries::Changed, 1, 1, 1, true}}));
        told.clear();
        for (int step = 0; step < 3; ++step) {
            test.document.Undo();
        }
        QCOMPARE(told,
            (QList{ListDifference{Entries::Changed, 1, 1, 1, true}, ListDifference{Entries::Changed, 0, 3, 3},
                ListDifference{Entries::Inserted, 1, 1, 4}}));
    }

    void insertionPointGoesWithItsState()
    {
        TestDocument test(u"a|1,b|2,c|3"_s);
        CWin32Doc &document = test.document;
        document.SetInsertionPoint(7);
        QCOMPARE(document.InsertionPoint(), 3);
        document.SetInsertionPoint(2);
        document.Change([](CWordList &list) { list.Insert(MakeEntry(u"x|y"_s), {.position = 2}); });
        QCOMPARE(document.InsertionPoint(), 3);
        document.Change([](CWordList &list) { list.Insert(MakeEntry(u"z|y"_s)); });
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

    void mailingAndPlaceholders()
    {
        TestDocument test(u"a|b"_s);
        test.settings.standardFilename = u"%language2 av mig"_s;
        test.document.Change([&](CWordList &list) { list.SetFlags(0, std::array{0}, FlagMode::Toggle); });
        test.document.OnFileSendMail();
        QCOMPARE(test.started.size(), 1);
        const QString file = test.started[0].value(2);
        QCOMPARE(test.started[0].mid(0, 2), QStringList({u"xdg-email"_s, u"--attach"_s}));
        QVERIFY(file.endsWith(u"/Engelska av mig.gls"_s) && QFile::exists(file));
        QVERIFY(test.document.IsModified() && test.document.Path().isEmpty());
        test.canStartPrograms = false;
        test.document.OnFileSendMail();
        QCOMPARE(test.prompt.numbers, QList<int>{Text::CannotStartMail});
        test.document.Change([&](CWordList &list) {
            list.SetProperties({.language1 = u"%author"_s, .author = u"A/B"_s, .comments = u"c"_s});
        });
        QCOMPARE(test.document.ExpandPlaceholders(u"%language1 %language2 %comments %nwords %none"_s),
            u"A/B Engelska c 1 %none"_s);
        test.settings.standardFilename = u"%language2: av %author?*"_s;
        QCOMPARE(test.document.SuggestFileName(), u"Engelska av AB"_s);
    }

private:
    QTemporaryDir m_folder;
    QString Path(const QString &name) const { return m_folder.filePath(name); }
    QString Write(const QByteArray &bytes) { return WriteFile(Path(u"list.gls"_s), bytes); }
};

QTEST_GUILESS_MAIN(Win32DocTest)
#include "win32_doc_test.moc"
