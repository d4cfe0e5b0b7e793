// SPDX-License-Identifier: MIT
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "support/lists.h"

#include <QMimeData>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;

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
QString InOneLine(const CWordList &list)
{
    return Describe(list).join(QStringLiteral(" / "));
}

}

class ClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writes();
    void readsRecords();
    void readsText();
    void formatsOfData();
    void recordsKeepEverything();
};

void ClipboardTest::writes()
{
    const struct
    {
        QString entries;
        int column;
        QString text;
        QByteArray richText;
    } rows[] = {
        {u"hund * jycke|dog|[n]|1/katt|cat||2"_s, AllColumns, u"hund * jycke\tdog\t[n]\r\nkatt\tcat\t\r\n"_s,
            QByteArray("{\\rtf1\\ansi\\ansicpg1252"
                       "{\\b hund * jycke}{\\tab}{dog}{\\tab}{[n]}{\\par }"
                       "{katt}{\\tab}{\\b cat}{\\tab}{}{\\par }}")}, // all columns, flagged terms bold
        {u"a|b|c|12/d|e|f"_s, 1, u"b\r\ne\r\n"_s,
            "{\\rtf1\\ansi\\ansicpg1252{\\b b}{\\par }{e}{\\par }}"}, // one language
        {u"a|b|c|12"_s, 2, u"c\r\n"_s, "{\\rtf1\\ansi\\ansicpg1252{c}{\\par }}"}, // notes are never bold
        {QString::fromUtf8("å|α|\uFB01 𝄞"), AllColumns, QString::fromUtf8("å\tα\t\uFB01 𝄞\r\n"),
            QByteArray(
                "{\\rtf1\\ansi\\ansicpg1252"
                "{\\u229?}{\\tab}{\\u945?}{\\tab}{\\u64257? \\u55348?\\u56606?}{\\par }}")}, // letters of all
                                                                                             // ranges
        {u"\\par {x}|}|~"_s, AllColumns, u"\\par {x}\t}\t~\r\n"_s,
            "{\\rtf1\\ansi\\ansicpg1252{\\\\par \\{x\\}}{\\tab}{\\}}{\\tab}{~}{\\par }}"}, // what is markup in
                                                                                           // rich text
    };
    for (const auto &row : rows) {
        const CWordList list = MakeList(row.entries.split(u'/'));
        QCOMPARE(EntriesAsText(list, All(list), row.column), row.text);
        QCOMPARE(EntriesAsRichText(list, All(list), row.column), row.richText);
    }
}

void ClipboardTest::readsRecords()
{
    const struct
    {
        QString records;
        QString entries;
    } rows[] = {
        {{}, {}}, // nothing
        {u"0\r\na\r\n1\r\nb\r\n\r\n"_s, u"a|b||2"_s}, // flags, empty note
        {u"\r\na\r\n00\r\nb\r\nc\r\n"_s, u"a|b|c|12"_s}, // anything but 0 is a flag
        {u"0\r\na\r\n0\r\nb\r\nc\r\n0\r\nd\r\n0\r\ne\r\nf"_s, u"a|b|c"_s}, // the last line has no end
        {u"0\r\na\r\n0\r\nb\r\n"_s, {}}, // a record of four lines
        {u"0\na\n0\nb\nc\n"_s, {}}, // other line ends end no line
        {u"\uFEFF0\r\na\r\n0\r\nb\r\n\r\n"_s, u"a|b"_s}, // a byte-order mark
        {u"0\r\n a*b\tc \r\n0\r\n[]d\r\n\ne\r\n"_s, u"a * b c|d|e"_s}, // not in normal form
    };
    for (const auto &row : rows) {
        QCOMPARE(InOneLine(EntriesFromRecords(row.records)), row.entries);
    }
}

void ClipboardTest::readsText()
{
    const struct
    {
        QString text;
        QString entries;
    } rows[] = {
        {{}, {}}, // nothing
        {u"a\tb\r\nc\td\te f\ng\th"_s, u"a|b / c|d|e f / g|h"_s}, // tabs, a note, CR LF and LF
        {u"a\tb\na;b\na:b\na|b\na,b\na=b\na-b"_s,
            u"a|b / a|b / a|b / a|b / a|b / a|b / a|b"_s}, // every separator
        {u"a,b;c\na-b=c\nd=e,f-g"_s, u"a,b|c / a-b|c / d=e|f-g"_s}, // their order decides, not the place
        {u"hund - dog - the note"_s, u"hund|dog|the note"_s}, // blanks beside the separator
        {u"\t* hus = house *\n**a*b;c"_s, u"hus|house / a * b|c"_s}, // stars and blanks outside
        {u"\ta;b\t\n"_s, u"a|b"_s}, // a separator outside goes with them
        {u"a-b-c-d\na;b\nno separator\n\n=house\nx==y\nc;d\n-"_s,
            u"a|b / c|d"_s}, // lines that make no sense between others
        {u"a-  -c\n[];b"_s, {}}, // terms of blanks or comments without words
        {QString::fromUtf8("ёж – hedgehog; igelkott"),
            QString::fromUtf8("ёж – hedgehog|igelkott")}, // letters outside Latin 1
        {u"a;b\rc;d\r\re;f\r"_s, u"a|b / c|d / e|f"_s}, // CR alone
        {u"\uFEFF* a;\uFEFFb"_s, u"a|\uFEFFb"_s}, // a byte-order mark
        {u"a\u0002b;c\u0001d"_s, u"a b|c d"_s}, // control characters
    };
    for (const auto &row : rows) {
        QCOMPARE(InOneLine(EntriesFromText(row.text)), row.entries);
    }
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
    // By the older names, with a zero at the end.
    const QString unicodeName = QStringLiteral("Ornbury Workshops Ordelin 2.3 Unicode");
    const QString eightBitName = QStringLiteral("Ornbury Workshops Ordelin 2.3");
    QCOMPARE(data->data(unicodeName), data->data(Unicode) + QByteArray(2, '\0'));
    QCOMPARE(data->data(eightBitName), data->data(EightBit) + '\0');
    QCOMPARE(data->data(QStringLiteral("Rich Text Format")), data->data(QStringLiteral("text/rtf")) + '\0');
    QCOMPARE(ClipboardDataOf(list, All(list), 0)->formats().size(), 5); // One column has no records.

    // The best form is read first, and alone.
    QVERIFY(MayHoldEntries(*data));
    QCOMPARE(InOneLine(EntriesFromData(*data)), QString::fromUtf8("é|α|€|1"));
    data->removeFormat(Unicode);
    QCOMPARE(InOneLine(EntriesFromData(*data)), QString::fromUtf8("é|α|€|1"));
    data->removeFormat(unicodeName);
    QCOMPARE(InOneLine(EntriesFromData(*data)), QString::fromUtf8("é|?|€|1"));
    data->setData(EightBit, "cut off");
    QCOMPARE(InOneLine(EntriesFromData(*data)), QString());
    data->removeFormat(EightBit);
    QCOMPARE(InOneLine(EntriesFromData(*data)), QString::fromUtf8("é|?|€|1"));
    data->removeFormat(eightBitName);
    QCOMPARE(InOneLine(EntriesFromData(*data)), QString::fromUtf8("é|α|€"));
    data->removeFormat(QStringLiteral("text/plain"));
    QCOMPARE(InOneLine(EntriesFromData(*data)), QString::fromUtf8("é|?|€"));
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
