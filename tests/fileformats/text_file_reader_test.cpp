// SPDX-License-Identifier: MIT
#include "fileformats/text_file_reader.h"
#include "fileformats/text_file_writer.h"
#include "support/small_device.h"
#include "support/test.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

QStringList Lines(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    CTextFileReader reader;
    reader.Open(buffer);
    QStringList lines;
    for (QString line; reader.ReadLine(line);) {
        lines.append(line);
    }
    return lines;
}

QByteArray Written(TextEncoding encoding, const QString &text)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    CTextFileWriter writer;
    writer.Open(buffer, encoding);
    writer.Write(text);
    writer.NewLine();
    return writer.Close() ? buffer.data() : QByteArray();
}

}

class TextFileReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lineEnds()
    {
        // Each line ended by "/".
        const std::pair<QByteArray, QString> rows[] = {
            {{}, {}}, {"a\r\nb\r\n", u"a/b/"_s}, {"a\nb", u"a/b/"_s}, {"a\rb\r", u"a/b/"_s},
            {"a\n\rb", u"a//b/"_s}, {"a\r\r\nb", u"a//b/"_s}, {"\r\n\n\na", u"///a/"_s}, {"\r\n", u"/"_s},
            {"a\0b\n"_ba, u"a\0b/"_s}, // NUL is a character
        };
        for (const auto &[bytes, lines] : rows) {
            QString joined;
            for (const QString &line : Lines(bytes)) {
                joined += line + u'/';
            }
            QCOMPARE(joined, lines);
        }
    }

    void encodings()
    {
        const QByteArray utf8 = "\xEF\xBB\xBF";
        const std::pair<QByteArray, QString> rows[] = {
            {"\xE5\x80\x8A\x81", u"å€Š\u0081"_s}, // ANSI
            {"\xFF\xFE\xB1\x03\x3D\xD8", u"α\xD83D"_s}, // UTF-16 little endian
            {"\xFE\xFF\x03\xB1\x20\xAC", u"α€"_s}, // UTF-16 big endian
            {"\xFF\xFE\x61\x00\x62"_ba, u"a"_s}, // UTF-16 cut inside a character
            {utf8 + "å\xCE\xB1€", u"åα€"_s},
            {utf8 + "\xED\xA0\xBD\xED\xB8\x80", u"\xD83D\xDE00"_s}, // surrogates as three bytes each
            {utf8 + "\xF0\x9F\x98\x80z", u"\uFFFD\uFFFD\uFFFD\uFFFDz"_s}, // four-byte lead and its rest
            {utf8 + "\xC3zx", u"\u00FAx"_s}, // unchecked continuation
            {utf8 + "a\xE2\x82", u"a"_s}, // cut inside a character
            {"\xEF\xBB\x62", u"ï»b"_s}, // two bytes of the UTF-8 mark are ANSI
            {"\xFF", u"ÿ"_s},
        };
        for (const auto &[bytes, line] : rows) {
            QCOMPARE(Lines(bytes), QStringList{line});
        }
    }

    void charactersAcrossPieces()
    {
        // Lines, characters and line ends over every offset of the reader's pieces.
        for (int shift = 0; shift < 4; ++shift) {
            const QString start(1018 + shift, u'x');
            const QString line = start + u"å€αβγ"_s;
            for (const TextEncoding encoding :
                {TextEncoding::Utf8, TextEncoding::Utf16BigEndian, TextEncoding::Utf16LittleEndian}) {
                const QByteArray bytes = Written(encoding, line + u"\r\n"_s + line);
                QCOMPARE(Lines(bytes), QStringList({line, line}));
            }
            QCOMPARE(Lines(start.toLatin1() + "\r\n" + start.toLatin1()), QStringList({start, start}));
        }
    }

    void narrowLines()
    {
        QBuffer buffer;
        buffer.setData(QByteArray("\xEF\xBB\xBF") + "12\nα\r\nfin");
        buffer.open(QIODevice::ReadOnly);
        CTextFileReader reader;
        reader.Open(buffer);
        QByteArray line;
        QVERIFY(reader.ReadNarrowLine(line));
        QCOMPARE(line, QByteArray("12"));
        QVERIFY(!reader.Lossy() && reader.ReadNarrowLine(line));
        QCOMPARE(line, QByteArray("?"));
        QVERIFY(reader.Lossy() && !reader.AtEnd() && reader.ReadNarrowLine(line));
        QVERIFY(reader.AtEnd() && !reader.ReadNarrowLine(line));
        reader.Rewind();
        QString first;
        QVERIFY(reader.ReadLine(first));
        QCOMPARE(first, u"12"_s);
    }

    void filesThatChangeOrCannotBeRead()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"growing"_s));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray line = "line\n";
        file.write(line.repeated(30000));
        CTextFileReader reader;
        QVERIFY(reader.Open(file.fileName()));
        int lines = 0;
        for (QString text; reader.ReadLine(text); ++lines) {
            file.write(line);
        }
        QCOMPARE(lines, 30000);
        QVERIFY(!reader.Failed());
        // One that becomes shorter is no whole file.
        reader.Rewind();
        QString text;
        QVERIFY(reader.ReadLine(text));
        QVERIFY(file.resize(100000));
        while (reader.ReadLine(text)) { }
        QVERIFY(reader.Failed());
        QVERIFY(!reader.Open(folder.filePath(u"missing"_s)) && !reader.Open(folder.path()));
        QVERIFY(!reader.Open(u"/dev/zero"_s)); // Would never end.
        QVERIFY(!reader.IsOpen());
    }

    void longLines()
    {
        const QByteArray longest(CTextFileReader::LongestLine, 'x');
        QCOMPARE(Lines("a\n" + longest + "\nb").size(), 3);
        QCOMPARE(Lines("a\n" + longest + "x\nb"), QStringList({u"a"_s}));
    }

    void writtenBytes()
    {
        QCOMPARE(Written(TextEncoding::Ansi, u"å€α"_s), QByteArray("\xE5\x80?\r\n"));
        QCOMPARE(Written(TextEncoding::Utf16LittleEndian, u"aα"_s),
            QByteArray("\xFF\xFE"
                       "a\0\xB1\x03\r\0\n\0",
                10));
        QCOMPARE(Written(TextEncoding::Utf16BigEndian, u"aα"_s), QByteArray("\xFE\xFF\0a\x03\xB1\0\r\0\n", 10));
        QCOMPARE(Written(TextEncoding::Utf8, u"aå€"_s),
            QByteArray("\xEF\xBB\xBF"
                       "a\xC3\xA5\xE2\x82\xAC\r\n"));

        CSmallDevice full(1);
        full.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        CTextFileWriter writer;
        writer.Open(full, TextEncoding::Ansi);
        writer.Write(u"xy");
        QVERIFY(!writer.Close());
    }
};

QTEST_APPLESS_MAIN(TextFileReaderTest)
#include "text_file_reader_test.moc"
