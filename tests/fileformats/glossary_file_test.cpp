// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "platform/windows_1252.h"
#include "support/lists.h"
#include "support/small_device.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

QByteArray CrLf(QByteArray text)
{
    return text.replace("\n", "\r\n");
}

/// The bytes of a file text, which is given in UTF-8 with LF line ends.
QByteArray Ansi(const char *text)
{
    QByteArray bytes;
    AppendWindows1252(QString::fromUtf8(CrLf(text)), bytes);
    return bytes;
}

QByteArray Utf16(const char *text, bool bigEndian)
{
    QByteArray bytes = bigEndian ? QByteArray("\xFE\xFF") : QByteArray("\xFF\xFE");
    for (const QChar unit : QString::fromUtf8(CrLf(text))) {
        const char low = char(unit.unicode() & 0xFF);
        const char high = char(unit.unicode() >> 8);
        bytes.append(bigEndian ? high : low).append(bigEndian ? low : high);
    }
    return bytes;
}

QByteArray Utf8(const char *text)
{
    return QByteArray("\xEF\xBB\xBF") + CrLf(text);
}

ReadResult Read(CWordList &list, const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return ReadWordList(list, buffer);
}

QByteArray Write(CWordList &list, const WriteOptions &options = {})
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return WriteWordList(list, buffer, options) ? buffer.data() : QByteArray();
}

/// Every property and entry, one a line.
QString DescribeAll(const CWordList &list)
{
    QStringList lines = {list.GetAuthor(), list.GetComments(), list.GetLanguage(0), list.GetLanguage(1)};
    for (const int direction : {0, 1}) {
        lines.append((list.GetAdaptQuestion(direction) ? u'1' : u'0') + list.GetQuestionTemplate(direction));
    }
    return (lines + Describe(list)).join(u'\n');
}

}

class GlossaryFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versions()
    {
        const char *const full = "Ordelin 2.3\nÅsa €\n“Djur” …\nSvenska\nEngelska\n2\n1\nVad är %word?\n0\n\n\n"
                                 "1 0\nhund * vovve\ndog\n\n0 1\nkatt [tam]\ncat\nšelma – djur\n";
        const QString fullContent = u"Åsa €\n“Djur” …\nSvenska\nEngelska\n1Vad är %word?\n0\n"
                                    "hund * vovve|dog||1\nkatt [tam]|cat|šelma – djur|2"_s;
        const char *const greek =
            "Ordelin 2.3\nΆννα\nζώα\nSvenska\nΕλληνικά\n1\n0\n\n1\n%word;\n\n1 1\nhund\nσκύλος\n犬\n";
        const QString greekContent = u"Άννα\nζώα\nSvenska\nΕλληνικά\n0\n1%word;\nhund|σκύλος|犬|12"_s;
        const std::pair<QByteArray, QString> rows[] = {
            {Ansi(full), fullContent}, // 2.3 ANSI
            {Utf16(greek, false), greekContent}, // 2.3 UTF-16
            // 2.3-mini ANSI.
            {Ansi("Ordelin 2.3-mini\n\n\nA\nB\n1\n0\n\n0\n\n\nå\nŽ\n€\n"), u"\n\nA\nB\n0\n0\nå|Ž|€"_s},
            // 2.3-mini UTF-16.
            {Utf16("Ordelin 2.3-mini\n\n\nA\nB\n1\n0\n\n0\n\n\nå\nя\nω\n", false), u"\n\nA\nB\n0\n0\nå|я|ω"_s},
            // 2.3-micro ANSI.
            {Ansi("Ordelin 2.3-micro\n\n\nA\nB\n1\n0\nœ?\n0\n\n\nå\nŽ\n"), u"\n\nA\nB\n0œ?\n0\nå|Ž"_s},
            // 2.3-micro UTF-16.
            {Utf16("Ordelin 2.3-micro\n\n\nA\nB\n1\n0\nω?\n0\n\n\nå\nя\n", false), u"\n\nA\nB\n0ω?\n0\nå|я"_s},
            // 2.0 ANSI.
            {Ansi("Ordelin 2.0\nŒ\n\nA\nB\n2\n\n1\nå\nŽ\n0\nb\nc\n"), u"Œ\n\nA\nB\n0\n0\nå|Ž||1\nb|c"_s},
            {Utf16("Ordelin 2.0\n\n\nA\nB\n1\n\n0\nå\nя\n", false), u"\n\nA\nB\n0\n0\nå|я"_s}, // 2.0 UTF-16
            {Ansi("Ordelin 2.0\n\n\nA\nB\n0\n\n"), u"\n\nA\nB\n0\n0"_s}, // 2.0 empty
        };
        for (const auto &[bytes, content] : rows) {
            CWordList list;
            QCOMPARE(Read(list, bytes), ReadResult::Read);
            QVERIFY(list.IsSaved());
            QCOMPARE(DescribeAll(list), content);
            list.SetSaved(false);
            QCOMPARE(Write(list), bytes);
            QVERIFY(list.IsSaved());
        }
    }

    void readOnlyVersions()
    {
        const char *const old = "Ordelin 1\nŽ\nC\nA\nB\n2\n\n!hund\ndog\nå\n!Œ\n";
        const QString oldContent = u"Ž\nC\nA\nB\n0\n0\nhund|dog||1\nå|Œ||1"_s;
        const char *const full =
            "Ordelin 2.3\nŽ\n\nA\nB\n-5\n\nT1\nx\nT2\nignored\n1\nя\nb\n\nx y\nc*d\ne\nn\n 1\n*\n\n\n";
        const QString fullContent = u"Ž\n\nA\nB\n0T1\n1T2\nя|b||1\nc * d|e|n|12\n|||2"_s;
        const struct
        {
            QByteArray bytes;
            QString content;
            ReadResult result;
        } rows[] = {
            {Ansi(old), oldContent, ReadResult::Read}, // 1 ANSI
            {Utf16(old, true), oldContent, ReadResult::Read}, // 1 UTF-16 big endian
            {Utf8(old).replace("Ordelin 1", "Ordelin 1.2"), oldContent, ReadResult::Read}, // 1.2 UTF-8
            {Utf8(full), fullContent, ReadResult::Read}, // 2.3 UTF-8
            {Utf16(full, true), fullContent, ReadResult::Read}, // 2.3 UTF-16 big endian
            {Utf8(full).replace("2.3", "9.9"), fullContent, ReadResult::NewerVersion}, // newer version
            {"Ordelinista\na\nb\n", u"a\nb\n\n\n0\n0"_s, ReadResult::NewerVersion}, // program's name alone
            // Adapt mark without a template.
            {"Ordelin 2.3-micro\n\n\nA\nB\n0\n1\n\n1\n", u"\n\nA\nB\n0\n0"_s, ReadResult::Read},
            {"Ordelin 2.0\nauthor\ncomm", u"author\ncomm\n\n\n0\n0"_s, ReadResult::Read}, // header cut off
            {"Ordelin 2.3-micro\n\n\n\n\n0\n0\n\n0\n\n\n\n\na\n\n\nb\n", u"\n\n\n\n0\n0\na\n|b"_s,
                ReadResult::Read}, // both terms empty
        };
        for (const auto &row : rows) {
            CWordList list = MakeList("old|content");
            QCOMPARE(Read(list, row.bytes), row.result);
            QCOMPARE(DescribeAll(list), row.content);
            QVERIFY(list.IsSaved());
        }
    }

    void smallestVersion()
    {
        const struct
        {
            QString entry, questionTemplate;
            QByteArray header;
        } rows[] = {
            {u"a|b||1"_s, {}, "Ordelin 2.0"}, // flag 1 only
            {u"a|b||2"_s, {}, "Ordelin 2.3"}, // flag 2
            {u"a|b|n"_s, {}, "Ordelin 2.3-mini"}, // note
            {u"a|b|n|1"_s, {}, "Ordelin 2.3"}, // note and flag 1
            {u"a|b"_s, u"t"_s, "Ordelin 2.3-micro"}, // template
            {u"a|b||1"_s, u"t"_s, "Ordelin 2.3"}, // template and flag 1
        };
        for (const auto &row : rows) {
            CWordList list = MakeList({u"x|y"_s, row.entry});
            list.SetQuestionTemplate(1, row.questionTemplate);
            const QByteArray bytes = Write(list);
            QCOMPARE(bytes.left(bytes.indexOf('\r')), row.header);
        }
    }

    void recordsAndTheirCount()
    {
        // A record needs all its lines; the last line needs no line end, and nothing follows the last line end.
        const QByteArray micro = "Ordelin 2.3-micro\n\n\n\n\n0\n0\n\n0\n\n\n";
        const QByteArray full = "Ordelin 2.3\n\n\n\n\n0\n0\n\n0\n\n\n";
        CWordList list;
        const auto count = [&](const QByteArray &bytes) {
            return Read(list, bytes) == ReadResult::Read ? list.Count() : -1;
        };
        QCOMPARE(count(micro + "a\nb\nc\n"), 1);
        QCOMPARE(count(micro + "a\nb"), 1);
        QCOMPARE(count(full + "0 0\na\nb\n"), 0);
        QCOMPARE(count(full + "0 0\na\nb\n\n"), 1);
        for (const char *lie : {"2147483647", "99999999999999999999", "-2147483648", "-1", "x", ""}) {
            QCOMPARE(
                Read(list, QByteArray("Ordelin 2.0\n\n\nA\nB\n") + lie + "\n\n1\na\nb\n"), ReadResult::Read);
            QCOMPARE(Joined(list), u"a|b||1"_s);
        }
    }

    void oneOddCharacterMakesUnicode()
    {
        for (int place = 0; place < 9; ++place) {
            QStringList texts(9, u"€"_s);
            texts[place] = u"α"_s;
            CWordList list = MakeList({u"å|b|c"_s, texts[6] + u'|' + texts[7] + u'|' + texts[8]});
            list.SetProperties({.language1 = texts[0],
                .language2 = texts[1],
                .author = texts[2],
                .comments = texts[3],
                .questionTemplate1 = texts[4],
                .questionTemplate2 = texts[5]});
            QVERIFY2(Write(list).startsWith("\xFF\xFE"), qPrintable(QString::number(place)));
        }
        CWordList ansi = MakeList("€|å|“");
        QVERIFY(Write(ansi).startsWith("Ordelin"));
        QVERIFY(Write(ansi, {.forceUnicode = true}).startsWith("\xFF\xFE"));
    }

    void lineBreaksInHeaders()
    {
        CWordList list = MakeList("a|b");
        list.SetProperties({.author = u"one\r\ntwo\nthree\rfour"_s, .questionTemplate1 = u"x\ny"_s});
        CWordList read;
        QCOMPARE(Read(read, Write(list)), ReadResult::Read);
        QCOMPARE(read.GetAuthor(), u"one two three four"_s);
        QCOMPARE(DescribeAll(read).section(u'\n', 4), u"0x y\n0\na|b"_s);
    }

    void lossyHeaders()
    {
        CWordList list;
        QCOMPARE(Read(list, Utf8("Ordelin 2.0\nα\n\n\n\n1β\n\n1\na\nb\n")), ReadResult::ReadLossy);
        QCOMPARE(list.Count(), 1);
        QCOMPARE(Read(list, Utf8("Ordelin 2.3\n\n\n\n\n1\nβ\nt\n0\n\n\n")), ReadResult::ReadLossy);
        QVERIFY(list.GetAdaptQuestion(0));
        // Texts and flag lines lose nothing.
        QCOMPARE(Read(list, Utf8("Ordelin 2.0\nα\nβ\nγ\nδ\n1\n\nω\na\nb\n")), ReadResult::Read);
        QVERIFY(list.Entry(0).GetFlag(0));
    }

    void strangeTextsSurvive()
    {
        CWordList list;
        list.SetAuthor(QString(u"a\0b\xD800"_s));
        const QString huge = u"åäö "_s.repeated(300000) + u'x';
        list.Insert(CWordEntry(huge, u"\xDC00 lone \xD83D"_s, u"\u0085\u2028"_s));
        for (const char16_t *term :
            {u"!", u"! x", u"!*!", u"Ordelin 1", u"WordQuiz", u"0 0", u"1", u"a\r\nb\0c*\x7F", u"[a*b]", u"]x[",
                u"[ [x] ]", u"\uFEFF", u"\uFFFE", u"\u2028\u2029\f\v", u"\xA0"}) {
            const QString text = QStringView(term).toString();
            list.Insert(CWordEntry(text, {}, text, true));
            list.Insert(CWordEntry({}, text, text, false, true));
        }
        CWordList read;
        QCOMPARE(Read(read, Write(list)), ReadResult::Read);
        QCOMPARE(DescribeAll(read), DescribeAll(list));
        QCOMPARE(read.Entry(0).GetText(0), huge);
    }

    void failedSaves()
    {
        const QTemporaryDir folder;
        CWordList list = MakeList("a|b");
        CWordList missing;
        QCOMPARE(ReadWordListFile(missing, folder.filePath(u"missing"_s)), ReadResult::CannotOpen);
        list.SetSaved(false);
        QVERIFY(!WriteWordListFile(list, folder.filePath(u"no/such/folder.gls"_s)));
        QVERIFY(!WriteWordListFile(list, folder.path()));
        QVERIFY(!list.IsSaved());
        CWordList unreadable; // Its file would be refused on opening.
        unreadable.Insert(CWordEntry(QString(16'000'001, u'x')));
        QCOMPARE(Write(unreadable), QByteArray());
        QVERIFY(!unreadable.IsSaved());
        for (const qint64 room : {0, 1, 20}) {
            CSmallDevice device(room);
            device.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
            QVERIFY(!WriteWordList(list, device));
            QVERIFY(!list.IsSaved());
        }
    }

    void foreignFiles()
    {
        const struct
        {
            QByteArray bytes;
            ReadResult result;
            QString content; // Author, comments, languages, then the entries; all joined by commas.
        } rows[] = {
            {"WordQuiz\n[Font]\n x\n[vocabulary] \nSwedish\nEnglish\nhund [n]\ndog [animal]\n\n\na*b [x] "
             "[y]\nc\n",
                ReadResult::Read, u",,Swedish,English,hund|dog [animal],a * b [x]|c"_s},
            // Names are the first pair that is not empty.
            {"WordQuiz\n[Vocabulary]\n\n \n[x]\nEnglish\na\nb\n", ReadResult::Read, u",,,English,a|b"_s},
            // The second line is missing at the end; similar entries are kept.
            {"WordQuiz\n[Vocabulary]\nA\nB\na\nb\na\nb\nc", ReadResult::Read, u",,A,B,a|b,a|b,c"_s},
            {"WordQuiz\na\nb\n", ReadResult::CannotOpen, {}}, {"a\nb\nc", ReadResult::PlainText, u",,,,a|b"_s},
            {"!a\n!b\n\n\n1 0\n\xE5", ReadResult::PlainText, u",,,,!a|!b,1 0|å"_s}, // has no marks
            {"\xFF\xFE\x61\0\n\0\xB1\x03"_ba, ReadResult::PlainText, u",,,,a|α"_s}, // in UTF-16
            {{}, ReadResult::PlainText, u",,,"_s},
            {"ordelin 2.0\nb\n", ReadResult::PlainText, u",,,,ordelin 2.0|b"_s}, // header in other case
        };
        for (const auto &row : rows) {
            CWordList list;
            list.SetAuthor(u"someone before"_s);
            list.SetSaved(true);
            QCOMPARE(Read(list, row.bytes), row.result);
            if (row.result == ReadResult::CannotOpen) {
                QCOMPARE(list.Count(), 0);
                continue;
            }
            const QStringList described =
                QStringList{list.GetAuthor(), list.GetComments(), list.GetLanguage(0), list.GetLanguage(1)}
                + Describe(list);
            QCOMPARE(described.join(u','), row.content);
            QCOMPARE(list.IsSaved(), row.result == ReadResult::Read);
        }
    }

    void truncatedFiles()
    {
        CWordList sample = MakeList("hund * vovve|dog|djur|1,katt [tam]|cat||2,å|α|“citat”|12");
        sample.SetProperties({.language1 = u"Svenska"_s,
            .language2 = u"Ελληνικά"_s,
            .adaptQuestion1 = true,
            .questionTemplate1 = u"%word?"_s});
        const QByteArray bytes = Write(sample);
        for (qsizetype size = 0; size < bytes.size(); ++size) {
            CWordList list;
            if (Read(list, bytes.left(size)) == ReadResult::CannotOpen) {
                continue;
            }
            // Entries without terms are written, and skipped on reading.
            QStringList entries = Describe(list);
            entries.removeIf([](const QString &entry) { return entry.startsWith(u"||"); });
            entries.removeAll(QString());
            CWordList again;
            QVERIFY(Read(again, Write(list)) == ReadResult::Read);
            QCOMPARE(Describe(again), entries);
            // Cut inside the last record, the ones before it are there.
            QVERIFY(size != bytes.size() - 20 || entries == Describe(sample).first(2));
        }
    }
};

QTEST_APPLESS_MAIN(GlossaryFileTest)
#include "glossary_file_test.moc"
