// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"
#include "support/dictionary_files.h"
#include "support/formats.h"
#include "support/lists.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ReadResult)

namespace {

QString Properties(const CWordList &list)
{
    return QStringList{list.GetLanguage(0), list.GetLanguage(1), list.GetAuthor(), list.GetComments()}.join(
        u'|');
}

/// A file of another program, written by hand.
QByteArray DataFile(const QString &name)
{
    QFile file(QStringLiteral(ORDELIN_SOURCE_DIR "/tests/fileformats/data/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}

class OtherFormatsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kvtml();
    void kvtmlOut();
    void hostileKvtml();
    void anki();
    void html();
    void dictionary();
};

void OtherFormatsTest::kvtml()
{
    CWordList list;
    FormatReading reading = ReadListBytes(list, DataFile(u"version2.kvtml"_s));
    QCOMPARE(reading.result, ReadResult::Read);
    QCOMPARE(reading.format->key, QLatin1StringView("kvtml"));
    QCOMPARE(Describe(list), QStringList({u"hund (tam); vovve|dog|djur; pet"_s, u"|a<b>"_s, u"x * y"_s}));
    QCOMPARE(Properties(list), u"Swedish|English|A & B|Djur: first lines"_s);
    QCOMPARE(Described(reading.losses), u"9:1,14:1,15:1,16:1,21:2"_s);
    // Without identifiers it is the place that counts.
    QVERIFY(!IsRefused(ReadListBytes(list,
        "<kvtml version=\"2.0\"><identifiers><identifier><name>A</name></identifier><identifier "
        "id=\"x\"><name>B</name>"
        "</identifier></identifiers><entries><entry><translation><text>a</text></translation><translation>"
        "<text>b</text></translation></entry><entry><translation id=\"x\"><text>d</text></translation>"
        "<translation id=\"0\"><text>c</text></translation></entry></entries></kvtml>")
                           .result));
    QCOMPARE(Joined(list) + list.GetLanguage(0) + list.GetLanguage(1), u"a|b,c|dAB"_s);
    const FormatReadOptions german = {
        .terms = {.semicolonsSeparate = true, .roundBracketsAreComments = true}, .languages = {2, 0}};
    QVERIFY(!IsRefused(ReadListBytes(list, DataFile(u"version2.kvtml"_s), german).result));
    QCOMPARE(Describe(list), QStringList({u"Hund|hund [tam] * vovve|djur"_s, u"|x * y"_s}));
    QCOMPARE(list.GetLanguage(0), u"German"_s);

    reading = ReadListBytes(list, DataFile(u"version1.kvtml"_s));
    QCOMPARE(reading.result, ReadResult::Read);
    QCOMPARE(Describe(list), QStringList({u"hund|dog|djur"_s, u"katt|cat <3"_s}));
    QCOMPARE(Properties(list), u"svenska|English|A|Djur: R"_s);
    QCOMPARE(Described(reading.losses), u"15:1,16:1,21:2"_s);
}

void OtherFormatsTest::kvtmlOut()
{
    CWordList small = MakeList("a & b|<c>|]]>|1");
    small.SetProperties({.language1 = u"Svenska"_s, .language2 = u"Påhittska"_s, .comments = u"T: c"_s});
    QCOMPARE(Written(small, FormatId::Kvtml), DataFile(u"written.kvtml"_s));
    small.Insert(CWordEntry(u"\uFFFE"_s, QString(QChar(0xDC00)), {}, false, true));
    QCOMPARE(Described(LossesOf(small, FormatOf(FormatId::Kvtml))), u"2:2,8:2"_s);

    CRandom random(2);
    for (int i = 0; i < 30; ++i) {
        CWordList list = RandomList(random);
        list.SetProperties({.author = u"A <b>"_s, .comments = i % 2 == 0 ? u": T: c: d"_s : u"T: c: d"_s});
        CWordList again;
        QCOMPARE(ReadListBytes(again, Written(list, FormatId::Kvtml)).format->key, QLatin1StringView("kvtml"));
        QStringList expected = Describe(list);
        for (QString &entry : expected) {
            entry.remove(QRegularExpression(u"\\|+[12]+$"_s)); // Flags.
        }
        QCOMPARE(Describe(again), expected);
        QCOMPARE(Properties(again), Properties(list));
    }
}

void OtherFormatsTest::hostileKvtml()
{
    const QByteArray start = "<?xml version=\"1.0\"?>\n";
    QByteArray entities = "<!ENTITY a0 \"lol\">";
    for (int i = 1; i < 12; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        entities += "<!ENTITY a" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    const QByteArray entry = "<entry><translation id=\"0\"><text>";
    const QByteArray end = "</text></translation></entry></entries></kvtml>";
    const QByteArray open = "<kvtml version=\"2.0\"><entries>" + entry;
    for (const QByteArray &bytes : {start + "<!DOCTYPE kvtml [" + entities + "]>" + open + "&a11;" + end,
             start + "<!DOCTYPE kvtml [<!ENTITY x SYSTEM \"file:///etc/hostname\">]>" + open + "&x;" + end,
             start + open + QByteArray("<b>").repeated(200'000), start + open + "a\0b"_ba + end,
             start + "<kvtml version=\"2.0\"><entries>", start + "<kvtmls/>", start + open + "\xFF\xFE" + end,
             QByteArray("<kvtml version='2.0'>")}) {
        CWordList list;
        const FormatReading reading = ReadListBytes(list, bytes);
        QVERIFY(reading.format == &FormatOf(FormatId::Kvtml));
        // What is outside of the file is not read.
        QVERIFY(reading.result == ReadResult::Damaged || bytes.contains("SYSTEM"));
        QCOMPARE(list.Count(), 0);
    }
    CWordList list;
    QCOMPARE(
        ReadListBytes(list, start + open + QByteArray(17'000'000, 'x') + end).result, ReadResult::LineTooLong);
    QCOMPARE(list.Count(), 0);
}

void OtherFormatsTest::anki()
{
    const struct
    {
        const char *bytes;
        const char *content;
        const char *losses = "";
        const char *languages = "";
    } rows[] = {
        {"#separator:tab\n#html:true\n#tags column:4\n\"hund<br>vovve\"\tdog\tdjur &amp; <i>tam</i>\ttag1 "
         "tag2\nkatt&nbsp;x\tcat<img src=\"a>.jpg\">[sound:c.mp3]\t\t\n",
            "hund vovve|dog|djur & tam,katt x|cat", "17:1,18:3,21:1"},
        {"#separator:Semicolon\r\n#html:false\r\n#columns:Id;\"Svenska \"\"ny\"\"\";Engelska;X;Y\r\n#guid "
         "column:1\r\n#deck:d\r\nq1;<b>;c;n;more\r\n\r\nq2;\"d;e\";f\r\n",
            "<b>|c|n,d;e|f", "13:1", "Svenska \"ny\"|Engelska"},
        {"#columns:Front,Back\n#separator:,\na,b\n", "a|b", "", "Front|Back"},
        {"#separator:Pipe\n", ""},
        {"#html:true\n#separator:\n#tags column:x\na\tb\n", "a|b"},
    };
    for (const auto &row : rows) {
        CWordList list;
        const FormatReading reading = ReadListBytes(list, row.bytes);
        QCOMPARE(reading.format->key, QLatin1StringView("anki"));
        QCOMPARE(Joined(list), QString::fromUtf8(row.content));
        QCOMPARE(Described(reading.losses), QLatin1StringView(row.losses));
        QCOMPARE(list.GetLanguage(0) + (list.GetLanguage(1).isEmpty() ? u""_s : u'|' + list.GetLanguage(1)),
            QLatin1StringView(row.languages));
    }
    CWordList list = MakeList(QStringList{u"#a \"b\"|c\u00A0d|<b>n|1"_s, u"#d|e"_s});
    list.SetLanguage(0, u"Svenska"_s);
    QCOMPARE(Written(list, FormatId::AnkiText),
        "#separator:tab\n#html:false\n#columns:Svenska\tterm 2\tnote\r\n\"#a "
        "\"\"b\"\"\"\tc\u00A0d\t<b>n\r\n\"#d\"\te\t\r\n");
    QCOMPARE(Described(LossesOf(list, FormatOf(FormatId::AnkiText))), u"2:1"_s);
}

void OtherFormatsTest::html()
{
    const struct
    {
        QByteArray bytes;
        const char *term;
    } rows[] = {
        {"a < b &lt;c&gt; &#228;&#xE4;&#0;&#xD800;&bogus; R&D", "a < b <c> ää&#0;&#xD800;&bogus; R&D"},
        {"<DIV>a</DIV><p class='x>'>b</p><!-- c --><style>d</style>e<script>f", "a b e"},
        {"a<b", "a<b"},
        {"<", "<"},
        {"<>a", "<>a"},
    };
    for (const auto &row : rows) {
        CWordList list;
        QVERIFY(!IsRefused(ReadListBytes(list, "#html:true\n" + row.bytes + "\tx\n").result));
        QCOMPARE(list.Entry(0).GetText(0), QString::fromUtf8(row.term));
    }
    // Elements that nothing closes, each looked for far ahead.
    CWordList list;
    QVERIFY(!IsRefused(ReadListBytes(list, "#html:true\n" + QByteArray("<a &").repeated(1'000'000)).result));
    QCOMPARE(list.Entry(0).GetText(0).size(), 4'000'000);
}

void OtherFormatsTest::dictionary()
{
    QTemporaryDir folder;
    const QList<Article> articles = {{"00-database-short", "00-database-short\nSwedish-English x\n"},
        {"hund", "hund /hun:d/ <n>\ndog, hound\n"}, {"katt", "katt <n>\n1. cat\n2. pussy\n"}};
    QVERIFY(WriteDictionary(folder, u"swe-eng"_s, articles));
    const QString path = folder.filePath(u"swe-eng.index"_s);
    const QString text = folder.filePath(u"swe-eng.dict"_s);
    CWordList list;
    for (const QString &either : {path, text}) {
        const FormatReading whole = ReadListFile(list, either);
        QCOMPARE(whole.format->key, QLatin1StringView("dictionary"));
        QCOMPARE(whole.result, ReadResult::NothingChosen);
        QCOMPARE(list.Count(), 0);
    }
    FormatReadOptions options;
    options.dictionary = {.texts = {u"k"_s}, .match = HeadwordMatch::Beginning};
    QCOMPARE(ReadListFile(list, path, options).result, ReadResult::Read);
    QCOMPARE(Joined(list), u"katt|cat * pussy"_s);
    QCOMPARE(Properties(list), u"svenska|English||swe-eng"_s);
    options.dictionary = {.texts = {u"Hund [djur]"_s, u"ko"_s}};
    QCOMPARE(Described(ReadListFile(list, text, options).losses), u"14:1"_s);
    QCOMPARE(Joined(list), u"Hund [djur]|dog * hound"_s);
    options.dictionary = {.all = true, .most = 1};
    QVERIFY(!IsRefused(ReadListFile(list, path, options).result));
    QCOMPARE(list.Count(), 1);
    // Not from bytes, and not where its other file is gone.
    QCOMPARE(ReadListBytes(list, DictionaryBytes(articles).first, {.format = FindFormat(u"dictionary")}).result,
        ReadResult::CannotOpen);
    QVERIFY(QFile::remove(text));
    QCOMPARE(ReadListFile(list, path).format->key, QLatin1StringView("separated"));
}

QTEST_APPLESS_MAIN(OtherFormatsTest)
#include "other_formats_test.moc"
