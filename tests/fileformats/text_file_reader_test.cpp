// SPDX-License-Identifier: MIT
#include "fileformats/text_file_reader.h"
#include "fileformats/text_file_writer.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

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
    void lineEnds_data();
    void lineEnds();
    void encodings_data();
    void encodings();
    void charactersAcrossPieces();
    void narrowLines();
    void filesThatCannotBeRead();
    void growingFiles();
    void longLines();
    void writtenBytes();
};

void TextFileReaderTest::lineEnds_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("lines"); // Each line ended by "/".
    QTest::newRow("empty file") << QByteArray() << "";
    QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << "a/b/";
    QTest::newRow("LF alone") << QByteArray("a\nb") << "a/b/";
    QTest::newRow("CR alone") << QByteArray("a\rb\r") << "a/b/";
    QTest::newRow("LF CR is two") << QByteArray("a\n\rb") << "a//b/";
    QTest::newRow("CR CR LF is two") << QByteArray("a\r\r\nb") << "a//b/";
    QTest::newRow("empty lines at the start") << QByteArray("\r\n\n\na") << "///a/";
    QTest::newRow("only a line end") << QByteArray("\r\n") << "/";
    QTest::newRow("NUL is a character") << QByteArray("a\0b\n", 4) << QString(u"a\0b/"_s);
}

void TextFileReaderTest::lineEnds()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, lines);
    QString joined;
    for (const QString &line : Lines(bytes)) {
        joined += line + u'/';
    }
    QCOMPARE(joined, lines);
}

void TextFileReaderTest::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("line");
    QTest::newRow("ANSI") << QByteArray("\xE5\x80\x8A\x81") << u"å€Š\u0081"_s;
    QTest::newRow("UTF-16 little endian") << QByteArray("\xFF\xFE\xB1\x03\x3D\xD8", 6) << u"α\xD83D"_s;
    QTest::newRow("UTF-16 big endian") << QByteArray("\xFE\xFF\x03\xB1\x20\xAC", 6) << u"α€"_s;
    QTest::newRow("UTF-16 cut inside a character") << QByteArray("\xFF\xFE\x61\x00\x62", 5) << u"a"_s;
    QTest::newRow("UTF-8") << QByteArray("\xEF\xBB\xBFå\xCE\xB1€") << u"åα€"_s;
    QTest::newRow("UTF-8 surrogates as three bytes each")
        << QByteArray("\xEF\xBB\xBF\xED\xA0\xBD\xED\xB8\x80") << u"\xD83D\xDE00"_s;
    QTest::newRow("UTF-8 four-byte lead and its rest")
        << QByteArray("\xEF\xBB\xBF\xF0\x9F\x98\x80z") << u"\uFFFD\uFFFD\uFFFD\uFFFDz"_s;
    QTest::newRow("UTF-8 unchecked continuation") << QByteArray("\xEF\xBB\xBF\xC3zx") << u"\u00FAx"_s;
    QTest::newRow("UTF-8 cut inside a character") << QByteArray("\xEF\xBB\xBF"
                                                                "a\xE2\x82")
                                                  << u"a"_s;
    QTest::newRow("two bytes of the UTF-8 mark are ANSI") << QByteArray("\xEF\xBB\x62") << u"ï»b"_s;
    QTest::newRow("one byte") << QByteArray("\xFF") << u"ÿ"_s;
}

void TextFileReaderTest::encodings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, line);
    QCOMPARE(Lines(bytes), QStringList({line}));
}

void TextFileReaderTest::charactersAcrossPieces()
{
    // Lines, characters and line ends over every offset of the reader's pieces.
    for (int shift = 0; shift < 4; ++shift) {
        const QString start(1018 + shift, u'x');
        const QString line = start + QStringLiteral("å€αβγ");
        for (const TextEncoding encoding :
            {TextEncoding::Utf8, TextEncoding::Utf16BigEndian, TextEncoding::Utf16LittleEndian}) {
            const QByteArray bytes = Written(encoding, line + QStringLiteral("\r\n") + line);
            QCOMPARE(Lines(bytes), QStringList({line, line}));
        }
        QCOMPARE(Lines(start.toLatin1() + "\r\n" + start.toLatin1()), QStringList({start, start}));
    }
}

void TextFileReaderTest::narrowLines()
{
    QBuffer buffer;
    buffer.setData(QByteArray("\xEF\xBB\xBF") + "12\nα\r\nfin");
    buffer.open(QIODevice::ReadOnly);
    CTextFileReader reader;
    reader.Open(buffer);
    QByteArray line;
    QVERIFY(reader.ReadNarrowLine(line));
    QCOMPARE(line, QByteArray("12"));
    QVERIFY(!reader.Lossy());
    QVERIFY(reader.ReadNarrowLine(line));
    QCOMPARE(line, QByteArray("?"));
    QVERIFY(reader.Lossy());
    QVERIFY(!reader.AtEnd());
    QVERIFY(reader.ReadNarrowLine(line));
    QVERIFY(reader.AtEnd());
    QVERIFY(!reader.ReadNarrowLine(line));
    reader.Rewind();
    QString first;
    QVERIFY(reader.ReadLine(first));
    QCOMPARE(first, QStringLiteral("12"));
}

void TextFileReaderTest::filesThatCannotBeRead()
{
    const QTemporaryDir folder;
    CTextFileReader reader;
    QVERIFY(!reader.Open(folder.filePath(QStringLiteral("missing"))));
    QVERIFY(!reader.Open(folder.path()));
    QVERIFY(!reader.Open(QStringLiteral("/dev/zero"))); // Would never end.
    QVERIFY(!reader.IsOpen());
}

void TextFileReaderTest::growingFiles()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("growing")));
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
}

void TextFileReaderTest::longLines()
{
    const QByteArray longest(CTextFileReader::LongestLine, 'x');
    QCOMPARE(Lines("a\n" + longest + "\nb").size(), 3);
    QCOMPARE(Lines("a\n" + longest + "x\nb"), QStringList({QStringLiteral("a")}));
}

void TextFileReaderTest::writtenBytes()
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

    QBuffer full; // Not open: every write fails.
    CTextFileWriter writer;
    writer.Open(full, TextEncoding::Ansi);
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): device not open");
    writer.Write(u"x");
    QVERIFY(!writer.Close());
}

QTEST_APPLESS_MAIN(TextFileReaderTest)
#include "text_file_reader_test.moc"
