// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/recent_files.h"
#include "fileformats/word_list_file.h"
#include "model/duplicate_search.h"
#include "settings/settings_store.h"
#include "shell/samples.h"
#include "support/test_document.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray ContentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}

class SamplesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedLists();
    void whatIsNoSample();
    void openedAsACopy();
};

void SamplesTest::shippedLists()
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
        QVERIFY2(written.data() == ContentOf(sample.path), qPrintable(sample.path));
        const std::optional<DuplicatePair> pair = CDuplicateSearch(list).FindNext({});
        QVERIFY2(!pair, qPrintable(sample.path + u' ' + list.Entry(pair ? pair->other : 0).GetText(0)));
    }
    QCOMPARE(titles.removeDuplicates(), 0);
    QVERIFY(titles.contains(QStringLiteral("Tyska för första året")));
}

void SamplesTest::whatIsNoSample()
{
    const QTemporaryDir folder;
    const QDir root(folder.path());
    const QByteArray shipped = ContentOf(QStringLiteral(ORDELIN_SOURCE_DIR "/samples/english-german.gls"));
    const auto write = [&](const QString &name, const QByteArray &content) {
        QVERIFY(root.mkpath(QFileInfo(name).path()));
        QFile file(root.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    };
    write(QStringLiteral("a/samples/one.gls"), shipped);
    write(QStringLiteral("b/samples/one.gls"), "Ordelin 2.0\r\n");
    write(QStringLiteral("b/samples/large.gls"), shipped + QByteArray(1 << 20, '\n'));
    write(QStringLiteral("b/samples/latex.gls"), "\\glossarysection\n");
    write(QStringLiteral("b/samples/notes.txt"), shipped);
    const QList<SampleList> samples = FindSamples({root.filePath(QStringLiteral("a")),
        root.filePath(QStringLiteral("b")), root.filePath(QStringLiteral("c"))});
    QCOMPARE(samples.size(), 1);
    QCOMPARE(samples[0].path, root.filePath(QStringLiteral("a/samples/one.gls")));
}

void SamplesTest::openedAsACopy()
{
    const QString path = QStringLiteral(ORDELIN_SOURCE_DIR "/samples/english-german.gls");
    const QTemporaryDir folder;
    TestDocument test;
    CScriptedChooser chooser;
    CMemoryStore store;
    CRecentFiles recent(store, QStringLiteral("root"));
    CFileCommands files(test.document, test.texts, test.prompt, chooser, recent);
    QVERIFY(files.OpenCopy(path));
    QVERIFY(!test.document.IsModified());
    QVERIFY(test.document.Path().isEmpty());
    QVERIFY(recent.Paths().isEmpty());
    const QString saved = folder.filePath(QStringLiteral("mine.gls"));
    chooser.paths = {saved};
    QVERIFY(files.Save());
    QCOMPARE(test.document.Path(), saved);
    QCOMPARE(ContentOf(saved), ContentOf(path));
}

QTEST_GUILESS_MAIN(SamplesTest)
#include "samples_test.moc"
