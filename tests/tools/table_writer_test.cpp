// SPDX-License-Identifier: MIT
#include "platform/local_formats.h"
#include "resources/texts.h"
#include "support/lists.h"
#include "tools/table_columns.h"
#include "tools/table_maker.h"

#include <QDate>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate Today(2004, 5, 6);

CWordList SampleList()
{
    CWordList list = MakeList(QStringList{
        u"hund [djur] * <b> [x|dog|not [1] & \"2\"|2"_s, u"å $s %1|кот € 😀||1"_s, u"[bara]|c] * d||12"_s});
    list.SetLanguage(0, u"Svenska"_s);
    list.SetLanguage(1, u"Русский"_s);
    list.SetAuthor(u"A & B %s"_s);
    list.SetComments(u"Läxa <1>"_s);
    return list;
}

const std::atomic<bool> KeepRunning = true;

/// The whole table; a page as it lies in a file.
QByteArray Made(const CreateTableSettings &options, std::vector<int> selection = {}, const CTexts &texts = {})
{
    CTableCells cells(SampleList(), std::move(selection), options, texts, Today);
    const std::unique_ptr<ITableWriter> writer = options.htmlFormat
        ? MakeHtmlTableWriter(std::move(cells), texts)
        : MakeTextTableWriter(std::move(cells));
    QString table;
    const bool whole = WriteTable(
        *writer,
        [&table](const QString &piece) {
            table += piece;
            return true;
        },
        KeepRunning);
    return whole && options.htmlFormat ? table.toLatin1() : table.toUtf8();
}

/// Expected tables are written with the line ends of the source, and are Latin 1 as a page is.
QByteArray Expected(const QString &table, bool asPage)
{
    QString text = table;
    text.replace(u'\n', u"\r\n"_s);
    text.replace(u"DATE"_s, FormatShortDate(Today));
    return asPage ? text.toLatin1() : text.toUtf8();
}

QByteArray ContentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}

class TableWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainPage();
    void richPage();
    void damagedModule();
    void boldAndSpecialCells_data();
    void boldAndSpecialCells();
    void text();
    void columns();
    void files();
    void longTexts();
    void stopping();
};

void TableWriterTest::plainPage()
{
    // As it comes out of the box.
    CreateTableSettings options;
    options.replaceAsterisc = CTexts().Get(62601);
    QCOMPARE(Made(options),
        Expected(uR"(<!DOCTYPE html PUBLIC "-//W3C//DTD HTML 3.2//EN">
<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">
<title>Glosfil</title>
</head>

<body bgcolor="FFFFFF" text="000000">

<table border=0>
<tr>
 <td nowrap>Nr:</td>
 <td nowrap>Svenska</td>
 <td nowrap>&#1056;&#1091;&#1089;&#1089;&#1082;&#1080;&#1081;</td>
</tr>

<tr>
 <td nowrap>1</td>
 <td nowrap>hund <i>(djur)</i>, &lt;b&gt; <i>(x</td>
 <td nowrap><b>dog</b></td>
</tr>

<tr>
 <td nowrap>2</td>
 <td nowrap><b>å $s %1</b></td>
 <td nowrap>&#1082;&#1086;&#1090; &#8364; &#128512;</td>
</tr>

<tr>
 <td nowrap>3</td>
 <td nowrap><b><i>(bara)</i></b></td>
 <td nowrap><b>c)</i>, d</b></td>
</tr>

</table>


<br>Antal glosor: 3
<br>Författare: A &amp; B %s
<br>Kommentarer: Läxa &lt;1&gt;
<br>Datum: DATE

</body>
</html>)"_s,
            true));
}

void TableWriterTest::richPage()
{
    CreateTableSettings options;
    options.columns = u"3\n0\n1\n4"_s;
    options.useSelected = 1;
    options.fullTableWidth = true;
    options.border = 30;
    options.setTableBackground = true;
    options.colorBackground = 0x00030201;
    options.colorText = 0x00FF00AB;
    options.showTitle = true;
    options.title = u"Läxa <1> & \u0416\u0081"_s;
    options.makeBold = int(BoldCells::All);
    options.specialDoChange = true;
    options.specialChange = int(SpecialCells::Unflagged);
    options.deleteComments = true;
    options.italicComments = int(CommentStyle::Italic);
    options.replaceAsterisc = u" & <br>[%s] "_s;
    QCOMPARE(Made(options, {0, 2}),
        Expected(uR"(<!DOCTYPE html PUBLIC "-//W3C//DTD HTML 3.2//EN">
<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1">
<title>Glosfil</title>
</head>

<body bgcolor="010203" text="AB00FF">

<table border=30 width="100%" bgcolor="99CCFF">
<tr>
  <td colspan=4 nowrap bgcolor="99CCFF"><center>Läxa &lt;1&gt; &amp; &#1046;&#65533;</center></td>
</tr>

<tr>
 <td nowrap width="33%">Anteckning</td>
 <td nowrap>Nr:</td>
 <td nowrap width="33%">Svenska</td>
 <td nowrap width="33%">Svenska</td>
</tr>

<tr>
 <td nowrap width="33%"><b>not <i>1</i> &amp; "2"</b></td>
 <td nowrap><b>1</b></td>
 <td nowrap bgcolor="FFCC99" width="33%"><b>hund <i>djur</i> &amp; <br><i>%s</i> &lt;b&gt; <i>x</b></td>
 <td nowrap width="33%"><b>&nbsp;</b></td>
</tr>

<tr>
 <td nowrap width="33%"><b>&nbsp;</b></td>
 <td nowrap><b>3</b></td>
 <td nowrap width="33%"><b>&nbsp;</b></td>
 <td nowrap width="33%"><b>&nbsp;</b></td>
</tr>

</table>


<br>Antal glosor: 3
<br>Författare: A &amp; B %s
<br>Kommentarer: Läxa &lt;1&gt;
<br>Datum: DATE

</body>
</html>)"_s,
            true));
    // Without selected entries all are meant.
    QVERIFY(Made(options).contains("<b>2</b>"));
}

void TableWriterTest::damagedModule()
{
    CTexts texts;
    QVERIFY(texts.LoadModule("Ordelin-spr\xC3\xA5kmodul\n62613=<td>$width$bg</td>\n62614=<em>$s</em>\n"
                             "62610=<html>%s%s\n62609=\xD0\x96\n"));
    const QByteArray page = Made({}, {}, texts);
    QVERIFY(page.contains("<em>dog</em></td>"));
    QVERIFY(page.contains("<table border=0>"));
    QVERIFY(page.contains(" <td nowrap>&#1046;</td>"));
}

void TableWriterTest::boldAndSpecialCells_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("bold");
    QTest::addColumn<QString>("special");
    QTest::newRow("flagged") << 0 << u"2"_s << u"2"_s;
    QTest::newRow("unflagged") << 1 << u"1"_s << u"1"_s;
    QTest::newRow("all, or numbers") << 2 << u"0123456"_s << u"0"_s;
    QTest::newRow("numbers, or language 1") << 3 << u"0"_s << u"1"_s;
    QTest::newRow("language 1, or language 2") << 4 << u"1"_s << u"2"_s;
    QTest::newRow("language 2") << 5 << u"2"_s << u""_s;
    QTest::newRow("none") << 6 << u""_s << u""_s;
}

void TableWriterTest::boldAndSpecialCells()
{
    QFETCH(const int, mode);
    QFETCH(const QString, bold);
    QFETCH(const QString, special);
    CreateTableSettings options;
    options.makeBold = mode;
    options.specialChange = mode;
    const auto codes = [&options](bool TableCell::*mark) {
        const CTableCells cells(SampleList(), {}, options, CTexts(), Today);
        QString found;
        for (int code = 0; code < TableColumnCount; ++code) {
            if (cells.Cell(0, TableColumn(code)).*mark) {
                found += QString::number(code);
            }
        }
        return found;
    };
    QCOMPARE(codes(&TableCell::special), QString());
    options.specialDoChange = true;
    QCOMPARE(codes(&TableCell::bold), bold);
    QCOMPARE(codes(&TableCell::special), special);
    options.htmlFormat = false;
    QCOMPARE(codes(&TableCell::bold) + codes(&TableCell::special), QString());
}

void TableWriterTest::text()
{
    CreateTableSettings options;
    options.htmlFormat = false;
    options.columns = u"2\n5\n0\n1\n3"_s;
    options.makeBold = int(BoldCells::All);
    options.showTitle = true;
    options.title = u"Läxa\t1"_s;
    options.replaceAsterisc = u"; "_s;
    QCOMPARE(Made(options),
        Expected(uR"(Läxa 1

Русский	Русский	Nr:	Svenska	Anteckning
dog		1	hund (djur); <b> (x	not (1) & "2"
кот € 😀		2	å $s %1	
c); d		3	(bara)	

Antal glosor: 3
Författare: A & B %s
Kommentarer: Läxa <1>
Datum: DATE)"_s,
            false));
    options.showTitle = false;
    options.columns = u"1"_s;
    options.italicComments = int(CommentStyle::Italic);
    options.doReplaceAsterisc = false;
    QVERIFY(Made(options).startsWith("Svenska\r\nhund [djur] * <b> [x\r\n"));
}

void TableWriterTest::columns()
{
    QString stored = u"2\n9\n 0\n\nx\n2"_s;
    CTableColumns columns(stored);
    QCOMPARE(StoredColumns(columns.Chosen()), u"2\n0"_s);
    QCOMPARE(StoredColumns(columns.Available()), u"1\n3\n4\n5\n6"_s);
    columns.Add(3);
    QCOMPARE(stored, u"2\n0\n5"_s);
    columns.Move(2, true);
    QVERIFY(!columns.CanMove(0, true) && !columns.CanMove(2, false) && !columns.CanMove(-1, false));
    columns.Remove(0);
    columns.Remove(7);
    QCOMPARE(stored, u"5\n0"_s);
}

void TableWriterTest::files()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"new/table"_s);
    CreateTableSettings options;
    options.htmlFormat = false;
    options.columns = u"2"_s;
    CTableMaker maker;
    QList<TableResult> results;
    connect(&maker, &CTableMaker::Ended, this, [&](const TableResult &result) { results.append(result); });
    const auto make = [&](TextEncoding encoding, bool inPrivateFolder) {
        CTableCells cells(SampleList(), {}, options, CTexts(), Today);
        maker.Start(MakeTextTableWriter(std::move(cells)),
            {.file = file, .encoding = encoding, .inPrivateFolder = inPrivateFolder});
        QTRY_VERIFY(!maker.IsWorking());
    };
    make(TextEncoding::Ansi, false);
    QVERIFY(!results.last().succeeded); // There is no such folder.
    make(TextEncoding::Ansi, true);
    QVERIFY(results.last().succeeded && results.last().lossy);
    QVERIFY(ContentOf(file).contains("dog\r\n??? \x80 ?\r\nc)"));
    QCOMPARE(QFile::permissions(folder.filePath(u"new"_s)) & (QFile::ReadGroup | QFile::ReadOther),
        QFile::Permissions());
    make(TextEncoding::Utf16LittleEndian, false);
    QVERIFY(results.last().succeeded && !results.last().lossy);
    const QByteArray bytes = ContentOf(file);
    QVERIFY(bytes.startsWith("\xFF\xFE"));
    QVERIFY(bytes.contains(QByteArray::fromHex("3A043E0442042000AC2020003DD800DE0D000A00")));
    QCOMPARE(results.size(), 3);
}

void TableWriterTest::longTexts()
{
    CWordList list;
    const QString word(999, u'x');
    for (int i = 0; i < 2000; ++i) {
        list.Insert(CWordEntry(word));
    }
    CreateTableSettings options;
    options.htmlFormat = false;
    options.columns = u"1"_s;
    CTableMaker maker;
    QSignalSpy ended(&maker, &CTableMaker::Ended);
    const auto make = [&](std::vector<int> selection) {
        options.useSelected = selection.empty() ? 0 : 1;
        maker.Start(MakeTextTableWriter(CTableCells(list, std::move(selection), options, CTexts(), Today)), {});
        return ended.wait() ? ended.takeFirst().at(0).value<TableResult>() : TableResult();
    };
    const TableResult whole = make({0, 1});
    QVERIFY(whole.succeeded && !whole.isCut);
    QCOMPARE(whole.shown.count(word), 2);
    const TableResult start = make({});
    QVERIFY(start.succeeded && start.isCut);
    QCOMPARE(start.shown.size(), 60000);
}

void TableWriterTest::stopping()
{
    // A file that is being written is given up whole.
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"table.html"_s);
    QFile old(path);
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    CWordList list;
    for (int i = 0; i < 200000; ++i) {
        list.Insert(CWordEntry(u"a"_s, u"b"_s));
    }
    const CTexts texts;
    auto maker = std::make_unique<CTableMaker>();
    const QSignalSpy ended(maker.get(), &CTableMaker::Ended);
    const auto start = [&] {
        maker->Start(MakeHtmlTableWriter(CTableCells(list, {}, {}, texts, Today), texts), {.file = path});
    };
    start();
    maker->Stop();
    QVERIFY(!maker->IsWorking());
    start();
    maker.reset();
    QCOMPARE(ContentOf(path), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    QCOMPARE(ended.count(), 0);
}

QTEST_GUILESS_MAIN(TableWriterTest)
#include "table_writer_test.moc"
