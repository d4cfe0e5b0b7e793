// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"
#include "support/formats.h"
#include "support/lists.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

/// A device without random access, which gives its content in small pieces.
class CPipe : public QIODevice
{
public:
    explicit CPipe(QByteArray bytes) : m_bytes(std::move(bytes)) { open(ReadOnly | Unbuffered); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 taken = std::min<qint64>({size, 3, m_bytes.size() - m_read});
        std::copy_n(m_bytes.constData() + m_read, taken, data);
        m_read += taken;
        return taken;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_read = 0;
};

}

class FormatsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recognised()
    {
        const struct
        {
            QByteArray bytes;
            const char *format; // Its key.
            ReadResult result;
            const char *content; // UTF-8
            bool mayBeSavedOver = false;
        } rows[] = {
            {"Ordelin 2.3-micro\n\n\nA\nB\n1\n0\n\n0\n\n\nh\xE4st\nhorse\n", "glossary", ReadResult::Read,
                "häst|horse", true},
            {"\xEF\xBB\xBFOrdelin 9\n\n\nA\nB\n1\n0\n\n0\n\n\n1\na\nb\nc\n", "glossary",
                ReadResult::NewerVersion, "a|b|c|1"},
            {"\xFF\xFEO\0r\0d\0e\0l\0i\0n\0 \0"
             "2\0.\0"
             "0\0\n\0"_ba,
                "glossary", ReadResult::Read, "", true},
            {"WordQuiz\n[Vocabulary]\nA\nB\nh\xC3\xA4st\nhorse\n", "wordquiz", ReadResult::Read, "häst|horse",
                true},
            {"WordQuiz\r\n[Vocabulary]\r\nA\r\nB\r\nh\xE4st\r\nhorse\r\n", "wordquiz", ReadResult::Read,
                "häst|horse", true},
            {"WordQuiz\nno words\n", "wordquiz", ReadResult::CannotOpen, ""},
            {"h\xC3\xA4st\nhorse\n\xF0\x9F\x90\x88\ncat\n", "text", ReadResult::PlainText, "häst|horse,🐈|cat"},
            // One byte that is no UTF-8, and it is Windows-1252; with a mark, as ever.
            {"h\xC3\xA4st\nhorse\n\xE4\nb\n", "text", ReadResult::PlainText, "hÃ¤st|horse,ä|b"},
            {"h\xC3\xA4st\nhorse \xC3", "text", ReadResult::PlainText, "hÃ¤st|horse Ã"},
            {"\xED\xA0\x80\n\xC0\xAF\n", "text", ReadResult::PlainText, "í\xC2\xA0€|À¯"},
            {"\xEF\xBB\xBF\xC3\xA5\na\n", "text", ReadResult::PlainText, "å|a"},
            {"a\nb\n", "text", ReadResult::PlainText, "a|b"},
            {{}, "text", ReadResult::PlainText, ""},
            {"\x89PNG\r\n\x1A\n", "", ReadResult::Binary, ""},
            {"PK\x03\x04", "", ReadResult::Binary, ""},
            {"a\0b"_ba, "", ReadResult::Binary, ""},
            {"ab\x01\x02\x03", "", ReadResult::Binary, ""},
        };
        for (const auto &row : rows) {
            CWordList list = MakeList("before|it");
            FormatReading reading = ReadListBytes(list, row.bytes);
            QCOMPARE(reading.result, row.result);
            QCOMPARE(reading.format == nullptr ? u""_s : QString(reading.format->key),
                QLatin1StringView(row.format));
            QCOMPARE(Joined(list), QString::fromUtf8(row.content));
            QCOMPARE(reading.MayBeSavedOver(), row.mayBeSavedOver);
            // The same from a pipe, and named.
            CPipe pipe(row.bytes);
            CWordList piped;
            QCOMPARE(ReadListDevice(piped, pipe).result, row.result);
            QCOMPARE(Joined(piped), Joined(list));
            if (reading.format != nullptr) {
                QCOMPARE(ReadListBytes(piped, row.bytes, {.format = reading.format}).result, row.result);
                QCOMPARE(Joined(piped), Joined(list));
            }
        }
        // A character on the border between two pieces that are looked at.
        CWordList list;
        for (int before = 65532; before <= 65536; ++before) {
            QCOMPARE(ReadListBytes(list, QByteArray(before, 'a') + "\xE2\x82\xAC\nb\n").result,
                ReadResult::PlainText);
            QVERIFY(list.Entry(0).GetText(0).endsWith(u'€'));
        }
    }

    void plainTextOut()
    {
        CWordList list = MakeList("hund * vovve|dog|djur|1,|cat,🐈|,||note");
        list.SetProperties({.language1 = u"Svenska"_s, .author = u"A"_s, .questionTemplate2 = u"?"_s});
        QCOMPARE(Written(list, FormatId::PlainText), "hund * vovve\r\ndog\r\n\r\ncat\r\n🐈\r\n\r\n");
        QCOMPARE(Written(list, FormatId::PlainText, {.plainText = PlainTextTerms::Term2}), "dog\r\ncat\r\n");
        const Format &text = FormatOf(FormatId::PlainText);
        QCOMPARE(Described(LossesOf(list, text)), u"1:2,2:1,3:1,4:1,6:1,7:1"_s);
        QCOMPARE(Described(LossesOf(list, text, {.plainText = PlainTextTerms::Term1})),
            u"0:2,1:2,2:1,3:1,4:1,6:1,7:2"_s);
        QCOMPARE(Described(LossesOf(list, FormatOf(FormatId::Glossary))), u"7:1"_s);
        QCOMPARE(Described(LossesOf(MakeList({QString(QChar(0xD800)) + u"|b"_s}), text)), u"8:1"_s);
    }

    void files()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"å.GLS"_s);
        const CWordList list = MakeList("a|b|c|12");
        QCOMPARE(FindFormatForWriting(path), &FormatOf(FormatId::Glossary));
        QVERIFY(FindFormatForWriting(folder.filePath(u"gls"_s)) == nullptr);
        QCOMPARE(FindFormat(u"text"), &FormatOf(FormatId::PlainText));
        QVERIFY(WriteListFile(list, path, FormatOf(FormatId::Glossary)));
        QVERIFY(!WriteListFile(list, path, FormatOf(FormatId::WordQuiz)));
        CWordList read;
        QVERIFY(ReadListFile(read, path).MayBeSavedOver());
        QCOMPARE(Joined(read), Joined(list));
        QVERIFY(read.IsSaved());
        QCOMPARE(ReadListFile(read, folder.path()).result, ReadResult::CannotOpen);
        QCOMPARE(read.Count(), 0);
    }
};

QTEST_APPLESS_MAIN(FormatsTest)
#include "formats_test.moc"
