// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "support/lists.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

CWordList SampleList()
{
    CWordList list = MakeList("hund * vovve|dog|djur|1,katt [tam]|cat||2,å|α|“citat”|12");
    list.SetProperties({.language1 = u"Svenska"_s,
        .language2 = u"Ελληνικά"_s,
        .adaptQuestion1 = true,
        .questionTemplate1 = u"%word?"_s});
    return list;
}

QByteArray SampleBytes()
{
    CWordList list = SampleList();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return WriteWordList(list, buffer) ? buffer.data() : QByteArray();
}

/// Reads whatever comes, writes what was read, and reads that again: the second reading must give the same
/// entries.
void ReadAndWriteAgain(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    CWordList list;
    if (ReadWordList(list, buffer) == ReadResult::CannotOpen) {
        return;
    }
    QBuffer written;
    written.open(QIODevice::ReadWrite);
    QVERIFY(WriteWordList(list, written));
    CWordList again;
    QVERIFY(ReadWordList(again, written) == ReadResult::Read);
    // Entries without terms are written, and skipped on reading.
    QStringList entries;
    for (int index = 0; index < list.Count(); ++index) {
        const CWordEntry &entry = list.Entry(index);
        if (!entry.GetText(0).isEmpty() || !entry.GetText(1).isEmpty()) {
            entries.append(Describe(entry));
        }
    }
    QCOMPARE(Describe(again), entries);
}

}

class DamagedFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void truncated()
    {
        const QByteArray bytes = SampleBytes();
        const QStringList entries = Describe(SampleList());
        for (qsizetype size = 0; size < bytes.size(); ++size) {
            ReadAndWriteAgain(bytes.left(size));
        }
        // Cut inside the last record, the ones before it are there.
        QBuffer buffer;
        buffer.setData(bytes.left(bytes.size() - 20));
        buffer.open(QIODevice::ReadOnly);
        CWordList list;
        QCOMPARE(ReadWordList(list, buffer), ReadResult::Read);
        QCOMPARE(Describe(list), entries.first(2));
    }

    void lyingCounts()
    {
        for (const char *count : {"2147483647", "99999999999999999999", "-2147483648", "-1", "x", ""}) {
            QBuffer buffer;
            buffer.setData(QByteArray("Ordelin 2.0\n\n\nA\nB\n") + count + "\n\n1\na\nb\n");
            buffer.open(QIODevice::ReadOnly);
            CWordList list;
            QCOMPARE(ReadWordList(list, buffer), ReadResult::Read);
            QCOMPARE(Joined(list), u"a|b||1"_s);
        }
    }
};

QTEST_APPLESS_MAIN(DamagedFilesTest)
#include "damaged_files_test.moc"
