// SPDX-License-Identifier: MIT
#include "editor/clipboard_text.h"
#include "editor/list_clipboard.h"
#include "support/files.h"
#include "support/test_editor_view.h"

#include <QUrl>

namespace {

struct Clipboard : TestEditor
{
    using TestEditor::TestEditor;

    CTestClipboard system;
    QStringList opened;
    CListClipboard clipboard{
        view, test.document, system, test.texts, [this](const QString &path) { opened.append(path); }};
};

}

class ListClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

QTEST_GUILESS_MAIN(ListClipboardTest)
#include "list_clipboard_test.moc"
