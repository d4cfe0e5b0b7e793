// SPDX-License-Identifier: MIT
#include "fileformats/import_preview.h"

#include "fileformats/separated_text_guess.h"
#include "support/formats.h"
#include "support/lists.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The columns as digits of TextColumn.
QString Columns(const SeparatedTextOptions &options)
{
    QString digits;
    for (const TextColumn column : options.columns) {
        digits += QString::number(int(column));
    }
    return digits;
}

}

class ImportPreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void guesses();
    void choices();
    void columnsChangePlaces();
    void filesAndFolders();
};

void ImportPreviewTest::guesses()
{
    const struct
    {
        const char *head;
        char separator;
        bool hasHeading;
        const char *columns; // 0 left out, 1 and 2 terms, 3 note, 4 and 5 flags
        bool noQuotes = false;
        const char *suffix = "csv";
    } rows[] = {
        {"Svenska;Engelska\nhund;dog\nkatt;cat\n", ';', true, "12"},
        {"Svenska;Engelska;Anteckning;Flagga\nhund;dog;djur;1\nkatt;cat;;0\n", ';', true, "1234"},
        {"hund;dog\nkatt;cat\n", ';', false, "12"},
        {"hund,dog\nkatt,cat\n", ',', false, "12"},
        {"hund\tdog\nkatt\tcat\n", '\t', false, "12"},
        {"hund|dog\nkatt|cat\n", '|', false, "12"},
        // Commas and semicolons within the terms.
        {"hund; vovve\tdog, doggy\nkatt\tcat\n", '\t', false, "12"},
        {"hund, vovve;dog\nkatt;cat, pussy\n", ';', false, "12"},
        {"\"hund; vovve\",dog\n\"katt; kisse\",cat\n", ',', false, "12"},
        {"\"Swedish\",\"English\"\n\"hund, vovve\",\"dog\"\n", ',', true, "12"},
        {"Term,Definition\nhund,dog\nkatt,\"cat, the animal\"\n", ',', true, "12"},
        {"Front\tBack\tTags\nhund\tdog\tdjur\n", '\t', true, "120"},
        {"id,word,translation,example\n1,hund,dog,En hund.\n2,katt,cat,\n", ',', true, "0123"},
        {"Nr;Glosa;Betydelse\n1;hund;dog\n2;katt;cat\n", ';', true, "012"},
        {"1;hund;dog\n2;katt;cat\n3;ko;cow\n", ';', false, "012"},
        {"1,ett\n2,två\n3,tre\n", ',', false, "12"},
        {"en,sv\ndog,hund\n", ',', true, "12"},
        {"en-GB;sv-SE\ndog;hund\n", ';', true, "12"},
        // Words to learn that are names of languages, codes or columns too.
        {"svenska,Swedish\nengelska,English\n", ',', false, "12"},
        {"he,han\nshe,hon\n", ',', false, "12"},
        {"is;ice\nvatten;water\n", ';', false, "12"},
        {"no;nej\nyes;ja\n", ';', false, "12"},
        {"Swedish,Lojban\nhund,gerku\nkatt,mlatu\n", ',', true, "12"},
        {"Tagalog;Xhosa\nab;cd\nef;gh\nij;kl\nmn;op\nqr;st\n", ';', true, "12"},
        {"Hund;Dog\nKatt;Cat\nKo;Cow\nGet;Goat\nHäst;Horse\nGris;Pig\n", ';', false, "12"},
        {"Hej!;Hello!\nab;cd\nef;gh\nij;kl\nmn;op\nqr;st\n", ';', false, "12"},
        {"hund,dog,,djur\nkatt,cat,,\n", ',', false, "1203"},
        {"hund;dog;;1;0\nkatt;cat;;0;1\n", ';', false, "12045"},
        {"sep=;\nSvenska;Tyska\nhund;Hund\n", ';', true, "12"},
        {"5\" skruv\tscrew\n10\" rör\tpipe\n\"ung\tyoung\n", '\t', false, "12", true},
        {"hund dog\nkatt cat\n", ',', false, "1"},
        {"hund\nkatt\n", '\t', false, "1", false, "tsv"},
        {"Deutsch,Français,Kommentar\n\"der Hund\",\"le chien\",\"m.\"\n", ',', true, "123"},
        {"a,b,c,d,e,f\ng,h,i,j,k,l\n", ',', false, "123000"},
        {"", ',', false, ""},
        // Blanks behind semicolons, and none behind the commas that separate.
        {"hund; vovve,dog; doggy\nkatt; misse,cat; kitty\n", ',', false, "12"},
        {"hund\tdog, x\nkatt\tcat, y\tdjur\nko, z\tcow\n", '\t', false, "123"},
        // Titles in front of the heading, and remarks.
        {"Vecka 12;;\n;;\nSvenska;Engelska;Notering\nhund;dog;djur\n", ';', true, "123"},
        {"# Djur, husdjur\nhund,dog\n# Mer\nkatt,cat\n", ',', false, "12"},
        {"Svenska,Engelska,Kan jag,Nästa,Pris\nhund,dog,1,2024-05-02 13:30,\"3,14\"\nkatt,cat,0,,\n", ',', true,
            "12400"},
    };
    for (const auto &row : rows) {
        const SeparatedTextOptions options =
            GuessSeparatedText(QString::fromUtf8(row.head), true, QString::fromLatin1(row.suffix)).options;
        const auto failed = [&row](const char *what) { return QByteArray(what) + " of \"" + row.head + '"'; };
        QVERIFY2(options.separator == char16_t(row.separator), failed("separator").constData());
        QVERIFY2(options.hasHeading == row.hasHeading, failed("heading").constData());
        QVERIFY2((options.quote == 0) == row.noQuotes, failed("quotes").constData());
        QVERIFY2(Columns(options) == QLatin1StringView(row.columns),
            failed("columns " + Columns(options).toLatin1()).constData());
    }
}

void ImportPreviewTest::choices()
{
    CImportPreview preview;
    QString text = u"Svenska\tEngelska\nhund; vovve (tam)\tdog / doggy, d\n\t\tx\n"_s;
    for (int i = 0; i < 300; ++i) {
        text += u"a\tb\n"_s;
    }
    preview.OpenText(text);
    QVERIFY(preview.CanRead() && preview.HasMore());
    QCOMPARE(preview.Rows().size(), size_t(CImportPreview::MostRows));
    QCOMPARE(preview.Heading(), QStringList({u"Svenska"_s, u"Engelska"_s}));
    QCOMPARE(preview.Rows()[0].cells.at(0), u"hund; vovve (tam)"_s);
    QCOMPARE(Describe(*preview.Rows()[0].entry), u"hund * vovve (tam)|dog * doggy, d"_s);
    QVERIFY(!preview.Rows()[1].entry);
    QCOMPARE(Described(preview.Losses()), u"13:1,14:1"_s);
    preview.SetTerms({.commasSeparate = true, .roundBracketsAreComments = true});
    QCOMPARE(Describe(*preview.Rows()[0].entry), u"hund; vovve [tam]|dog / doggy * d"_s);
    preview.SetHeading(false);
    QCOMPARE(preview.Rows()[0].cells.at(0), u"Svenska"_s);
    preview.SetSeparator(u';');
    QCOMPARE(preview.ColumnCount(), 2);
    preview.SetSeparator(u'\t');
    QCOMPARE(Columns(preview.Choices().layout), u"12"_s);
    CWordList list;
    const FormatReading reading = preview.Read(list);
    QVERIFY(reading.result == ReadResult::Read);
    QCOMPARE(list.Count(), 301);
    QCOMPARE(list.GetLanguage(1), u"Engelska"_s);
}

void ImportPreviewTest::columnsChangePlaces()
{
    CImportPreview preview;
    preview.OpenText(u"a;b;c\nd;e;f\n"_s);
    QCOMPARE(Columns(preview.Choices().layout), u"123"_s);
    preview.SetColumn(0, TextColumn::Term2);
    QCOMPARE(Columns(preview.Choices().layout), u"213"_s);
    preview.SetColumn(2, TextColumn::LeftOut);
    preview.SetColumn(0, TextColumn::LeftOut);
    QCOMPARE(Columns(preview.Choices().layout), u"010"_s);
    QCOMPARE(Describe(*preview.Rows()[1].entry), u"e"_s);
    preview.SetColumn(1, TextColumn::Note);
    QVERIFY(!preview.CanRead() && !preview.Rows()[0].entry);
    preview.SetColumn(7, TextColumn::Term1);
    QVERIFY(!preview.CanRead());
}

void ImportPreviewTest::filesAndFolders()
{
    QTemporaryDir folder;
    const auto write = [&folder](const QString &name, const QByteArray &bytes) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                    : QString();
    };
    CImportPreview preview;
    QVERIFY(preview.OpenFile(folder.filePath(u"none.csv"_s)) == ReadResult::CannotOpen);
    QVERIFY(preview.OpenFile(write(u"a.csv"_s, "\x89PNG\r\n\x1A\n")) == ReadResult::Binary);
    QVERIFY(preview.OpenFile(write(u"a.csv"_s, "h\xE4st;x;horse\nko;y;cow\n")) == ReadResult::Read);
    QCOMPARE(preview.Rows()[0].cells.at(0), u"häst"_s);
    preview.SetEncoding(TextEncoding::Utf8);
    QVERIFY(preview.Rows()[0].cells.at(0).contains(QChar::ReplacementCharacter));
    preview.SetEncoding(TextEncoding::Ansi);
    preview.SetColumn(2, TextColumn::Term2);
    CRememberedChoices remembered;
    remembered.Remember(folder.path(), preview.Choices());
    QVERIFY(!remembered.Of(u"/"_s));
    // Only a file with as many columns is laid out like the last one of its folder.
    QVERIFY(preview.OpenFile(write(u"b.csv"_s, "g\xC3\xA5s;x;goose\n")) == ReadResult::Read);
    QVERIFY(preview.Adopt(*remembered.Of(folder.path())));
    QCOMPARE(Describe(*preview.Rows()[0].entry), u"gås|goose|x"_s);
    QVERIFY(preview.OpenFile(write(u"c.csv"_s, "a,b\nc,d\n")) == ReadResult::Read);
    QVERIFY(!preview.Adopt(*remembered.Of(folder.path())));
    QCOMPARE(Describe(*preview.Rows()[0].entry), u"a|b"_s);
}

QTEST_APPLESS_MAIN(ImportPreviewTest)
#include "import_preview_test.moc"
