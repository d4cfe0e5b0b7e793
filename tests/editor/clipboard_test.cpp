// SPDX-License-Identifier: MIT
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "editor/list_clipboard.h"
#include "fileformats/import_preview.h"
#include "support/files.h"
#include "support/scripted_format_dialogs.h"
#include "support/test_editor_view.h"

#include <QUrl>

#include <numeric>

namespace {

const QString Unicode = u"application/x-ornbury-workshops-ordelin-2.3-unicode"_s;
const QString EightBit = u"application/x-ornbury-workshops-ordelin-2.3"_s;

std::vector<int> All(const CWordList &list)
{
    std::vector<int> entries(size_t(list.Count()));
    std::iota(entries.begin(), entries.end(), 0);
    return entries;
}

struct Clipboard : TestEditor
{
    using TestEditor::TestEditor;

    CTestClipboard system;
    QStringList opened;
    CScriptedFormatDialogs formatDialogs;
    CListClipboard clipboard{view, test.document, system, test.texts, test.prompt, formatDialogs,
        [this](const QString &path) { opened.append(path); }};
};

}

class ClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writes()
    {
        const struct
        {
            const char *entries;
            int column;
            QString text;
            QByteArray richText;
        } rows[] = {
            // All columns, flagged terms bold; notes are never.
            {"hund * jycke|dog|[n]|1,katt|cat||2", AllColumns, u"hund * jycke\tdog\t[n]\r\nkatt\tcat\t\r\n"_s,
                "{\\b hund * jycke}{\\tab}{dog}{\\tab}{[n]}{\\par }{katt}{\\tab}{\\b cat}{\\tab}{}{\\par }"},
            {"a|b|c|12,d|e|f", 1, u"b\r\ne\r\n"_s, "{\\b b}{\\par }{e}{\\par }"},
            {"a|b|c|12", 2, u"c\r\n"_s, "{c}{\\par }"},
            // Letters of all ranges, and what is markup in rich text.
            {"å|α|\uFB01 𝄞", AllColumns, u"å\tα\t\uFB01 𝄞\r\n"_s,
                "{\\u229?}{\\tab}{\\u945?}{\\tab}{\\u64257? \\u55348?\\u56606?}{\\par }"},
            {"\\par {x}|}|~", AllColumns, u"\\par {x}\t}\t~\r\n"_s,
                "{\\\\par \\{x\\}}{\\tab}{\\}}{\\tab}{~}{\\par }"},
        };
        for (const auto &row : rows) {
            const CWordList list = MakeList(row.entries);
            QCOMPARE(EntriesAsText(list, All(list), row.column), row.text);
            QCOMPARE(EntriesAsRichText(list, All(list), row.column),
                "{\\rtf1\\ansi\\ansicpg1252" + row.richText + "}");
        }
    }

    void readsRecords()
    {
        const std::pair<QString, QString> rows[] = {
            {{}, {}}, // nothing
            {u"0\r\na\r\n1\r\nb\r\n\r\n"_s, u"a|b||2"_s}, // flags, empty note
            {u"\r\na\r\n00\r\nb\r\nc\r\n"_s, u"a|b|c|12"_s}, // anything but 0 is a flag
            {u"0\r\na\r\n0\r\nb\r\nc\r\n0\r\nd\r\n0\r\ne\r\nf"_s, u"a|b|c"_s}, // the last line has no end
            {u"0\r\na\r\n0\r\nb\r\n"_s, {}}, // a record of four lines
            {u"0\na\n0\nb\nc\n"_s, {}}, // other line ends end no line
            {u"\uFEFF0\r\na\r\n0\r\nb\r\n\r\n"_s, u"a|b"_s}, // a byte-order mark
            {u"0\r\n a*b\tc \r\n0\r\n[]d\r\n\ne\r\n"_s, u"a * b c|d|e"_s}, // not in normal form
        };
        for (const auto &[records, entries] : rows) {
            QCOMPARE(Joined(EntriesFromRecords(records)), entries);
        }
    }

    void readsText()
    {
        const std::pair<QString, QString> rows[] = {
            {{}, {}}, // nothing
            {u"a\tb\r\nc\td\te f\ng\th"_s, u"a|b,c|d|e f,g|h"_s}, // tabs, a note, CR LF and LF
            {u"a\tb\na;b\na:b\na|b\na,b\na=b\na-b"_s, u"a|b,a|b,a|b,a|b,a|b,a|b,a|b"_s},
            {u"a,b;c\na-b=c\nd=e,f-g"_s, u"a,b|c,a-b|c,d=e|f-g"_s}, // their order decides, not the place
            {u"hund - dog - the note"_s, u"hund|dog|the note"_s}, // blanks beside the separator
            {u"\t* hus = house *\n**a*b;c"_s, u"hus|house,a * b|c"_s}, // stars and blanks outside
            {u"\ta;b\t\n"_s, u"a|b"_s}, // a separator outside goes with them
            // Lines that make no sense between others.
            {u"a-b-c-d\na;b\nno separator\n\n=house\nx==y\nc;d\n-"_s, u"a|b,c|d"_s},
            {u"a-  -c\n[];b"_s, {}}, // terms of blanks or comments without words
            {u"ёж – hedgehog; igelkott"_s, u"ёж – hedgehog|igelkott"_s}, // letters outside Latin 1
            {u"a;b\rc;d\r\re;f\r"_s, u"a|b,c|d,e|f"_s}, // CR alone
            {u"\uFEFF* a;\uFEFFb"_s, u"a|\uFEFFb"_s}, // a byte-order mark
            {u"a\u0002b;c\u0001d"_s, u"a b|c d"_s}, // control characters
        };
        for (const auto &[text, entries] : rows) {
            QCOMPARE(Joined(EntriesFromText(text)), entries);
        }
    }

    void formatsOfData()
    {
        const CWordList list = MakeList("é|α|€|1");
        const auto data = ClipboardDataOf(list, All(list), AllColumns);
        QCOMPARE(data->text(), u"é\tα\t€\r\n"_s);
        QCOMPARE(data->data(u"text/plain;charset=windows-1252"_s), QByteArray("\xE9\t?\t\x80\r\n"));
        QVERIFY(data->data(u"text/rtf"_s).startsWith("{\\rtf1\\ansi"));
        QCOMPARE(data->data(u"text/rtf"_s), data->data(u"application/rtf"_s));
        QCOMPARE(data->data(EightBit), QByteArray("1\r\n\xE9\r\n0\r\n?\r\n\x80\r\n"));
        QCOMPARE(data->data(Unicode).toHex(' '),
            QByteArray(
                "31 00 0d 00 0a 00 e9 00 0d 00 0a 00 30 00 0d 00 0a 00 b1 03 0d 00 0a 00 ac 20 0d 00 0a 00"));
        // By the older names, with a zero at the end.
        const QString unicodeName = u"Ornbury Workshops Ordelin 2.3 Unicode"_s;
        const QString eightBitName = u"Ornbury Workshops Ordelin 2.3"_s;
        QCOMPARE(data->data(unicodeName), data->data(Unicode) + QByteArray(2, '\0'));
        QCOMPARE(data->data(eightBitName), data->data(EightBit) + '\0');
        QCOMPARE(data->data(u"Rich Text Format"_s), data->data(u"text/rtf"_s) + '\0');
        QCOMPARE(ClipboardDataOf(list, All(list), 0)->formats().size(), 5); // One column has no records.

        // The best form is read first, and alone.
        QVERIFY(MayHoldEntries(*data));
        QCOMPARE(Joined(EntriesFromData(*data)), u"é|α|€|1"_s);
        data->removeFormat(Unicode);
        QCOMPARE(Joined(EntriesFromData(*data)), u"é|α|€|1"_s);
        data->removeFormat(unicodeName);
        QCOMPARE(Joined(EntriesFromData(*data)), u"é|?|€|1"_s);
        data->setData(EightBit, "cut off");
        QCOMPARE(Joined(EntriesFromData(*data)), QString());
        data->removeFormat(EightBit);
        QCOMPARE(Joined(EntriesFromData(*data)), u"é|?|€|1"_s);
        data->removeFormat(eightBitName);
        QCOMPARE(Joined(EntriesFromData(*data)), u"é|α|€"_s);
        data->removeFormat(u"text/plain"_s);
        QCOMPARE(Joined(EntriesFromData(*data)), u"é|?|€"_s);
        data->removeFormat(u"text/plain;charset=windows-1252"_s);
        QVERIFY(!MayHoldEntries(*data));
        QCOMPARE(EntriesFromData(*data).Count(), 0);
        data->setData(Unicode, QByteArray(3, '\n'));
        QVERIFY(MayHoldEntries(*data));
        QCOMPARE(EntriesFromData(*data).Count(), 0);
    }

    void recordsKeepEverything()
    {
        CRandom random(7);
        CWordList list;
        for (int i = 0; i < 500; ++i) {
            const auto text = [&] { return RandomText(random, u"ab *]\\{}\t\r\n-,å\u0434\xD834\xFFFE", 12); };
            list.Insert(CWordEntry(text(), text(), text(), random.Next() % 2 == 0, random.Next() % 2 == 0));
        }
        QCOMPARE(Describe(EntriesFromData(*ClipboardDataOf(list, All(list), AllColumns))), Describe(list));
    }

    void copyAndPaste()
    {
        const QString before = u"a|1|x|1,b|2||2,c|3,d|4"_s;
        Clipboard run(before);
        run.view.SetInsertionPoint(1);
        run.view.selected = {0, 1, 3};
        run.clipboard.Copy(AllColumns);
        QCOMPARE(run.test.document.UndoCount(), 0);
        run.test.settings.newwordflag = true;
        run.test.settings.sortNewWords = true;
        run.view.SetInsertionPoint(3);
        QVERIFY(run.clipboard.CanPaste());
        run.clipboard.Paste();
        QCOMPARE(run.Entries(), u"a|1|x|1,b|2||2,c|3,a|1|x|1,b|2||2,d|4,d|4"_s);
        QCOMPARE(run.view.InsertionPoint(), 6);
        QCOMPARE(run.view.selected, (std::vector{3, 4, 5}));
        QCOMPARE(run.view.shown, 5);
        QCOMPARE(run.view.status, u"3 glosor klistrades in."_s);
        QVERIFY(run.test.prompt.numbers.isEmpty()); // Nobody asks about similar entries.

        // Text from elsewhere follows below; each paste is a step for undo.
        run.system.SetText(u"e - 5\nno entry\nf - (6)\n"_s);
        run.clipboard.Paste();
        QVERIFY(run.Entries().endsWith(u",d|4,e|5,f|(6),d|4"));
        QCOMPARE(run.test.document.UndoCount(), 2);
        run.test.document.Undo();
        run.test.document.Undo();
        QCOMPARE(run.Entries(), before);
        QCOMPARE(run.view.InsertionPoint(), 3);
    }

    void pasteSpecial()
    {
        Clipboard run(u"a|1,b|2"_s);
        QVERIFY(!run.clipboard.CanPasteSpecial());
        run.view.SetInsertionPoint(1);
        // More columns than plain pasting takes, and a row behind those that the preview shows.
        run.system.SetText(QStringLiteral("x;c;y;d\n").repeated(250) + u"x;[e;y;f\n"_s);
        QVERIFY(run.clipboard.CanPasteSpecial());
        run.clipboard.PasteSpecial(); // Cancelled.
        QCOMPARE(run.test.document.UndoCount(), 0);
        run.formatDialogs.onImport = [](CImportPreview &preview) {
            for (const int column : {0, 2}) {
                preview.SetColumn(column, TextColumn::LeftOut);
            }
            preview.SetColumn(1, TextColumn::Term1);
            preview.SetColumn(3, TextColumn::Term2);
            return true;
        };
        run.clipboard.PasteSpecial();
        QCOMPARE(run.test.document.List().Count(), 253);
        QVERIFY(run.Entries().startsWith(u"a|1,c|d,"_s) && run.Entries().endsWith(u",[e|f,b|2"_s));
        QCOMPARE(run.test.document.UndoCount(), 1);
        QCOMPARE(run.view.InsertionPoint(), 252);
        QCOMPARE(run.view.selected.size(), size_t(251));
        QCOMPARE(run.view.status, u"251 glosor klistrades in."_s);
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NotAllPasted});
    }

    void pasteNothing()
    {
        Clipboard run(u"a|1,b|2"_s);
        run.view.selected = {1};
        QVERIFY(!run.clipboard.CanPaste());
        run.clipboard.Paste();
        run.system.SetText(u"one word"_s);
        run.clipboard.Paste();
        QCOMPARE(run.view.status, u"Inga glosor kunde klistras in."_s);
        QCOMPARE(run.test.document.UndoCount(), 0);
        QCOMPARE(run.view.selected, std::vector{1});
    }

    void pasteFiles()
    {
        const QTemporaryDir folder;
        const QString file = WriteFile(folder.filePath(u"a - b.gls"_s), {});
        Clipboard run(u"a|1"_s);
        const auto paste = [&](const QStringList &paths) {
            auto data = std::make_unique<QMimeData>();
            data->setUrls(QUrl::fromStringList(paths));
            data->setText(paths.join(u'\n')); // As file managers do.
            run.system.SetData(std::move(data));
            run.clipboard.Paste();
        };
        const QString url = u"file://"_s;
        paste({url + file, url + file});
        paste({url + folder.path()});
        paste({url + folder.filePath(u"c-d"_s)});
        QVERIFY(run.opened.isEmpty());
        paste({url + file});
        QCOMPARE(run.opened, QStringList{file});
        QCOMPARE(run.Entries(), u"a|1"_s);
    }

    void cutAndColumns()
    {
        Clipboard run(u"a|1|x,b|2|y,c|3"_s);
        run.view.selected = {0, 1, 2};
        run.clipboard.Copy(1);
        QCOMPARE(run.system.Data()->text(), u"1\r\n2\r\n3\r\n"_s);
        run.clipboard.Copy(2);
        QCOMPARE(run.system.Data()->text(), u"x\r\ny\r\n\r\n"_s);
        run.clipboard.Paste(); // A column is no entries.
        QCOMPARE(run.test.document.List().Count(), 3);
        run.view.selected = {0, 1};
        run.clipboard.Cut();
        QCOMPARE(run.system.Data()->text(), u"a\t1\tx\r\nb\t2\ty\r\n"_s);
        QCOMPARE(run.view.deletions, 1);
        // What is dropped on either side of the new-entry row stays there.
        run.view.SetInsertionPoint(1);
        run.clipboard.Insert(*run.system.Data(), 2);
        QCOMPARE(run.view.InsertionPoint(), 1);
        QCOMPARE(run.Entries(), u"a|1|x,a|1|x,b|2|y,b|2|y,c|3"_s);
        QCOMPARE(run.view.selected, (std::vector<int>{1, 2}));
        run.test.document.Undo();
        // With nothing selected the clipboard keeps what it has.
        run.view.selected.clear();
        run.clipboard.Copy(AllColumns);
        run.view.SetInsertionPoint(0);
        run.clipboard.Paste();
        QCOMPARE(run.Entries(), u"a|1|x,b|2|y,a|1|x,b|2|y,c|3"_s);
    }
};

QTEST_GUILESS_MAIN(ClipboardTest)
#include "clipboard_test.moc"
