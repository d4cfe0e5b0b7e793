// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "support/lists.h"

#include <QBuffer>
#include <QTest>

namespace {

CWordList SampleList()
{
    CWordList list = MakeList({QStringLiteral("hund * vovve|dog|djur|1"), QStringLiteral("katt [tam]|cat||2"),
        QStringLiteral("å|α|“citat”|12")});
    list.SetProperties({.language1 = QStringLiteral("Svenska"),
        .language2 = QStringLiteral("Ελληνικά"),
        .adaptQuestion1 = true,
        .questionTemplate1 = QStringLiteral("%word?")});
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
    void truncated();
    void scrambled();
    void lyingCounts_data();
    void lyingCounts();
};

void DamagedFilesTest::truncated()
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

void DamagedFilesTest::scrambled()
{
    CRandom random(13);
    const QByteArray bytes = SampleBytes();
    for (int round = 0; round < 2000; ++round) {
        QByteArray damaged = bytes;
        for (int changes = random.Next() % 8; changes >= 0; --changes) {
            const qsizetype place = random.Next() % damaged.size();
            switch (random.Next() % 3) {
            case 0:
                damaged[place] = char(random.Next());
                break;
            case 1:
                damaged.remove(place, random.Next() % 5);
                break;
            default:
                damaged.insert(place, damaged.mid(random.Next() % damaged.size(), random.Next() % 9));
            }
        }
        ReadAndWriteAgain(damaged);
    }
}

void DamagedFilesTest::lyingCounts_data()
{
    QTest::addColumn<QByteArray>("count");
    for (const char *count : {"2147483647", "99999999999999999999", "-2147483648", "-1", "x", ""}) {
        QTest::newRow(*count == 0 ? "empty" : count) << QByteArray(count);
    }
}

void DamagedFilesTest::lyingCounts()
{
    QFETCH(QByteArray, count);
    QBuffer buffer;
    buffer.setData("Ordelin 2.0\n\n\nA\nB\n" + count + "\n\n1\na\nb\n");
    buffer.open(QIODevice::ReadOnly);
    CWordList list;
    QCOMPARE(ReadWordList(list, buffer), ReadResult::Read);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("a|b||1"));
}

QTEST_APPLESS_MAIN(DamagedFilesTest)
#include "damaged_files_test.moc"
