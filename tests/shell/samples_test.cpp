// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/recent_files.h"
#include "fileformats/word_list_file.h"
#include "model/duplicate_search.h"
#include "settings/settings_store.h"
#include "shell/samples.h"
#include "support/files.h"
#include "support/scripted_format_dialogs.h"
#include "support/test_document.h"

#include <QBuffer>

class SamplesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedLists()
    {
        const QDir folder(QStringLiteral(ORDELIN_SOURCE_DIR "/samples"));
        const QList<SampleList> samples = FindSamples({QStringLiteral(ORDELIN_SOURCE_DIR)});
        QCOMPARE(samples.size(), folder.entryList(QDir::Files).size());
        QStringList titles;
        for (const SampleList &sample : samples) {
            titles.append(sample.title);
            CWordList list;
            QCOMPARE(ReadWordListFile(list, sample.path), ReadResult::Read);
            QVERIFY2(list.Count() >= 100, qPrintable(sample.path));
            QBuffer written;
            QVERIFY(written.open(QIODevice::WriteOnly));
            QVERIFY(WriteWordList(list, written));
            QVERIFY2(written.data() == Content(sample.path), qPrintable(sample.path));
            const std::optional<DuplicatePair> pair = CDuplicateSearch(list).FindNext({});
            QVERIFY2(!pair, qPrintable(sample.path + u' ' + list.Entry(pair ? pair->other : 0).GetText(0)));
        }
        QCOMPARE(titles.removeDuplicates(), 0);
        QVERIFY(titles.contains(u"Tyska för första året"_s));
    }

    void whatIsNoSample()
    {
        const QTemporaryDir folder;
        const QDir root(folder.path());
        const QByteArray shipped = Content(QStringLiteral(ORDELIN_SOURCE_DIR "/samples/english-german.gls"));
        WriteFile(root.filePath(u"a/samples/one.gls"_s), shipped);
        WriteFile(root.filePath(u"b/samples/one.gls"_s), "Ordelin 2.0\r\n");
        WriteFile(root.filePath(u"b/samples/large.gls"_s), shipped + QByteArray(1 << 20, '\n'));
        WriteFile(root.filePath(u"b/samples/latex.gls"_s), "\\glossarysection\n");
        WriteFile(root.filePath(u"b/samples/notes.txt"_s), shipped);
        const QList<SampleList> samples =
            FindSamples({root.filePath(u"a"_s), root.filePath(u"b"_s), root.filePath(u"c"_s)});
        QCOMPARE(samples.size(), 1);
        QCOMPARE(samples[0].path, root.filePath(u"a/samples/one.gls"_s));
    }

    void openedAsACopy()
    {
        const QString path = QStringLiteral(ORDELIN_SOURCE_DIR "/samples/english-german.gls");
        const QTemporaryDir folder;
        TestDocument test;
        CScriptedChooser chooser;
        CScriptedFormatDialogs formatDialogs;
        CMemoryStore store;
        CRecentFiles recent(store, u"root"_s);
        CFileCommands files(test.document, test.texts, test.prompt, chooser, formatDialogs, recent);
        QVERIFY(files.OpenCopy(path));
        QVERIFY(!test.document.IsModified() && test.document.Path().isEmpty());
        QVERIFY(recent.Paths().isEmpty());
        const QString saved = folder.filePath(u"mine.gls"_s);
        chooser.paths = {saved};
        QVERIFY(files.Save());
        QCOMPARE(test.document.Path(), saved);
        QCOMPARE(Content(saved), Content(path));
    }
};

QTEST_GUILESS_MAIN(SamplesTest)
#include "samples_test.moc"
