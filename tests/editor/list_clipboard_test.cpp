// SPDX-License-Identifier: MIT
#include "editor/clipboard_text.h"
#include "editor/ui/edit_box_commands.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "platform/random.h"
#include "resources/text_numbers.h"
#include "settings/shell_settings.h"
#include "support/test_document.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

namespace {

struct View
{
    explicit View(const QStringList &entries) : test(entries)
    {
        QApplication::clipboard()->clear();
        view.show();
        QApplication::setActiveWindow(&view);
    }

    QStringList Entries() const { return Describe(test.document.List()); }
    QString LastStatus() const { return status.last().first().toString(); }

    TestDocument test;
    ArrangeSettings arrange;
    CRandom random{1};
    CWin32View view{{test.document, test.settings, arrange, test.texts, test.prompt, random}};
    QSignalSpy status{&view, &CWin32View::StatusTextChanged};
};

QStringList List(const char *entries)
{
    return QString::fromUtf8(entries).split(u' ');
}

}

class ListClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyAndPaste();
    void pasteNothing();
    void cut();
    void copyOneColumn();
    void whileACellIsEdited();
};

void ListClipboardTest::copyAndPaste()
{
    View run(List("a|1|x|1 b|2||2 c|3 d|4"));
    run.view.SetInsertionPoint(1);
    run.view.SelectEntries({0, 1, 3});
    run.view.CopySelection(AllColumns);
    QCOMPARE(run.test.document.UndoCount(), 0);
    run.test.settings.newwordflag = true;
    run.test.settings.sortNewWords = true;
    run.view.SetInsertionPoint(3);
    run.view.PasteEntries();
    QCOMPARE(run.Entries(), List("a|1|x|1 b|2||2 c|3 a|1|x|1 b|2||2 d|4 d|4"));
    QCOMPARE(run.view.InsertionPoint(), 6);
    QCOMPARE(run.view.SelectedEntries(), (std::vector{3, 4, 5}));
    QCOMPARE(run.LastStatus(), QStringLiteral("3 glosor klistrades in."));
    QVERIFY(run.test.prompt.numbers.isEmpty()); // Nobody asks about similar entries.
    QVERIFY(run.test.document.IsModified());

    // Text from elsewhere follows below; each paste is a step for undo.
    QApplication::clipboard()->setText(QStringLiteral("e - 5\nno entry\nf - (6)\n"));
    run.view.PasteEntries();
    QCOMPARE(run.Entries().mid(5), List("d|4 e|5 f|(6) d|4"));
    QCOMPARE(run.test.document.UndoCount(), 2);
    run.test.document.Undo();
    QCOMPARE(run.Entries().size(), 7);
    run.test.document.Undo();
    QCOMPARE(run.Entries(), List("a|1|x|1 b|2||2 c|3 d|4"));
    QVERIFY(run.view.InsertionPoint() <= 4);
}

void ListClipboardTest::pasteNothing()
{
    View run(List("a|1 b|2"));
    run.view.SelectEntry(1);
    QApplication::clipboard()->setText(QStringLiteral("one word"));
    run.view.PasteEntries();
    QCOMPARE(run.LastStatus(), QStringLiteral("Inga glosor kunde klistras in."));
    QCOMPARE(run.test.document.UndoCount(), 0);
    QCOMPARE(run.view.SelectedEntries(), std::vector{1});
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

void ListClipboardTest::cut()
{
    View run(List("a|1 b|2 c|3"));
    run.view.SelectEntries({0, 1});
    run.test.prompt.answers = {PromptAnswer::No, PromptAnswer::Yes};
    run.view.CutSelection();
    QCOMPARE(
        run.test.prompt.texts, QStringList{QStringLiteral("2 glosor är markerade. Vill du ta bort dessa?")});
    QCOMPARE(run.Entries().size(), 3);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("a\t1\t\r\nb\t2\t\r\n"));
    run.view.SelectEntry(2);
    run.view.CutSelection();
    QCOMPARE(run.Entries(), List("a|1 b|2"));
    // With nothing selected the clipboard keeps what it has, and nothing is asked.
    run.view.CopySelection(AllColumns);
    run.view.CutSelection();
    QCOMPARE(run.test.prompt.numbers.size(), 2);
    run.view.SetInsertionPoint(0);
    run.view.PasteEntries();
    QCOMPARE(run.Entries(), List("c|3 a|1 b|2"));
}

void ListClipboardTest::copyOneColumn()
{
    View run(List("a|1|x b|2|y c|3"));
    run.view.SelectAll();
    run.view.CopySelection(1);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1\r\n2\r\n3\r\n"));
    run.view.CopySelection(2);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("x\r\ny\r\n\r\n"));
    // It is no entries to paste again.
    run.view.PasteEntries();
    QCOMPARE(run.Entries().size(), 3);
}

void ListClipboardTest::whileACellIsEdited()
{
    View run(List("a|1 b|2"));
    auto *const list = run.view.findChild<CWordListControl *>();
    const auto type = [&](const QString &text) {
        list->EditCell(1, 0);
        focusedEditBox()->setText(text);
    };
    run.view.SetInsertionPoint(2);
    type(QStringLiteral("new"));
    run.view.CopySelection(AllColumns);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("new\t2\t\r\n"));
    type(QStringLiteral("newer"));
    run.view.PasteEntries();
    QCOMPARE(run.Entries(), List("a|1 newer|2 new|2"));
    QVERIFY(!list->IsEditing());
}

QTEST_MAIN(ListClipboardTest)
#include "list_clipboard_test.moc"
