// SPDX-License-Identifier: MIT
#include "editor/ui/edit_box_commands.h"
#include "platform/ui/long_line_edit.h"
#include "support/test_view.h"

#include <QClipboard>
#include <QWheelEvent>

class Win32ViewEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingAListByKeys()
    {
        View run;
        TypeKeys(u"hund\ndog\nn\nkatt\ncat\n\nx"_s);
        QCOMPARE(run.Entries(), u"hund|dog|n,katt|cat"_s);
        QVERIFY(run.Editor() != nullptr);
        QCOMPARE(run.Editor()->text(), u"x"_s);
        QTest::keyClick(run.Editor(), Qt::Key_Escape);
        QVERIFY(run.List()->hasFocus());
        QCOMPARE(run.view.InsertionPoint(), 2);
        QCOMPARE(run.test.document.UndoCount(), 2);

        // Tab goes on as well, and Shift with it goes back.
        const auto tab = [&](Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(run.Editor(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
        };
        TypeKeys(u"ko"_s);
        tab();
        TypeKeys(u"cow"_s);
        tab();
        TypeKeys(u"note\n"_s);
        QCOMPARE(run.Entry(2), u"ko|cow|note"_s);
        run.List()->EditCell(0, 0);
        tab();
        QCOMPARE(run.Editor()->text(), u"dog"_s);
        tab(Qt::ShiftModifier);
        QCOMPARE(run.Editor()->text(), u"hund"_s);
        QCOMPARE(run.test.document.UndoCount(), 3);
    }

    void endingAnEdit()
    {
        View run(NumberedEntries(3));
        run.view.SelectEntry(1);
        TypeKeys(u"x"_s);
        // A menu or another window takes the focus for a while only.
        QLineEdit *const editor = run.Editor();
        QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
        QApplication::sendEvent(editor, &popup);
        QVERIFY(run.List()->IsEditing());
        // Another widget ends it; what follows comes from the event loop.
        run.other.setFocus(Qt::MouseFocusReason);
        QCOMPARE(run.Entry(1), u"a1|b1"_s);
        QCoreApplication::processEvents();
        QCOMPARE(run.Entry(1), u"x|b1"_s);
        QVERIFY(!run.List()->IsEditing());
        QVERIFY(run.other.hasFocus());
        // The wheel ends it before it scrolls.
        run.List()->EditCell(2, 1);
        TypeKeys(u"y"_s);
        QWheelEvent wheel({5, 5}, run.List()->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(run.List()->viewport(), &wheel);
        QCOMPARE(run.Entry(1), u"x|y"_s);
        QVERIFY(!run.List()->IsEditing());
        // Without questions; and closing with an edit open takes it down.
        run.List()->EditCell(2, 0);
        TypeKeys(u"z,a0"_s);
        run.view.EndEditingQuietly();
        QCOMPARE(run.Entry(1), u"z,a0|y"_s);
        QVERIFY(run.test.prompt.numbers.isEmpty());
        run.List()->EditCell(2, 0);
    }

    void takingBackWhatIsTyped()
    {
        View run;
        const auto typed = [&] { return run.List()->model()->index(0, 1).data(Qt::EditRole).toString(); };
        for (const Qt::Key end : {Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Return}) {
            run.List()->SetCursor(0, 0);
            TypeKeys(u"hund\n"_s);
            QTest::keyClick(run.Editor(), Qt::Key_Escape); // Of the other language, which holds nothing.
            QCOMPARE(typed(), u"hund"_s);
            run.List()->SetCursor(0, 0);
            QVERIFY(run.view.IsOnPendingText());
            if (end == Qt::Key_Delete) {
                run.view.DeleteSelection();
            } else { // Emptied in the cell, however that ends.
                QTest::keyClick(run.List(), Qt::Key_Return);
                QTest::keyClick(run.Editor(), Qt::Key_Delete);
                QTest::keyClick(run.Editor(), end);
            }
            QCOMPARE(typed(), QString());
            QVERIFY(!run.view.IsOnPendingText());
        }
        QVERIFY(!run.view.PendingWork().HasRest());
    }

    void undoWhileACellIsEdited()
    {
        View run(NumberedEntries(3));
        run.test.document.Change([](CWordList &list) { list.SetFlags(0, std::array{0}, FlagMode::Set); });
        run.view.SelectEntry(1);
        TypeKeys(u"x"_s);
        run.test.document.Undo();
        QCoreApplication::processEvents();
        QCOMPARE(run.Entry(0), u"a0|b0"_s);
        run.view.EndEditing(true);
        QCOMPARE(run.Entry(1), u"x|b1"_s); // What is being typed is not lost.
    }

    void fieldsFollowTheSelection()
    {
        View run(NumberedEntries(3));
        QVERIFY(!run.Field(1)->isVisible());
        run.Flip(&EditorSettings::showEditFields);
        QVERIFY(run.Field(1)->isVisible());
        run.view.SelectEntry(0);
        QCOMPARE(run.Field(1)->text(), u"b0"_s);
        // Enter in a field changes the entry and goes on to the next one.
        run.Field(0)->setText(u"x"_s);
        QTest::keyClick(run.Field(0), Qt::Key_Return);
        QCOMPARE(run.Entry(0), u"x|b0"_s);
        QCOMPARE(run.Field(0)->text(), u"a1"_s);
        // A change in the list shows in the fields; a column that comes or goes leaves them alone.
        run.List()->EditCell(2, 0);
        TypeKeys(u"y\n"_s);
        QCOMPARE(run.Field(0)->text(), u"y"_s);
        run.Field(0)->setText(u"half"_s);
        run.Flip(&EditorSettings::showNotes);
        QCOMPARE(run.Field(0)->text(), u"half"_s);
        run.view.SelectEntry(2);
        QTest::keyClick(run.Field(0), Qt::Key_Return);
        QCOMPARE(run.Field(0)->text(), QString());
        // And then makes new ones, one after the other.
        run.view.ClearFields();
        QVERIFY(run.Field(0)->hasFocus());
        TypeKeys(u"new"_s);
        QTest::keyClick(run.Field(0), Qt::Key_Return);
        QVERIFY(run.Field(1)->hasFocus());
        TypeKeys(u"word\n"_s);
        QVERIFY(run.Field(0)->hasFocus());
        QCOMPARE(run.Entry(0), u"new|word"_s);
        run.Flip(&EditorSettings::showEditFields);
        QVERIFY(!run.Field(1)->isVisible() && run.List()->hasFocus());
    }

    void editBoxes()
    {
        View run(NumberedEntries(1));
        run.other.setText(u"ett hus"_s);
        run.other.setSelection(4, 3);
        ChangeText(run.other, WithComment);
        QCOMPARE(run.other.text(), u"ett [hus]"_s);
        run.other.undo();
        QCOMPARE(run.other.text(), u"ett hus"_s);
        // Delete in a box deletes there.
        run.Flip(&EditorSettings::showEditFields);
        run.view.SelectEntry(0);
        run.Field(0)->setFocus();
        run.Field(0)->setCursorPosition(0);
        QTest::keyClick(run.Field(0), Qt::Key_Delete);
        QCOMPARE(run.Field(0)->text(), u"0"_s);
        QCOMPARE(run.Entry(0), u"a0|b0"_s);
    }

    void typingOnBesideTheFoundEntry()
    {
        const QString before = u"sol|sun,hund|hound"_s;
        const QString after = u"hund|dog,natt|night,sol|sun,hund|hound"_s;
        for (const bool inFields : {false, true}) {
            View run(before);
            run.Flip(inFields ? &EditorSettings::showEditFields : &EditorSettings::showNotes);
            if (inFields) {
                run.Field(0)->setFocus();
            }
            run.test.prompt.answers = {PromptAnswer::Yes};
            run.test.prompt.typingGoesOn = true;
            TypeKeys(u"hund\ndog\n"_s);
            QCOMPARE(run.Selected(), u"2"_s);
            if (inFields) {
                QCOMPARE(run.Field(0)->text(), QString());
                run.view.RefreshAll();
            }
            TypeKeys(u"natt\nnight\n"_s);
            QCOMPARE(run.Entries(), after);
            QCOMPARE(run.Selected(), u"3"_s);
            run.test.prompt.typingGoesOn = false;
            if (!inFields) {
                QVERIFY(run.Editor() != nullptr);
                TypeKeys(u"x\n"_s);
                QCOMPARE(run.view.SelectedEntryCount(), 0); // The new-entry row follows again.
            }
        }
        // Nothing typed on: the entry that was found is there to be looked at and changed.
        View looking(before);
        looking.Flip(&EditorSettings::showNotes);
        looking.test.prompt.answers = {PromptAnswer::Yes};
        TypeKeys(u"hund\ndog\n"_s);
        QCOMPARE(looking.Selected(), u"2"_s);
        QVERIFY(!looking.List()->IsEditing());
    }

    void longTexts()
    {
        const QString rest = QString(1000000, u'x') + u"end"_s;
        const QString start = QString(CLongLineEdit::MaxShown, u's');
        View run(u"a|b|"_s + start + rest);
        run.test.settings.synonymWarning = true;
        const auto text = [&] { return run.test.document.List().Entry(0).GetNote(); };
        const QModelIndex cell = run.List()->model()->index(1, 3);
        QVERIFY(cell.data(Qt::ToolTipRole).toString().size() < 2000);
        // Only the start is edited, and what follows it stays.
        run.List()->EditCell(1, 2);
        QCOMPARE(run.Editor()->text(), start);
        QVERIFY(!run.Editor()->toolTip().isEmpty());
        QTest::keyClick(run.Editor(), Qt::Key_End);
        TypeKeys(u"y\n"_s);
        QVERIFY(text() == start + u'y' + rest);
        run.view.SelectEntry(0);
        QTest::keyClick(run.Field(2), Qt::Key_Home);
        run.Field(2)->setFocus();
        TypeKeys(u"z"_s);
        run.view.PendingWork().StoreWhole();
        QVERIFY(text() == u'z' + start + u'y' + rest);
        // Replaced as a whole, it goes as a whole.
        run.List()->setFocus();
        run.List()->SetCursorField(2);
        TypeKeys(u"short"_s);
        run.Editor()->undo();
        QVERIFY(run.view.PendingWork().ListWithAll().Entry(0).GetNote() == text());
        run.Editor()->selectAll();
        TypeKeys(u"short\n"_s);
        QCOMPARE(text(), u"short"_s);
        // A long text that is pasted is kept whole; the question shows its start.
        QApplication::clipboard()->setText(u"(x) "_s + rest);
        run.List()->EditCell(1, 0);
        QTest::keyClick(run.Editor(), 'v', Qt::ControlModifier);
        QVERIFY(run.Editor()->text().size() <= CLongLineEdit::MaxShown);
        run.test.prompt.answers = {PromptAnswer::No};
        QTest::keyClick(run.Editor(), Qt::Key_Return);
        QVERIFY(run.test.document.List().Entry(0).GetText(0).endsWith(u"xend"_s));
        QVERIFY(run.test.prompt.texts.last().size() < 2000);
    }
};

QTEST_MAIN(Win32ViewEditingTest)
#include "win32_view_editing_test.moc"
