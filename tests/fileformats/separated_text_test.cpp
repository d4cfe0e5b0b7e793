// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"
#include "support/formats.h"
#include "support/lists.h"

#include <QTemporaryDir>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ReadResult)

class SeparatedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oddCorners();
    void encodings();
    void termChoices();
    void recognisedByContent();
    void written();
    void roundTrips();
    void hostile();
};

void SeparatedTextTest::oddCorners()
{
    const struct
    {
        const char *bytes; // UTF-8
        const char *content;
        const char *losses = "";
    } rows[] = {
        {"a,b\r\nc,d", "a|b,c|d"},
        {"a,b\rc,d\r", "a|b,c|d"},
        {"\n\na,b\n , \n\nc,d\n", "a|b,c|d"},
        // Quotes: separators, quotes and line ends in them; blanks in front; text behind.
        {"\"a,\"\"x\"\"\",b\n\"c\nd\",e\n", "a,\"x\"|b,c d|e", "12:1"},
        {"\"a\", \"b, c\"\n\"d\" ,\"e\"x\n", "a|b, c,d|ex"},
        {"\"\",b\n\"a\",\"\"\"\"\n", "|b,a|\""},
        {"a\"b,c\n5\",d\n", "a\"b|c,5\"|d"},
        // What nothing closes is text, and the rows behind it stay.
        {"\"a,b\nc,d\n", "\"a|b,c|d"},
        {"a,b\n\"c,d\n\"e\",f\n", "a|b,\"c|d,\"e\"|f"},
        // Fewer and more cells than columns; a row without terms.
        {"a,b,n,1\nc\nd,e,,\n,,note,1\n,f,,0,left\n", "a|b|n|1,c,d|e,|f", "13:1,14:1"},
        // Asterisks and brackets.
        {"2*3,x * y\na[0],[]b\nc,**\n", "2 * 3|x * y,a[0]|b,c", "9:2,10:2,11:2"},
        {"sep=|\na|b,c\nd|e\n", "a|b,c,d|e"},
        {"a\tb\n\"q\tc\n", "a|b,\"q|c"},
        // What stands above the heading and beside the rows is no entry, and is told.
        {"Title;\n# x\nSvenska;Engelska\na;b\n# y\n#c;d\n", "a|b,#c|d", "14:3"},
    };
    for (const auto &row : rows) {
        CWordList list;
        const QString expected = QString::fromUtf8(row.content);
        FormatReadOptions options = {.format = &FormatOf(FormatId::SeparatedText)};
        if (expected.contains(u"a|b|n"_s) || expected.startsWith(u"2"_s)) {
            options.separated = SeparatedTextOptions{.hasHeading = false,
                .columns = {TextColumn::Term1, TextColumn::Term2, TextColumn::Note, TextColumn::Flag1}};
        }
        const FormatReading reading = ReadListBytes(list, row.bytes, options);
        QCOMPARE(reading.result, ReadResult::Read);
        QCOMPARE(Joined(list), expected);
        QCOMPARE(Described(reading.losses), QLatin1StringView(row.losses));
        QVERIFY(!reading.MayBeSavedOver() && (list.Count() == 0 || !list.IsSaved()));
    }
}

void SeparatedTextTest::encodings()
{
    const QString text = u"Svenska;Engelska;Kommentar\nhäst;horse;€ 𝄞\n"_s;
    const QString content = u"häst|horse|€ 𝄞"_s;
    const QByteArray utf16(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
    QByteArray bigEndian = utf16;
    for (qsizetype i = 0; i < bigEndian.size(); i += 2) {
        std::swap(bigEndian[i], bigEndian[i + 1]);
    }
    for (const QByteArray &bytes :
        {text.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8(), "\xFF\xFE" + utf16, "\xFE\xFF" + bigEndian}) {
        CWordList list;
        const FormatReading reading = ReadListBytes(list, bytes);
        QVERIFY(reading.format == &FormatOf(FormatId::SeparatedText));
        QCOMPARE(Joined(list), content);
        QCOMPARE(list.GetLanguage(0) + list.GetLanguage(1), u"SvenskaEngelska"_s);
        QVERIFY(reading.losses.empty());
    }
    CWordList list;
    QVERIFY(!IsRefused(ReadListBytes(list, "h\xE4st;\x80\nb;c\n").result));
    QCOMPARE(Joined(list), u"häst|€,b|c"_s);
    // Damage behind a mark is told; a chosen encoding is taken.
    const FormatReading damaged = ReadListBytes(list, "\xEF\xBB\xBFh\xE4st;b\nc;d\n");
    QCOMPARE(Described(damaged.losses), u"19:1"_s);
    const FormatReadOptions chosen = {.format = &FormatOf(FormatId::SeparatedText),
        .separated = SeparatedTextOptions{.encoding = TextEncoding::Ansi, .hasHeading = false}};
    QVERIFY(!IsRefused(ReadListBytes(list, "\xC3\xA4,b\n", chosen).result));
    QCOMPARE(Joined(list), u"Ã¤|b"_s);
}

void SeparatedTextTest::termChoices()
{
    const TermOptions all = {.semicolonsSeparate = true,
        .commasSeparate = true,
        .slashesSeparate = true,
        .roundBracketsAreComments = true};
    const struct
    {
        const char *term;
        TermOptions terms;
        const char *becomes;
    } rows[] = {
        {"a; b, c / d (e; f), g/h", all, "a * b * c * d [e; f] * g/h"},
        {"a; b, c / d (e)", {}, "a; b, c / d (e)"},
        {"a; b, c", {.semicolonsSeparate = true}, "a * b, c"},
        {"a (b (c)) d) (e", all, "a [b (c)] d) (e"},
        {"a [b; c]; d", all, "a [b; c] * d"},
        {"a () b", all, "a b"},
    };
    for (const auto &row : rows) {
        CWordList list;
        const FormatReadOptions options = {.format = &FormatOf(FormatId::SeparatedText),
            .separated =
                SeparatedTextOptions{
                    .separator = u'\t', .hasHeading = false, .columns = {TextColumn::Term1, TextColumn::Term2}},
            .terms = row.terms};
        QVERIFY(!IsRefused(ReadListBytes(list, QByteArray(row.term) + "\tx", options).result));
        QCOMPARE(list.Entry(0).GetText(0), QLatin1StringView(row.becomes));
    }
}

void SeparatedTextTest::recognisedByContent()
{
    const struct
    {
        const char *bytes;
        const char *format;
    } rows[] = {
        {"a;b\nc;d\n", "separated"}, {"a,b\nc,d\n", "separated"}, {"a\tb\n", "separated"},
        {"a|b\nc|d\n", "separated"},
        // Plain text, also with commas in it.
        {"hund, vovve\ndog, doggy\n", "text"}, {"a,b\nc\n", "text"}, {"a;b\n", "text"}, {"a\nb\n", "text"},
        {"a;;\nb;;\n", "text"}, {"a\tb\nc\td\te\n", "separated"}, {"a; b\nc\nd\n", "text"},
        // A long file, cut off in the middle of a row when it is looked at.
    };
    for (const auto &row : rows) {
        CWordList list;
        QCOMPARE(ReadListBytes(list, row.bytes).format->key, QLatin1StringView(row.format));
    }
    CWordList list;
    const QByteArray row = "hund;dog\n";
    QCOMPARE(ReadListBytes(list, row.repeated(20000)).format->key, QLatin1StringView("separated"));
    QCOMPARE(list.Count(), 20000);
    // By its suffix, whatever is in it.
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.CSV"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("hund, dog\n") > 0);
    file.close();
    QCOMPARE(ReadListFile(list, file.fileName()).format->key, QLatin1StringView("separated"));
    QCOMPARE(Joined(list), u"hund|dog"_s);
}

void SeparatedTextTest::written()
{
    CWordList list = MakeList(QStringList{u"a \"b\"|c, d||1"_s, u"e [f]|g * h|note|2"_s, u"||lost"_s});
    list.SetProperties({.language1 = u"Svenska"_s, .comments = u"c"_s});
    QCOMPARE(Written(list, FormatId::SeparatedText),
        "\xEF\xBB\xBFSvenska,term 2,note,flag 1,flag 2\r\n\"a \"\"b\"\"\",\"c, d\",,1,0\r\ne [f],g * "
        "h,note,0,1\r\n");
    const FormatWriteOptions ansi = {.separated = SeparatedTextOptions{.separator = u';',
                                         .encoding = TextEncoding::Ansi,
                                         .hasHeading = false,
                                         .columns = {TextColumn::Term2, TextColumn::Note}},
        .alternatives = AlternativeMark::Semicolon};
    list.Insert(CWordEntry(u"å"_s, u"α"_s));
    QCOMPARE(Written(list, FormatId::SeparatedText, ansi), "c, d;\r\n\"g; h\";note\r\n?;\r\n");
    const Format &format = FormatOf(FormatId::SeparatedText);
    QCOMPARE(Described(LossesOf(list, format)), u"5:1,7:1"_s);
    QCOMPARE(Described(LossesOf(list, format, ansi)), u"0:3,2:2,5:1,6:1,7:1,8:1"_s);
    // By the suffix, as safely as every file.
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a.tsv"_s);
    QVERIFY(WriteListFile(MakeList("a|b"), path, *FindFormatForWriting(path)));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "\xEF\xBB\xBFterm 1\tterm 2\r\na\tb\r\n");
}

void SeparatedTextTest::roundTrips()
{
    CWordList blank = MakeList(QStringList{u"\u00A0|\u3000"_s, u"a|b"_s});
    blank.SetLanguage(0, u" "_s);
    CWordList read;
    QVERIFY(!IsRefused(ReadListBytes(read, Written(blank, FormatId::SeparatedText)).result));
    QCOMPARE(Describe(read), Describe(blank));
    CRandom random(17);
    for (int i = 0; i < 30; ++i) {
        const CWordList list = RandomList(random);
        for (const char16_t separator : {u',', u';', u'\t', u'|'}) {
            for (const TextEncoding encoding : {TextEncoding::Utf8, TextEncoding::Utf16LittleEndian}) {
                const SeparatedTextOptions layout = {.separator = separator, .encoding = encoding};
                CWordList again;
                const FormatReading reading =
                    ReadListBytes(again, Written(list, FormatId::SeparatedText, {.separated = layout}));
                QVERIFY(reading.format == &FormatOf(FormatId::SeparatedText));
                QCOMPARE(Describe(again), Describe(list));
                QCOMPARE(
                    again.GetLanguage(0) + again.GetLanguage(1), list.GetLanguage(0) + list.GetLanguage(1));
            }
        }
        CWordList again;
        const FormatReading reading = ReadListBytes(again, Written(list, FormatId::AnkiText));
        QVERIFY(reading.format == &FormatOf(FormatId::AnkiText));
        CWordList withoutFlags = list;
        std::vector<int> all(size_t(list.Count()));
        std::iota(all.begin(), all.end(), 0);
        withoutFlags.SetFlags(0, all, FlagMode::Clear);
        withoutFlags.SetFlags(1, all, FlagMode::Clear);
        QCOMPARE(Describe(again), Describe(withoutFlags));
        QCOMPARE(again.GetLanguage(0), list.GetLanguage(0));
    }
}

void SeparatedTextTest::hostile()
{
    CWordList list;
    const FormatReadOptions csv = {.format = &FormatOf(FormatId::SeparatedText)};
    // One row without an end, quoted or not.
    QByteArray endless(20'000'000, 'a');
    QCOMPARE(ReadListBytes(list, endless, csv).result, ReadResult::LineTooLong);
    endless[0] = '"';
    QCOMPARE(ReadListBytes(list, endless, csv).result, ReadResult::LineTooLong);
    QCOMPARE(list.Count(), 0);
    // Every row opens a quote that nothing closes; each would be looked for to the end.
    const FormatReadOptions quoted = {.format = csv.format,
        .separated =
            SeparatedTextOptions{.hasHeading = false, .columns = {TextColumn::Term1, TextColumn::Term2}}};
    const QByteArray apart = "x,\"" + QByteArray(1'200'000, 'y') + "\n";
    const FormatReading quotes = ReadListBytes(list, apart.repeated(120), quoted);
    QCOMPARE(quotes.result, ReadResult::Read);
    QCOMPARE(list.Count(), 120);
    QCOMPARE(Described(quotes.losses), u"20:100"_s);
    QVERIFY(!IsRefused(ReadListBytes(list, "\"a,b\nc,d", quoted).result));
    QCOMPARE(Joined(list), u"\"a|b,c|d"_s);
    // Zeros, and nothing but separators.
    QCOMPARE(ReadListBytes(list, "a\0b,c\n"_ba, csv).result, ReadResult::Read);
    QCOMPARE(Joined(list), u"a b|c"_s);
    QCOMPARE(ReadListBytes(list, QByteArray(3'000'000, ','), csv).result, ReadResult::Read);
    QCOMPARE(list.Count(), 0);
    KeepGoing stopped = false;
    QVERIFY(!IsRefused(ReadListBytes(list, "a,b\n", {.format = csv.format, .keepGoing = &stopped}).result));
    QCOMPARE(list.Count(), 0);
}

QTEST_APPLESS_MAIN(SeparatedTextTest)
#include "separated_text_test.moc"
