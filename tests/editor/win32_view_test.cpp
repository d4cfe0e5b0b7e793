// SPDX-License-Identifier: MIT
#include "editor/word_list_model.h"
#include "support/test_view.h"

#include <QHeaderView>
#include <QScrollBar>

class Win32ViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysOfTheList()
    {
        View run(NumberedEntries(3));
        run.view.SelectEntries({0, 2});
        const auto key = [&](Qt::Key pressed) { QTest::keyClick(run.List(), pressed); };
        key(Qt::Key_Right);
        key(Qt::Key_Space);
        QCOMPARE(run.Entries(), u"a0|b0||2,a1|b1,a2|b2||2"_s);
        QCOMPARE(run.Selected(), u"0 2"_s);
        key(Qt::Key_Right);
        key(Qt::Key_Space); // A note has no flag.
        QCOMPARE(run.test.document.UndoCount(), 1);
        for (int i = 0; i < 5; ++i) {
            key(Qt::Key_Left); // Never onto the numbers.
        }
        QCOMPARE(run.view.CursorField(), 0);
        key(Qt::Key_End);
        QCOMPARE(run.Selected(), u"2"_s);
        key(Qt::Key_F2); // The key of another command.
        key(Qt::Key_Delete);
        key(Qt::Key_Backspace);
        QTest::keyClick(run.List(), 'c', Qt::ControlModifier);
        QVERIFY(!run.List()->IsEditing());
        key(Qt::Key_Return);
        QCOMPARE(run.Editor()->text(), u"a2"_s);
        QCOMPARE(run.Editor()->selectedText(), u"a2"_s);

        // A dead key or an input method is typing too.
        View composing(NumberedEntries(1));
        composing.view.SelectEntry(0);
        QInputMethodEvent event;
        event.setCommitString(u"é"_s);
        QApplication::sendEvent(composing.List(), &event);
        QCOMPARE(composing.Editor()->text(), u"é"_s);
    }

    void typeToFind()
    {
        View run(u"apa|x,[en] Boll|x,bok|x"_s);
        run.test.settings.quickedit = false;
        run.List()->SetCursor(0, 0);
        TypeKeys(u"bo"_s);
        QCOMPARE(run.Selected(), u"2"_s);
        QVERIFY(!run.List()->IsEditing());
        QTest::qWait(0);
        TypeKeys(u"k"_s);
        QCOMPARE(run.Selected(), u"2"_s);
    }

    void clicks()
    {
        View run(NumberedEntries(4));
        run.view.SetInsertionPoint(4);
        const auto click = [&](int row, int column, int dx) {
            QTest::mouseClick(run.List()->viewport(), Qt::LeftButton, {}, run.Place(row, column, dx));
        };
        // The second click of two whose first one closed a window in front of the list.
        QTest::mouseDClick(run.List()->viewport(), Qt::LeftButton, {}, run.Place(0, 1, 60));
        QVERIFY(!run.List()->IsEditing());
        click(2, 2, 8);
        QCOMPARE(run.Entry(2), u"a2|b2||2"_s);
        QCOMPARE(run.view.CursorField(), 1);
        click(1, 0, 3);
        QCOMPARE(run.Selected(), u"1"_s);
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
        QCOMPARE(run.Editor()->text(), u"a0"_s);
        run.view.EndEditing(false);

        run.test.allSettings.arrange.descending = true;
        QTest::mouseClick(run.List()->horizontalHeader()->viewport(), Qt::LeftButton, {},
            {run.List()->columnViewportPosition(1) + 40, 8});
        QCOMPARE(run.Entry(0), u"a3|b3"_s);
        QTest::mouseClick(run.List()->horizontalHeader()->viewport(), Qt::LeftButton, {}, {4, 8});
        QCOMPARE(run.test.document.UndoCount(), 2);
    }

    void columnWidths()
    {
        View run(NumberedEntries(4));
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

    void selectionAndInsertionPoint()
    {
        View run(NumberedEntries(4));
        const QSignalSpy status(&run.view, &CWin32View::StatusTextChanged);
        const auto lastStatus = [&] { return status.last().first().toString(); };
        run.view.SetInsertionPoint(2);
        run.view.SelectEntries({1, 2, 3});
        QCOMPARE(run.Selected(), u"1 2 3"_s);
        run.view.SelectAll();
        QCOMPARE(run.Selected(), u"0 1 2 3"_s);
        QCOMPARE(run.view.SelectedRowCount(), 4);
        run.List()->SelectRow(2, true);
        QCOMPARE(lastStatus(), u"Här kommer nästa glosa att läggas till."_s);
        run.view.SelectEntryRange(1, 2);
        QVERIFY(lastStatus().startsWith(u"2 glosor markerade. 4 glosor"_s));
        run.view.SelectEntry(-1);
        QCOMPARE(run.view.SelectedRowCount(), 0);
        QCOMPARE(run.view.FirstSelectedEntry(), -1);
    }

    void deleting()
    {
        View run(NumberedEntries(5));
        run.view.SetInsertionPoint(2);
        run.test.prompt.answers = {PromptAnswer::Yes, PromptAnswer::Yes};
        run.view.SelectEntries({1, 2}); // On both sides of the new-entry row.
        run.view.DeleteSelection();
        QCOMPARE(run.Entries(), u"a0|b0,a3|b3,a4|b4"_s);
        QCOMPARE(run.view.InsertionPoint(), 1);
        QCOMPARE(run.view.SelectedRowCount(), 0);
        run.test.document.Undo();
        run.view.SelectEntries({0, 2, 3}); // Apart.
        run.view.DeleteSelection();
        QCOMPARE(run.Entries(), u"a1|b1,a4|b4"_s);
        QCOMPARE(run.view.SelectedRowCount(), 0);
    }

    void undoKeepsTheRows()
    {
        View run(NumberedEntries(6));
        run.view.SelectEntries({1, 4, 5});
        run.arranging.SetFlags(FlagMode::Set);
        run.view.SelectEntries({0, 4, 5});
        run.test.document.Change([&](CWordList &list) { list.DeleteEntries(std::array{5}); });
        QCOMPARE(run.Selected(), u"0 4"_s);
        run.test.document.Undo();
        QCOMPARE(run.Selected(), u"0 4"_s);
        run.test.document.Undo();
        run.test.document.Redo();
        QCOMPARE(run.Selected(), u"0 4"_s);
    }

    void newDocumentForgets()
    {
        View run(NumberedEntries(3));
        run.view.SetInsertionPoint(2);
        run.List()->EditCell(2, 1);
        TypeKeys(u"half\n"_s);
        run.test.document.Undo();
        QCOMPARE(run.List()->model()->index(2, 2).data().toString(), u"half"_s);
        run.view.SelectEntry(1);
        run.List()->EditCell(1, 0);
        run.test.document.OnNewDocument();
        QCoreApplication::processEvents();
        QCOMPARE(run.view.InsertionPoint(), 0);
        QCOMPARE(run.List()->model()->rowCount(), 1);
        QCOMPARE(run.List()->model()->index(0, 2).data().toString(), u"<< Ny >>"_s);
        QCOMPARE(run.view.SelectedRowCount(), 0);
        QVERIFY(run.test.document.List().IsSaved());
    }

    void manyRows()
    {
        View run(NumberedEntries(3000));
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

    void droppingText()
    {
        View run(NumberedEntries(2));
        QList<int> rows;
        QObject::connect(&run.view, &CWin32View::DataDropped, &run.view,
            [&](const QMimeData &, int row) { rows.append(row); });
        const auto drop = [&](const QMimeData &data, const QPoint &place) {
            return Drop(run.List()->viewport(), data, place);
        };
        QMimeData text;
        text.setText(u"x - y"_s);
        const QRect cell = run.List()->visualRect(run.List()->model()->index(1, 1));
        QVERIFY(drop(text, cell.topLeft() + QPoint(40, 1)));
        QVERIFY(drop(text, cell.bottomLeft() + QPoint(40, -1)));
        QVERIFY(drop(text, run.List()->viewport()->rect().bottomLeft() - QPoint(0, 2)));
        QCOMPARE(rows, (QList<int>{1, 2, 3}));
        // Files and addresses are no words: the window may take them.
        QMimeData address;
        address.setUrls({QUrl(u"https://a.example/b-c"_s)});
        QVERIFY(!drop(address, cell.topLeft()));
    }
};

QTEST_MAIN(Win32ViewTest)
#include "win32_view_test.moc"
