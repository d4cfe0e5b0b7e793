// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "settings/shell_settings.h"
#include "shell/ui/special_character_keys.h"
#include "shell/ui/special_character_list.h"
#include "shell/ui/special_character_window.h"
#include "support/widgets.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int Latin2 = 2;
constexpr int ItemOfAe = 4; // "ä" in that set.

/// A window to type in: an edit box and a table.
struct Desk
{
    CTexts texts;
    EasyKeySettings settings;
    QWidget window;
    QLineEdit *edit = new QLineEdit(&window);
    QTableWidget *table = new QTableWidget(2, 1, &window);
    std::unique_ptr<CSpecialCharacterKeys> keys;

    explicit Desk(int set = 0, const QStringList &own = {})
    {
        settings.subset = set;
        settings.keys = own;
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(edit);
        layout->addWidget(table);
        window.show();
        keys = std::make_unique<CSpecialCharacterKeys>(settings, texts);
        edit->setFocus();
        Activate();
    }

    void Activate()
    {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    void Open()
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
        // Off screen every window that is shown gets the focus.
        QCoreApplication::processEvents();
        Activate();
    }
    CSpecialCharacterWindow *Characters() const
    {
        for (QWidget *const widget : QApplication::topLevelWidgets()) {
            if (auto *const characters = qobject_cast<CSpecialCharacterWindow *>(widget)) {
                return characters; // Shown or not.
            }
        }
        return nullptr;
    }
    CSpecialCharacterList *List() const { return Find<CSpecialCharacterList>(Characters(), "characters"); }
    /// Where an item stands in the list's window.
    QPoint Place(int item) const
    {
        List()->SetCurrentItem(item);
        return List()->visualRect(List()->currentIndex()).center();
    }
    void Click(int item, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifiers, Place(item));
    }
    void DoubleClick(int item) const
    {
        Click(item);
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, Place(item));
        QTest::mouseRelease(List()->viewport(), Qt::LeftButton, {}, Place(item));
    }
    QComboBox *Sets() const { return Find<QComboBox>(Characters(), "characterSet"); }
    /// Gives the keyboard to the window of characters, which is open.
    void GoToCharacters()
    {
        keys->Toggle();
        QTRY_VERIFY(Characters()->HasFocus());
    }
    /// Types into the character that is being edited, and ends that.
    void TypeOwn(const QString &text, Qt::Key end)
    {
        QTRY_VERIFY(OwnEditor() != nullptr && OwnEditor()->hasFocus());
        QTest::keyClicks(OwnEditor(), text);
        QTest::keyClick(OwnEditor(), end);
    }
    QLineEdit *OwnEditor() const { return Find<QLineEdit>(List(), "ownCharacter"); }
};

}

class SpecialCharacterWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensAndCloses()
    {
        Desk desk;
        QAction action;
        action.setShortcut(Qt::Key_F9);
        desk.window.addAction(&action);
        const QSignalSpy triggered(&action, &QAction::triggered);
        const QSignalSpy changed(desk.keys.get(), &CSpecialCharacterKeys::OpenChanged);

        desk.Open();
        QVERIFY(desk.keys->IsOpen() && desk.Characters()->isVisible());
        QVERIFY(desk.edit->hasFocus());
        QVERIFY(Find<QLabel>(desk.Characters(), "help")->isVisible()); // There are no own ones.
        QCOMPARE(QAccessible::queryAccessibleInterface(desk.Characters())->role(), QAccessible::Dialog);
        QTest::keyClick(desk.edit, Qt::Key_F9, Qt::ControlModifier);
        QVERIFY(!desk.Characters()->HasFocus());
        QTest::keyClick(desk.edit, Qt::Key_F9);
        QTRY_VERIFY(desk.keys->IsOpen() && desk.Characters()->HasFocus());
        QTest::keyClick(desk.List(), Qt::Key_F9);
        QVERIFY(!desk.keys->IsOpen() && !desk.Characters()->isVisible());
        QTRY_VERIFY(desk.edit->hasFocus());

        // Held, the key opens the window once.
        desk.Open();
        QKeyEvent held(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(desk.edit, &held);
        QCoreApplication::processEvents(); // The keyboard would go there by an event.
        QVERIFY(desk.keys->IsOpen() && !desk.Characters()->HasFocus());
        desk.keys->Close();

        QDialog dialog(&desk.window);
        dialog.setWindowModality(Qt::WindowModal);
        QLineEdit inDialog(&dialog);
        dialog.show();
        inDialog.setFocus();
        QTest::keyClick(&inDialog, Qt::Key_F9);
        QVERIFY(desk.keys->IsOpen());
        desk.keys->Toggle();
        QTest::keyClick(desk.List(), Qt::Key_Escape);
        QVERIFY(!desk.keys->IsOpen());
        QCOMPARE(changed.count(), 6);
        QCOMPARE(triggered.count(), 0);
    }

    void typesWhereTheCaretIs()
    {
        Desk desk(Latin2);
        desk.edit->setText(u"xy"_s);
        desk.edit->setCursorPosition(1);
        desk.Open();
        desk.Click(ItemOfAe);
        desk.Click(ItemOfAe, Qt::ShiftModifier);
        QCOMPARE(desk.edit->text(), u"xäÄy"_s);
        // Two fast clicks are two characters.
        desk.DoubleClick(ItemOfAe);
        QCOMPARE(desk.edit->text(), u"xäÄääy"_s);
        desk.Click(ItemOfAe, Qt::ControlModifier);
        QCOMPARE(desk.edit->text(), u"xäÄääy"_s);
        QCOMPARE(desk.settings.keys, QStringList(u"ä"_s));
        QVERIFY(desk.edit->hasFocus());

        // By keys, and from another set.
        desk.edit->clear();
        desk.GoToCharacters();
        desk.List()->SetCurrentItem(0);
        QTest::keyClick(desk.List(), Qt::Key_Right);
        QTest::keyClick(desk.List(), Qt::Key_Return);
        QTest::keyClick(desk.List(), Qt::Key_Enter, Qt::ShiftModifier);
        QCOMPARE(desk.edit->text(), u"áÁ"_s);
        QVERIFY(desk.Characters()->HasFocus());
        QCOMPARE(desk.settings.selected, 1);
        desk.Sets()->setCurrentIndex(4);
        QCOMPARE(desk.settings.subset, 4);
        desk.Click(6);
        QCOMPARE(desk.edit->text(), u"áÁё"_s);

        // A box that can't be edited stays as it is.
        desk.edit->setReadOnly(true);
        desk.Click(6);
        QCOMPARE(desk.edit->text(), u"áÁё"_s);
    }

    void withoutATarget()
    {
        Desk desk(Latin2);
        desk.Open();
        desk.edit->clearFocus();
        desk.Click(ItemOfAe);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"ä"_s);
        auto *const message = Find<QLabel>(desk.Characters(), "message");
        QCOMPARE(message->text(), u"Kopierat. Klistra in med Ctrl+V."_s);
        desk.edit->setFocus();
        desk.Click(ItemOfAe);
        QCOMPARE(message->text(), QString());
        // Assistive technology names a drop-down list by its label.
        const auto labels = desk.Characters()->findChildren<QLabel *>();
        for (const QWidget *combo : desk.Characters()->findChildren<QComboBox *>()) {
            QVERIFY(std::ranges::count(labels, combo, &QLabel::buddy) == 1);
        }
    }

    void typesIntoACell()
    {
        Desk desk(Latin2);
        desk.table->setFocus();
        desk.table->setCurrentCell(0, 0);
        desk.table->setItem(0, 0, new QTableWidgetItem(u"x"_s));
        desk.table->editItem(desk.table->item(0, 0));
        auto *const editor = desk.table->findChild<QLineEdit *>();
        QVERIFY(editor != nullptr && editor->hasFocus());
        desk.Open();
        editor->deselect();
        desk.Click(ItemOfAe);
        QCOMPARE(editor->text(), u"xä"_s);

        // Also with the focus in the window, and while one of its lists is down.
        desk.GoToCharacters();
        desk.Sets()->showPopup();
        desk.Sets()->hidePopup();
        QTest::keyClick(desk.List(), Qt::Key_Return);
        desk.keys->Toggle();
        QVERIFY(!desk.keys->IsOpen());
        QCOMPARE(desk.table->findChild<QLineEdit *>(), editor);
        QCOMPARE(editor->text(), u"xää"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(desk.table->item(0, 0)->text(), u"xää"_s);
    }

    void digits()
    {
        Desk desk(Latin2, {u"æ"_s, u"œu"_s});
        QTest::keyClick(desk.edit, Qt::Key_2, Qt::ControlModifier);
        QTest::keyClick(desk.edit, Qt::Key_2, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(desk.edit, Qt::Key_1, Qt::ControlModifier | Qt::KeypadModifier);
        QCOMPARE(desk.edit->text(), u"œuŒUæ"_s);

        QAction withAlt, without;
        withAlt.setShortcut(QKeySequence(u"Ctrl+Alt+2"_s));
        without.setShortcut(QKeySequence(u"Ctrl+9"_s));
        desk.window.addActions({&withAlt, &without});
        const QSignalSpy quiz(&withAlt, &QAction::triggered);
        const QSignalSpy consumed(&without, &QAction::triggered);
        QTest::keyClick(desk.edit, Qt::Key_2, Qt::ControlModifier | Qt::AltModifier);
        QTest::keyClick(desk.edit, Qt::Key_9, Qt::ControlModifier);
        QCOMPARE(quiz.count(), 1);
        QCOMPARE(consumed.count(), 0);
        QCOMPARE(desk.edit->text(), u"œuŒUæ"_s);
    }

    void ownCharacters()
    {
        Desk desk(0, {u"xr"_s});
        desk.Open();
        desk.Click(1); // "(...)"
        desk.TypeOwn(u" ø "_s, Qt::Key_Return);
        QTRY_COMPARE(desk.settings.keys, QStringList({u"xr"_s, u"ø"_s}));
        QTRY_VERIFY(desk.edit->hasFocus());
        // A double click edits, and digits do as well; Enter stores the text as it was changed.
        desk.DoubleClick(0);
        QTRY_VERIFY(desk.OwnEditor() != nullptr && desk.OwnEditor()->hasFocus());
        QTest::keyClick(desk.OwnEditor(), Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(desk.OwnEditor()->text(), u"ø"_s);
        desk.TypeOwn(u"z"_s, Qt::Key_Escape);
        QTRY_VERIFY(desk.edit->hasFocus() && desk.keys->IsOpen());
        QCOMPARE(desk.settings.keys.first(), u"xr"_s);
        desk.DoubleClick(0);
        desk.TypeOwn(u"w"_s, Qt::Key_Return);
        QTRY_COMPARE(desk.settings.keys.first(), u"w"_s);
        // A click on another one ends the edit and stores it, no more.
        desk.DoubleClick(0);
        QTRY_VERIFY(desk.OwnEditor() != nullptr && desk.OwnEditor()->hasFocus());
        QTest::keyClicks(desk.OwnEditor(), u"v"_s);
        const QPoint other = desk.List()->visualRect(desk.List()->model()->index(1, 0)).center();
        QTest::mouseClick(desk.List()->viewport(), Qt::LeftButton, {}, other);
        QTRY_COMPARE(desk.settings.keys.first(), u"v"_s);
        desk.Characters()->ChooseWaiting();
        QTRY_VERIFY(desk.edit->hasFocus());
        QCOMPARE(desk.edit->text(), QString()); // None of that typed anything.

        desk.GoToCharacters();
        desk.List()->SetCurrentItem(0);
        QTest::keyClick(desk.List(), Qt::Key_F2);
        QTest::keyClick(desk.OwnEditor(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(desk.OwnEditor(), Qt::Key_Delete);
        QTest::keyClick(desk.OwnEditor(), Qt::Key_Return);
        QTRY_VERIFY(desk.List()->hasFocus());
        QCOMPARE(desk.settings.keys.size(), 2); // An empty one is refused.
        QVERIFY(desk.Characters()->HasFocus());
        QTest::keyClick(desk.List(), Qt::Key_Delete);
        QCOMPARE(desk.settings.keys, QStringList(u"ø"_s));
        QTest::keyClick(desk.List(), Qt::Key_Return);
        QCOMPARE(desk.edit->text(), u"ø"_s);
    }

    void clicksOnOwnCharacters()
    {
        // They wait for a second click, and what is done after them comes after them.
        QApplication::setDoubleClickInterval(100000);
        Desk desk(0, {u"æ"_s, u"ø"_s});
        desk.Open();
        desk.Click(0, Qt::ShiftModifier);
        QCOMPARE(desk.edit->text(), QString());
        desk.Click(1);
        QCOMPARE(desk.edit->text(), u"Æ"_s);
        QTest::keyClicks(desk.edit, u"l"_s);
        QCOMPARE(desk.edit->text(), u"Æøl"_s);
        desk.Click(0);
        QTest::mouseClick(desk.edit, Qt::LeftButton);
        QCOMPARE(desk.edit->text(), u"Æølæ"_s);
        desk.Click(1);
        desk.Sets()->setCurrentIndex(Latin2);
        QCOMPARE(desk.edit->text(), u"Æølæø"_s);
        desk.Sets()->setCurrentIndex(0);

        QApplication::setDoubleClickInterval(1);
        desk.Click(0);
        QTRY_COMPARE(desk.edit->text(), u"Æølæøæ"_s);
    }

    void keepsItsPlace()
    {
        Desk desk;
        desk.settings.dock = 0;
        desk.settings.left = desk.settings.top = 90000;
        desk.settings.right = desk.settings.bottom = 90300;
        desk.Open();
        const QRect screen = desk.window.screen()->availableGeometry();
        QVERIFY(screen.contains(desk.Characters()->pos()));
        QCOMPARE(desk.Characters()->size(), QSize(300, 300));

        desk.window.setGeometry(100, 50, 200, 350);
        desk.keys->DockBeside(desk.window);
        QVERIFY(desk.Characters()->x() != 300);
        Find<QComboBox>(desk.Characters(), "docking")->setCurrentIndex(2);
        QCOMPARE(desk.Characters()->frameGeometry().topLeft(),
            desk.window.frameGeometry().topRight() + QPoint(1, 0));
        QCOMPARE(desk.Characters()->frameGeometry().height(), desk.window.frameGeometry().height());
        desk.keys->Close();
        QCOMPARE(desk.settings.dock, 2);
        QCOMPARE(desk.settings.left, desk.window.frameGeometry().right() + 1);
        QCOMPARE(desk.settings.right - desk.settings.left, 300);

        desk.window.showMaximized();
        desk.window.activateWindow();
        desk.keys->DockBeside(desk.window);
        desk.Open();
        QCOMPARE(desk.Characters()->width(), 300);
        QCOMPARE(desk.Characters()->height(), desk.settings.bottom - desk.settings.top);
    }
};

QTEST_MAIN(SpecialCharacterWindowTest)
#include "special_character_window_test.moc"
