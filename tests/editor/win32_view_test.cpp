// SPDX-License-Identifier: MIT
#include "editor/arranging.h"
#include "editor/ui/edit_box_commands.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/ui/long_line_edit.h"
#include "settings/shell_settings.h"
#include "support/test_document.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// The real view in a window with another edit box.
struct View
{
    explicit View(const QStringList &entries = {}) : test(entries)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&view);
        layout->addWidget(&other);
        window.resize(700, 500);
        window.show();
        QApplication::setActiveWindow(&window);
        List()->setFocus();
        QObject::connect(
            &view, &CWin32View::SortRequested, &view, [this](int field) { arranging.SortOrTurn(field); });
        QObject::connect(
            &view, &CWin32View::InvertFlagsRequested, &view, [this] { arranging.SetFlags(FlagMode::Toggle); });
        QObject::connect(&view, &CWin32View::FlagClicked, &view, [this](const QPersistentModelIndex &cell) {
            const auto flag = view.FlagOf(cell);
            arranging.ToggleFlag(flag->first, flag->second);
        });
    }
    void Flip(bool EditorSettings::*setting)
    {
        test.settings.*setting = !(test.settings.*setting);
        test.settingsChanges.Tell(SettingsSection::Editor);
    }

    CWordListControl *List() { return view.findChild<CWordListControl *>(); }
    QLineEdit *Editor()
    {
        auto *const box = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        return box != nullptr && box->objectName() == QStringLiteral("cellEditor") ? box : nullptr;
    }
    QLineEdit *Field(int field) { return view.findChild<QLineEdit *>(QStringLiteral("field%1").arg(field)); }
    void Type(const QString &text)
    {
        for (const QChar unit : text) {
            QTest::keyClick(QApplication::focusWidget(), unit == u'\n' ? '\r' : unit.toLatin1());
        }
    }
    QPoint Place(int row, int column, int dx)
    {
        return List()->visualRect(List()->model()->index(row, column)).topLeft() + QPoint(dx, 5);
    }
    QStringList Entries() const { return Describe(test.document.List()); }
    QString Selected() const
    {
        QStringList entries;
        for (const int entry : view.SelectedEntries()) {
            entries.append(QString::number(entry));
        }
        return entries.join(u' ');
    }

    TestDocument test;
    CRandom random{1};
    QWidget window;
    QLineEdit other;
    CWin32View view{{test.document, test.allSettings, test.settingsChanges, test.texts, test.prompt}};
    CArranging arranging{view, test.document, test.allSettings.arrange, random};
};

QStringList Numbered(int count)
{
    QStringList entries;
    for (int i = 0; i < count; ++i) {
        entries.append(QStringLiteral("a%1|b%1").arg(i));
    }
    return entries;
}

}

class Win32ViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingAListByKeys();
    void endingAnEdit();
    void takingBackWhatIsTyped();
    void tabGoesOn();
    void endingWithoutQuestions();
    void undoWhileACellIsEdited();
    void keysOfTheList();
    void typeToFind();
    void clicks();
    void columnWidths();
    void selectionAndInsertionPoint();
    void deletingAroundTheInsertionPoint_data();
    void deletingAroundTheInsertionPoint();
    void fieldsFollowTheSelection();
    void undoKeepsTheRows();
    void newDocumentForgets();
    void manyRows();
    void droppingText();
    void editBoxes();
    void typingOnBesideTheFoundEntry();
    void longTexts();
};

void Win32ViewTest::typingAListByKeys()
{
    View run;
    run.Type(QStringLiteral("hund\ndog\nn\nkatt\ncat\n\nx"));
    QCOMPARE(run.Entries(), (QStringList{QStringLiteral("hund|dog|n"), QStringLiteral("katt|cat")}));
    QVERIFY(run.Editor() != nullptr);
    QCOMPARE(run.Editor()->text(), QStringLiteral("x"));
    QTest::keyClick(run.Editor(), Qt::Key_Escape);
    QVERIFY(run.List()->hasFocus());
    QCOMPARE(run.view.InsertionPoint(), 2);
    QCOMPARE(run.test.document.UndoCount(), 2);
}

void Win32ViewTest::endingAnEdit()
{
    View run(Numbered(3));
    run.view.SelectEntry(1);
    run.Type(QStringLiteral("x"));
    // A menu or another window takes the focus for a while only.
    QLineEdit *const editor = run.Editor();
    QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(editor, &popup);
    QVERIFY(run.List()->IsEditing());
    // Another widget ends it; what follows comes from the event loop.
    run.other.setFocus(Qt::MouseFocusReason);
    QCOMPARE(run.Entries().at(1), QStringLiteral("a1|b1"));
    QCoreApplication::processEvents();
    QCOMPARE(run.Entries().at(1), QStringLiteral("x|b1"));
    QVERIFY(!run.List()->IsEditing());
    QVERIFY(run.other.hasFocus());
    // The wheel ends it before it scrolls.
    run.List()->EditCell(2, 1);
    run.Type(QStringLiteral("y"));
    QWheelEvent wheel({5, 5}, run.List()->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(run.List()->viewport(), &wheel);
    QCOMPARE(run.Entries().at(1), QStringLiteral("x|y"));
    QVERIFY(!run.List()->IsEditing());
}

void Win32ViewTest::takingBackWhatIsTyped()
{
    View run;
    const auto typed = [&] { return run.List()->model()->index(0, 1).data(Qt::EditRole).toString(); };
    const auto type = [&] {
        run.List()->SetCursor(0, 0);
        run.Type(QStringLiteral("hund\n"));
        QTest::keyClick(run.Editor(), Qt::Key_Escape); // Of the other language, which holds nothing.
        QCOMPARE(typed(), QStringLiteral("hund"));
        run.List()->SetCursor(0, 0);
    };
    const auto empty = [&] {
        QTest::keyClick(run.List(), Qt::Key_Return);
        QTest::keyClick(run.Editor(), Qt::Key_Delete);
    };
    type();
    QVERIFY(run.view.IsOnPendingText());
    run.view.DeleteSelection();
    QCOMPARE(typed(), QString());
    QVERIFY(!run.view.IsOnPendingText());
    type();
    empty();
    QTest::keyClick(run.Editor(), Qt::Key_Escape);
    QCOMPARE(typed(), QString());
    type();
    empty();
    QTest::keyClick(run.Editor(), Qt::Key_Return);
    QCOMPARE(typed(), QString());
    QVERIFY(!run.view.PendingWork().HasRest());
}

void Win32ViewTest::tabGoesOn()
{
    View run;
    run.Type(QStringLiteral("hund"));
    const auto tab = [&](Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(run.Editor(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
    };
    tab();
    run.Type(QStringLiteral("dog"));
    tab();
    run.Type(QStringLiteral("note\n"));
    QCOMPARE(run.Entries(), QStringList{QStringLiteral("hund|dog|note")});
    run.List()->EditCell(0, 0);
    tab();
    QCOMPARE(run.Editor()->text(), QStringLiteral("dog"));
    tab(Qt::ShiftModifier);
    QCOMPARE(run.Editor()->text(), QStringLiteral("hund"));
    QCOMPARE(run.test.document.UndoCount(), 1);
}

void Win32ViewTest::endingWithoutQuestions()
{
    View run(Numbered(2));
    run.view.SelectEntry(1);
    run.Type(QStringLiteral("x,a0"));
    run.view.EndEditingQuietly();
    QCOMPARE(run.Entries().at(1), QStringLiteral("x,a0|b1"));
    QVERIFY(run.test.prompt.numbers.isEmpty());
    // Closing with an edit open takes it down.
    run.List()->EditCell(2, 0);
}

void Win32ViewTest::undoWhileACellIsEdited()
{
    View run(Numbered(3));
    run.test.document.Change([](CWordList &list) { list.SetFlags(0, std::array{0}, FlagMode::Set); });
    run.view.SelectEntry(1);
    run.Type(QStringLiteral("x"));
    run.test.document.Undo();
    QCoreApplication::processEvents();
    QCOMPARE(run.Entries(), Numbered(3));
    run.view.EndEditing(true);
    QCOMPARE(run.Entries().at(1), QStringLiteral("x|b1")); // What is being typed is not lost.
}

void Win32ViewTest::keysOfTheList()
{
    View run(Numbered(3));
    run.view.SelectEntries({0, 2});
    const auto key = [&](Qt::Key pressed) { QTest::keyClick(run.List(), pressed); };
    key(Qt::Key_Right);
    key(Qt::Key_Space);
    QCOMPARE(run.Entries(),
        (QStringList{QStringLiteral("a0|b0||2"), QStringLiteral("a1|b1"), QStringLiteral("a2|b2||2")}));
    QCOMPARE(run.Selected(), QStringLiteral("0 2"));
    key(Qt::Key_Right);
    key(Qt::Key_Space); // A note has no flag.
    QCOMPARE(run.test.document.UndoCount(), 1);
    for (int i = 0; i < 5; ++i) {
        key(Qt::Key_Left); // Never onto the numbers.
    }
    QCOMPARE(run.view.CursorField(), 0);
    key(Qt::Key_End);
    QCOMPARE(run.Selected(), QStringLiteral("2"));
    key(Qt::Key_F2); // The key of another command.
    key(Qt::Key_Delete);
    key(Qt::Key_Backspace);
    QTest::keyClick(run.List(), 'c', Qt::ControlModifier);
    QVERIFY(!run.List()->IsEditing());
    key(Qt::Key_Return);
    QCOMPARE(run.Editor()->text(), QStringLiteral("a2"));
    QCOMPARE(run.Editor()->selectedText(), QStringLiteral("a2"));

    // A dead key or an input method is typing too.
    View composing(Numbered(1));
    composing.view.SelectEntry(0);
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("é"));
    QApplication::sendEvent(composing.List(), &event);
    QCOMPARE(composing.Editor()->text(), QStringLiteral("é"));
}

void Win32ViewTest::typeToFind()
{
    View run({QStringLiteral("apa|x"), QStringLiteral("[en] Boll|x"), QStringLiteral("bok|x")});
    run.test.settings.quickedit = false;
    run.List()->SetCursor(0, 0);
    run.Type(QStringLiteral("bo"));
    QCOMPARE(run.Selected(), QStringLiteral("2"));
    QVERIFY(!run.List()->IsEditing());
    QTest::qWait(0);
    run.Type(QStringLiteral("k"));
    QCOMPARE(run.Selected(), QStringLiteral("2"));
}

void Win32ViewTest::clicks()
{
    View run(Numbered(4));
    run.view.SetInsertionPoint(4);
    const auto click = [&](int row, int column, int dx) {
        QTest::mouseClick(run.List()->viewport(), Qt::LeftButton, {}, run.Place(row, column, dx));
    };
    click(2, 2, 8);
    QCOMPARE(run.Entries().at(2), QStringLiteral("a2|b2||2"));
    QCOMPARE(run.view.CursorField(), 1);
    click(1, 0, 3);
    QCOMPARE(run.Selected(), QStringLiteral("1"));
    QCOMPARE(run.view.CursorField(), 1);
    click(4, 1, 8); // The plus sign of the new-entry row is no flag.
    QCOMPARE(run.test.document.UndoCount(), 1);

    const auto doubleClick = [&](int row, int column, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseDClick(run.List()->viewport(), Qt::LeftButton, modifiers, run.Place(row, column, 60));
    };
    QTest::mouseDClick(run.List()->viewport(), Qt::LeftButton, {}, run.Place(1, 0, 3));
    QCOMPARE(run.view.InsertionPoint(), 1);
    doubleClick(3, 1, Qt::ShiftModifier);
    QCOMPARE(run.view.InsertionPoint(), 3);
    doubleClick(0, 1);
    QCOMPARE(run.Editor()->text(), QStringLiteral("a0"));
    run.view.EndEditing(false);

    run.test.allSettings.arrange.descending = true;
    QTest::mouseClick(run.List()->horizontalHeader()->viewport(), Qt::LeftButton, {},
        {run.List()->columnViewportPosition(1) + 40, 8});
    QCOMPARE(run.Entries().first(), QStringLiteral("a3|b3"));
    QTest::mouseClick(run.List()->horizontalHeader()->viewport(), Qt::LeftButton, {}, {4, 8});
    QCOMPARE(run.test.document.UndoCount(), 2);
}

void Win32ViewTest::columnWidths()
{
    View run(Numbered(4));
    CWordListControl &list = *run.List();
    QHeaderView &header = *list.horizontalHeader();
    // Dragged by the mouse, as far as a scroll bar is needed.
    const QPoint edge(list.columnViewportPosition(1) + list.columnWidth(1) - 1, 8);
    const int narrow = list.columnWidth(2);
    const int wide = list.columnWidth(1) + 400;
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header.viewport(), edge + QPoint(200, 0));
    QTest::mouseMove(header.viewport(), edge + QPoint(400, 0));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, edge + QPoint(400, 0));
    QCoreApplication::processEvents();
    QCOMPARE(list.columnWidth(1), wide);
    QCOMPARE(list.columnWidth(2), narrow);
    QVERIFY(list.horizontalScrollBar()->maximum() > 0);
    run.window.resize(1400, 500);
    QCoreApplication::processEvents();
    QCOMPARE(list.columnWidth(1), wide);
    QVERIFY(list.columnWidth(2) > narrow);
    run.Flip(&EditorSettings::showNotes); // Other columns are laid out anew.
    QVERIFY(std::abs(list.columnWidth(1) - list.columnWidth(2)) <= 16);
}

void Win32ViewTest::selectionAndInsertionPoint()
{
    View run(Numbered(4));
    const QSignalSpy status(&run.view, &CWin32View::StatusTextChanged);
    const auto lastStatus = [&] { return status.last().first().toString(); };
    run.view.SetInsertionPoint(2);
    run.view.SelectEntries({1, 2, 3});
    QCOMPARE(run.Selected(), QStringLiteral("1 2 3"));
    run.view.SelectAll();
    QCOMPARE(run.Selected(), QStringLiteral("0 1 2 3"));
    QCOMPARE(run.view.SelectedRowCount(), 4);
    run.List()->SelectRow(2, true);
    QCOMPARE(lastStatus(), QStringLiteral("Här kommer nästa glosa att läggas till."));
    run.List()->SelectRow(3, true);
    run.view.SetInsertionPoint(3);
    QCOMPARE(run.view.InsertionPoint(), 3);
    run.view.SetInsertionPoint(12);
    QCOMPARE(run.view.InsertionPoint(), 4);
    run.view.SelectEntryRange(1, 2);
    QVERIFY(lastStatus().startsWith(QStringLiteral("2 glosor markerade. 4 glosor")));
    run.view.SelectEntry(-1);
    QCOMPARE(run.view.SelectedRowCount(), 0);
    QCOMPARE(run.view.FirstSelectedEntry(), -1);
}

void Win32ViewTest::deletingAroundTheInsertionPoint_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("above the deleted") << 0 << 0;
    QTest::newRow("between them") << 2 << 1;
    QTest::newRow("below them") << 5 << 3;
}

void Win32ViewTest::deletingAroundTheInsertionPoint()
{
    QFETCH(int, before);
    QFETCH(int, after);
    View run(Numbered(5));
    run.view.SetInsertionPoint(before);
    run.view.SelectEntries({1, 2});
    run.test.prompt.answers = {PromptAnswer::Yes};
    run.view.DeleteSelection();
    QCOMPARE(run.view.InsertionPoint(), after);
    QCOMPARE(run.view.SelectedRowCount(), 0);
    QCOMPARE(run.Entries(),
        (QStringList{QStringLiteral("a0|b0"), QStringLiteral("a3|b3"), QStringLiteral("a4|b4")}));
    run.test.document.Undo();
    QCOMPARE(run.Entries(), Numbered(5));

    run.view.SelectEntries({0, 2, 3}); // Apart.
    run.test.prompt.answers = {PromptAnswer::Yes};
    run.view.DeleteSelection();
    QCOMPARE(run.Entries(), (QStringList{QStringLiteral("a1|b1"), QStringLiteral("a4|b4")}));
    QCOMPARE(run.view.SelectedRowCount(), 0);
}

void Win32ViewTest::fieldsFollowTheSelection()
{
    View run(Numbered(3));
    QVERIFY(!run.Field(1)->isVisible());
    run.Flip(&EditorSettings::showEditFields);
    QVERIFY(run.Field(1)->isVisible());
    run.Flip(&EditorSettings::showEditFields);
    QVERIFY(!run.Field(1)->isVisible());
    run.Flip(&EditorSettings::showEditFields);
    run.view.SelectEntry(0);
    QCOMPARE(run.Field(1)->text(), QStringLiteral("b0"));
    // Enter in a field changes the entry and goes on to the next one.
    run.Field(0)->setText(QStringLiteral("x"));
    QTest::keyClick(run.Field(0), Qt::Key_Return);
    QCOMPARE(run.Entries().first(), QStringLiteral("x|b0"));
    QCOMPARE(run.Field(0)->text(), QStringLiteral("a1"));
    // A change in the list shows in the fields; a column that comes or goes leaves them alone.
    run.List()->EditCell(2, 0);
    run.Type(QStringLiteral("y\n"));
    QCOMPARE(run.Field(0)->text(), QStringLiteral("y"));
    run.Field(0)->setText(QStringLiteral("half"));
    run.Flip(&EditorSettings::showNotes);
    QCOMPARE(run.Field(0)->text(), QStringLiteral("half"));
    run.view.SelectEntry(2);
    QTest::keyClick(run.Field(0), Qt::Key_Return);
    QCOMPARE(run.Field(0)->text(), QString());
    // And then makes new ones, one after the other.
    run.view.ClearFields();
    QVERIFY(run.Field(0)->hasFocus());
    run.Type(QStringLiteral("new"));
    QTest::keyClick(run.Field(0), Qt::Key_Return);
    QVERIFY(run.Field(1)->hasFocus());
    run.Type(QStringLiteral("word\n"));
    QVERIFY(run.Field(0)->hasFocus());
    QCOMPARE(run.Entries().first(), QStringLiteral("new|word"));
}

void Win32ViewTest::undoKeepsTheRows()
{
    View run(Numbered(6));
    run.view.SelectEntries({1, 4, 5});
    run.arranging.SetFlags(FlagMode::Set);
    run.view.SelectEntries({0, 4, 5});
    run.test.document.Change([&](CWordList &list) { list.DeleteEntries(std::array{5}); });
    QCOMPARE(run.Selected(), QStringLiteral("0 4"));
    run.test.document.Undo();
    QCOMPARE(run.Selected(), QStringLiteral("0 4"));
    run.test.document.Undo();
    run.test.document.Redo();
    QCOMPARE(run.Selected(), QStringLiteral("0 4"));
}

void Win32ViewTest::newDocumentForgets()
{
    View run(Numbered(3));
    run.view.SetInsertionPoint(2);
    run.List()->EditCell(2, 1);
    run.Type(QStringLiteral("half\n"));
    run.test.document.Undo();
    QCOMPARE(run.List()->model()->index(2, 2).data().toString(), QStringLiteral("half"));
    run.view.SelectEntry(1);
    run.List()->EditCell(1, 0);
    run.test.document.OnNewDocument();
    QCoreApplication::processEvents();
    QCOMPARE(run.view.InsertionPoint(), 0);
    QCOMPARE(run.List()->model()->rowCount(), 1);
    QCOMPARE(run.List()->model()->index(0, 2).data().toString(), QStringLiteral("<< Ny >>"));
    QCOMPARE(run.view.SelectedRowCount(), 0);
    QVERIFY(run.test.document.List().IsSaved());
}

void Win32ViewTest::manyRows()
{
    View run(Numbered(3000));
    std::vector<int> every;
    for (int entry = 0; entry < 3000; entry += 2) {
        every.push_back(entry);
    }
    run.view.SelectEntries(every);
    QCOMPARE(run.view.SelectedEntries(), every);
    // One of them is in sight already, so nothing scrolls.
    run.List()->verticalScrollBar()->setValue(9000);
    run.view.SelectEntries(every);
    QCOMPARE(run.List()->verticalScrollBar()->value(), 9000);
    run.view.SelectEntries({7, 9});
    QVERIFY(run.List()->IsRowVisible(8));
}

void Win32ViewTest::droppingText()
{
    View run(Numbered(2));
    QList<int> rows;
    QObject::connect(
        &run.view, &CWin32View::DataDropped, &run.view, [&](const QMimeData &, int row) { rows.append(row); });
    const auto drop = [&](const QMimeData &data, const QPoint &place) {
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(run.List()->viewport(), &enter);
        QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(run.List()->viewport(), &event);
        return event.isAccepted();
    };
    QMimeData text;
    text.setText(QStringLiteral("x - y"));
    const QRect cell = run.List()->visualRect(run.List()->model()->index(1, 1));
    QVERIFY(drop(text, cell.topLeft() + QPoint(40, 1)));
    QVERIFY(drop(text, cell.bottomLeft() + QPoint(40, -1)));
    QVERIFY(drop(text, run.List()->viewport()->rect().bottomLeft() - QPoint(0, 2)));
    QCOMPARE(rows, (QList<int>{1, 2, 3}));
    // Files and addresses are no words: the window may take them.
    QMimeData address;
    address.setUrls({QUrl(QStringLiteral("https://a.example/b-c"))});
    QVERIFY(!drop(address, cell.topLeft()));
}

void Win32ViewTest::editBoxes()
{
    View run(Numbered(1));
    run.other.setText(QStringLiteral("ett hus"));
    run.other.setSelection(4, 3);
    ChangeText(run.other, WithComment);
    QCOMPARE(run.other.text(), QStringLiteral("ett [hus]"));
    run.other.undo();
    QCOMPARE(run.other.text(), QStringLiteral("ett hus"));
    // Delete in a box deletes there.
    run.Flip(&EditorSettings::showEditFields);
    run.view.SelectEntry(0);
    run.Field(0)->setFocus();
    run.Field(0)->setCursorPosition(0);
    QTest::keyClick(run.Field(0), Qt::Key_Delete);
    QCOMPARE(run.Field(0)->text(), QStringLiteral("0"));
    QCOMPARE(run.Entries().size(), 1);
}

void Win32ViewTest::typingOnBesideTheFoundEntry()
{
    const auto accept = [](View &run, bool goesOn) {
        run.test.prompt.answers = {PromptAnswer::Yes};
        run.test.prompt.typingGoesOn = goesOn;
    };
    const QStringList before = {QStringLiteral("sol|sun"), QStringLiteral("hund|hound")};
    const QStringList after = {QStringLiteral("hund|dog"), QStringLiteral("natt|night")};
    View list(before);
    list.test.settings.showNotes = false;
    list.view.RefreshAll();
    list.Type(QStringLiteral("hund\ndog"));
    accept(list, true);
    list.Type(QStringLiteral("\nnatt\nnight\n"));
    QCOMPARE(list.Entries(), after + before);
    QCOMPARE(list.Selected(), QStringLiteral("3"));
    QVERIFY(list.Editor() != nullptr);
    list.test.prompt.typingGoesOn = false;
    list.Type(QStringLiteral("x\n"));
    QCOMPARE(list.view.SelectedEntryCount(), 0); // The new-entry row follows again.

    View fields(before);
    fields.Flip(&EditorSettings::showEditFields);
    fields.Field(0)->setFocus();
    fields.Type(QStringLiteral("hund\ndog"));
    accept(fields, true);
    fields.Type(QStringLiteral("\n"));
    QCOMPARE(fields.Selected(), QStringLiteral("2"));
    QCOMPARE(fields.Field(0)->text(), QString());
    fields.view.RefreshAll();
    fields.Type(QStringLiteral("natt\nnight\n"));
    QCOMPARE(fields.Entries(), after + before);
    QCOMPARE(fields.Selected(), QStringLiteral("3"));

    // Nothing typed on: the entry that was found is there to be looked at and changed.
    View looking(before);
    looking.test.settings.showNotes = false;
    looking.view.RefreshAll();
    looking.Type(QStringLiteral("hund\ndog"));
    accept(looking, false);
    looking.Type(QStringLiteral("\n"));
    QCOMPARE(looking.Selected(), QStringLiteral("2"));
    QVERIFY(!looking.List()->IsEditing());
}

void Win32ViewTest::longTexts()
{
    const QString rest = QString(1000000, u'x') + QStringLiteral("end");
    const QString start = QString(CLongLineEdit::MaxShown, u's');
    View run({QStringLiteral("a|b|") + start + rest});
    run.test.settings.synonymWarning = true;
    const auto text = [&] { return run.test.document.List().Entry(0).GetNote(); };
    const QModelIndex cell = run.List()->model()->index(1, 3);
    QVERIFY(cell.data(Qt::ToolTipRole).toString().size() < 2000);
    // Only the start is edited, and what follows it stays.
    run.List()->EditCell(1, 2);
    QCOMPARE(run.Editor()->text(), start);
    QVERIFY(!run.Editor()->toolTip().isEmpty());
    QTest::keyClick(run.Editor(), Qt::Key_End);
    run.Type(QStringLiteral("y\n"));
    QVERIFY(text() == start + u'y' + rest);
    run.view.SelectEntry(0);
    QTest::keyClick(run.Field(2), Qt::Key_Home);
    run.Field(2)->setFocus();
    run.Type(QStringLiteral("z"));
    run.view.PendingWork().StoreWhole();
    QVERIFY(text() == u'z' + start + u'y' + rest);
    // Replaced as a whole, it goes as a whole.
    run.List()->setFocus();
    run.List()->SetCursorField(2);
    run.Type(QStringLiteral("short"));
    run.Editor()->undo();
    QVERIFY(run.view.PendingWork().ListWithAll().Entry(0).GetNote() == text());
    run.Editor()->selectAll();
    run.Type(QStringLiteral("short\n"));
    QCOMPARE(text(), QStringLiteral("short"));
    // A long text that is pasted is kept whole; the question shows its start.
    QApplication::clipboard()->setText(QStringLiteral("(x) ") + rest);
    run.List()->EditCell(1, 0);
    QTest::keyClick(run.Editor(), 'v', Qt::ControlModifier);
    QVERIFY(run.Editor()->text().size() <= CLongLineEdit::MaxShown);
    run.test.prompt.answers = {PromptAnswer::No};
    QTest::keyClick(run.Editor(), Qt::Key_Return);
    QVERIFY(run.test.document.List().Entry(0).GetText(0).endsWith(QStringLiteral("xend")));
    QVERIFY(run.test.prompt.texts.last().size() < 2000);
}

QTEST_MAIN(Win32ViewTest)
#include "win32_view_test.moc"
