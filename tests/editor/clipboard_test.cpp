// SPDX-License-Identifier: MIT
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "support/lists.h"

#include <QMimeData>
#include <QTest>

#include <numeric>

namespace {

const QString Unicode = QStringLiteral("application/x-ornbury-workshops-ordelin-2.3-unicode");
const QString EightBit = QStringLiteral("application/x-ornbury-workshops-ordelin-2.3");

std::vector<int> All(const CWordList &list)
{
    std::vector<int> entries(size_t(list.Count()));
    std::iota(entries.begin(), entries.end(), 0);
    return entries;
}

/// The entries in the form of MakeEntry(), one behind the other.
QString Joined(const CWordList &list)
{
    return Describe(list).join(QStringLiteral(" / "));
}

}

class ClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writes_data();
    void writes();
    void readsRecords_data();
    void readsRecords();
    void readsText_data();
    void readsText();
    void formatsOfData();
    void recordsKeepEverything();
};

void ClipboardTest::writes_data()
{
    QTest::addColumn<QString>("entries");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("richText");
    QTest::newRow("all columns, flagged terms bold")
        << "hund * jycke|dog|[n]|1/katt|cat||2" << AllColumns << "hund * jycke\tdog\t[n]\r\nkatt\tcat\t\r\n"
        << QByteArray("{\\rtf1\\ansi\\ansicpg1252"
                      "{\\b hund * jycke}{\\tab}{dog}{\\tab}{[n]}{\\par }"
                      "{katt}{\\tab}{\\b cat}{\\tab}{}{\\par }}");
    QTest::newRow("one language") << "a|b|c|12/d|e|f" << 1 << "b\r\ne\r\n"
                                  << QByteArray("{\\rtf1\\ansi\\ansicpg1252{\\b b}{\\par }{e}{\\par }}");
    QTest::newRow("notes are never bold") << "a|b|c|12" << 2 << "c\r\n"
                                          << QByteArray("{\\rtf1\\ansi\\ansicpg1252{c}{\\par }}");
    QTest::newRow("letters of all ranges")
        << QString::fromUtf8("å|α|\uFB01 𝄞") << AllColumns << QString::fromUtf8("å\tα\t\uFB01 𝄞\r\n")
        << QByteArray("{\\rtf1\\ansi\\ansicpg1252"
                      "{\\u229?}{\\tab}{\\u945?}{\\tab}{\\u64257? \\u55348?\\u56606?}{\\par }}");
    QTest::newRow("what is markup in rich text")
        << "\\par {x}|}|~" << AllColumns << "\\par {x}\t}\t~\r\n"
        << QByteArray("{\\rtf1\\ansi\\ansicpg1252{\\\\par \\{x\\}}{\\tab}{\\}}{\\tab}{~}{\\par }}");
}

void ClipboardTest::writes()
{
    QFETCH(QString, entries);
    QFETCH(int, column);
    QFETCH(QString, text);
    QFETCH(QByteArray, richText);
    const CWordList list = MakeList(entries.split(u'/'));
    QCOMPARE(EntriesAsText(list, All(list), column), text);
    QCOMPARE(EntriesAsRichText(list, All(list), column), richText);
}

void ClipboardTest::readsRecords_data()
{
    QTest::addColumn<QString>("records");
    QTest::addColumn<QString>("entries");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("flags, empty note") << "0\r\na\r\n1\r\nb\r\n\r\n"
                                       << "a|b||2";
    QTest::newRow("anything but 0 is a flag") << "\r\na\r\n00\r\nb\r\nc\r\n"
                                              << "a|b|c|12";
    QTest::newRow("the last line has no end") << "0\r\na\r\n0\r\nb\r\nc\r\n0\r\nd\r\n0\r\ne\r\nf"
                                              << "a|b|c";
    QTest::newRow("a record of four lines") << "0\r\na\r\n0\r\nb\r\n"
                                            << "";
    QTest::newRow("other line ends end no line") << "0\na\n0\nb\nc\n"
                                                 << "";
    QTest::newRow("a byte-order mark") << QStringLiteral("\uFEFF0\r\na\r\n0\r\nb\r\n\r\n") << "a|b";
    QTest::newRow("not in normal form") << "0\r\n a*b\tc \r\n0\r\n[]d\r\n\ne\r\n"
                                        << "a * b c|d|e";
}

void ClipboardTest::readsRecords()
{
    QFETCH(QString, records);
    QTEST(Joined(EntriesFromRecords(records)), "entries");
}

void ClipboardTest::readsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("entries");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("tabs, a note, CR LF and LF") << "a\tb\r\nc\td\te f\ng\th"
                                                << "a|b / c|d|e f / g|h";
    QTest::newRow("every separator") << "a\tb\na;b\na:b\na|b\na,b\na=b\na-b"
                                     << "a|b / a|b / a|b / a|b / a|b / a|b / a|b";
    QTest::newRow("their order decides, not the place") << "a,b;c\na-b=c\nd=e,f-g"
                                                        << "a,b|c / a-b|c / d=e|f-g";
    QTest::newRow("blanks beside the separator") << "hund - dog - the note"
                                                 << "hund|dog|the note";
    QTest::newRow("stars and blanks outside") << "\t* hus = house *\n**a*b;c"
                                              << "hus|house / a * b|c";
    QTest::newRow("a separator outside goes with them") << "\ta;b\t\n"
                                                        << "a|b";
    QTest::newRow("lines that make no sense between others")
        << "a-b-c-d\na;b\nno separator\n\n=house\nx==y\nc;d\n-"
        << "a|b / c|d";
    QTest::newRow("terms of blanks or comments without words") << "a-  -c\n[];b"
                                                               << "";
    QTest::newRow("letters outside Latin 1")
        << QString::fromUtf8("ёж – hedgehog; igelkott") << QString::fromUtf8("ёж – hedgehog|igelkott");
    QTest::newRow("CR alone") << "a;b\rc;d\r\re;f\r"
                              << "a|b / c|d / e|f";
    QTest::newRow("a byte-order mark") << QStringLiteral("\uFEFF* a;\uFEFFb") << QStringLiteral("a|\uFEFFb");
    QTest::newRow("control characters") << QStringLiteral("a\u0002b;c\u0001d") << "a b|c d";
}

void ClipboardTest::readsText()
{
    QFETCH(QString, text);
    QTEST(Joined(EntriesFromText(text)), "entries");
}

void ClipboardTest::formatsOfData()
{
    const CWordList list = MakeList({QString::fromUtf8("é|α|€|1")});
    const auto data = ClipboardDataOf(list, All(list), AllColumns);
    QCOMPARE(data->text(), QString::fromUtf8("é\tα\t€\r\n"));
    QCOMPARE(data->data(QStringLiteral("text/plain;charset=windows-1252")), QByteArray("\xE9\t?\t\x80\r\n"));
    QVERIFY(data->data(QStringLiteral("text/rtf")).startsWith("{\\rtf1\\ansi"));
    QCOMPARE(data->data(QStringLiteral("text/rtf")), data->data(QStringLiteral("application/rtf")));
    QCOMPARE(data->data(EightBit), QByteArray("1\r\n\xE9\r\n0\r\n?\r\n\x80\r\n"));
    QCOMPARE(data->data(Unicode).toHex(' '),
        QByteArray(
            "31 00 0d 00 0a 00 e9 00 0d 00 0a 00 30 00 0d 00 0a 00 b1 03 0d 00 0a 00 ac 20 0d 00 0a 00"));
    QCOMPARE(ClipboardDataOf(list, All(list), 0)->formats().size(), 4); // One column has no records.

    // The best form is read first, and alone.
    QVERIFY(MayHoldEntries(*data));
    QCOMPARE(Joined(EntriesFromData(*data)), QString::fromUtf8("é|α|€|1"));
    data->removeFormat(Unicode);
    QCOMPARE(Joined(EntriesFromData(*data)), QString::fromUtf8("é|?|€|1"));
    data->setData(EightBit, "cut off");
    QCOMPARE(Joined(EntriesFromData(*data)), QString());
    data->removeFormat(EightBit);
    QCOMPARE(Joined(EntriesFromData(*data)), QString::fromUtf8("é|α|€"));
    data->removeFormat(QStringLiteral("text/plain"));
    QCOMPARE(Joined(EntriesFromData(*data)), QString::fromUtf8("é|?|€"));
    data->removeFormat(QStringLiteral("text/plain;charset=windows-1252"));
    QVERIFY(!MayHoldEntries(*data));
    QCOMPARE(EntriesFromData(*data).Count(), 0);
    data->setData(Unicode, QByteArray(3, '\n'));
    QVERIFY(MayHoldEntries(*data));
    QCOMPARE(EntriesFromData(*data).Count(), 0);
}

void ClipboardTest::recordsKeepEverything()
{
    CRandom random(7);
    CWordList list;
    for (int i = 0; i < 500; ++i) {
        const auto text = [&] { return RandomText(random, u"ab *]\\{}\t\r\n-,å\u0434\xD834\xFFFE", 12); };
        list.Insert(CWordEntry(text(), text(), text(), random.Next() % 2 == 0, random.Next() % 2 == 0));
    }
    QCOMPARE(Describe(EntriesFromData(*ClipboardDataOf(list, All(list), AllColumns))), Describe(list));
}

QTEST_APPLESS_MAIN(ClipboardTest)
#include "clipboard_test.moc"
