// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "settings/shell_settings.h"
#include "shell/ui/special_character_keys.h"
#include "shell/ui/special_character_list.h"
#include "shell/ui/special_character_window.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
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
                return characters;
            }
        }
        return nullptr;
    }
    CSpecialCharacterList *List() const
    {
        return Characters()->findChild<CSpecialCharacterList *>(QStringLiteral("characters"));
    }
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
    QLineEdit *OwnEditor() const { return List()->findChild<QLineEdit *>(QStringLiteral("ownCharacter")); }
};

}

class SpecialCharacterWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensAndCloses();
    void typesWhereTheCaretIs();
    void typesIntoACell();
    void typesFromTheKeyboard();
    void digits();
    void ownCharacters();
    void editingTypesNothing();
    void clicksOnOwnCharacters();
    void withoutATarget();
    void keepsItsPlace();
};

void SpecialCharacterWindowTest::opensAndCloses()
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
    QVERIFY(
        desk.Characters()->findChild<QLabel *>(QStringLiteral("help"))->isVisible()); // There are no own ones.
    QCOMPARE(QAccessible::queryAccessibleInterface(desk.Characters())->role(), QAccessible::Dialog);
    QTest::keyClick(desk.edit, Qt::Key_F9, Qt::ControlModifier);
    QVERIFY(!desk.Characters()->HasFocus());
    QTest::keyClick(desk.edit, Qt::Key_F9);
    QTRY_VERIFY(desk.keys->IsOpen() && desk.Characters()->HasFocus());
    QTest::keyClick(desk.List(), Qt::Key_F9);
    QVERIFY(!desk.keys->IsOpen() && !desk.Characters()->isVisible());
    QTRY_VERIFY(desk.edit->hasFocus());

    // Held, the key opens the window once.
    QTest::keyClick(desk.edit, Qt::Key_F9);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(desk.edit, &held);
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

void SpecialCharacterWindowTest::typesWhereTheCaretIs()
{
    Desk desk(Latin2);
    desk.edit->setText(QStringLiteral("xy"));
    desk.edit->setCursorPosition(1);
    desk.Open();
    desk.Click(ItemOfAe);
    desk.Click(ItemOfAe, Qt::ShiftModifier);
    QCOMPARE(desk.edit->text(), QStringLiteral("xäÄy"));
    // Two fast clicks are two characters.
    desk.DoubleClick(ItemOfAe);
    QCOMPARE(desk.edit->text(), QStringLiteral("xäÄääy"));
    desk.Click(ItemOfAe, Qt::ControlModifier);
    QCOMPARE(desk.edit->text(), QStringLiteral("xäÄääy"));
    QCOMPARE(desk.settings.keys, QStringList(QStringLiteral("ä")));
    QVERIFY(desk.edit->hasFocus());

    // A box that can't be edited stays as it is.
    desk.edit->setReadOnly(true);
    desk.Click(ItemOfAe);
    QCOMPARE(desk.edit->text(), QStringLiteral("xäÄääy"));
}

void SpecialCharacterWindowTest::typesIntoACell()
{
    Desk desk(Latin2);
    desk.table->setFocus();
    desk.table->setCurrentCell(0, 0);
    desk.table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("x")));
    desk.table->editItem(desk.table->item(0, 0));
    auto *const editor = desk.table->findChild<QLineEdit *>();
    QVERIFY(editor != nullptr && editor->hasFocus());
    desk.Open();
    editor->deselect();
    desk.Click(ItemOfAe);
    QCOMPARE(editor->text(), QStringLiteral("xä"));

    // Also with the focus in the window, and while one of its lists is down.
    desk.keys->Toggle();
    QTRY_VERIFY(desk.Characters()->HasFocus());
    auto *const sets = desk.Characters()->findChild<QComboBox *>(QStringLiteral("characterSet"));
    sets->showPopup();
    sets->hidePopup();
    QTest::keyClick(desk.List(), Qt::Key_Return);
    desk.keys->Toggle();
    QVERIFY(!desk.keys->IsOpen());
    QCOMPARE(desk.table->findChild<QLineEdit *>(), editor);
    QCOMPARE(editor->text(), QStringLiteral("xää"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(desk.table->item(0, 0)->text(), QStringLiteral("xää"));
}

void SpecialCharacterWindowTest::typesFromTheKeyboard()
{
    Desk desk(Latin2);
    desk.Open();
    desk.keys->Toggle();
    QTRY_VERIFY(desk.Characters()->HasFocus());
    QTest::keyClick(desk.List(), Qt::Key_Right);
    QTest::keyClick(desk.List(), Qt::Key_Return);
    QTest::keyClick(desk.List(), Qt::Key_Enter, Qt::ShiftModifier);
    QCOMPARE(desk.edit->text(), QStringLiteral("áÁ"));
    QVERIFY(desk.Characters()->HasFocus());
    QCOMPARE(desk.settings.selected, 1);
    auto *const sets = desk.Characters()->findChild<QComboBox *>(QStringLiteral("characterSet"));
    sets->setCurrentIndex(4);
    QCOMPARE(desk.settings.subset, 4);
    desk.Click(6);
    QCOMPARE(desk.edit->text(), QStringLiteral("áÁё"));
}

void SpecialCharacterWindowTest::digits()
{
    Desk desk(Latin2, {QStringLiteral("æ"), QStringLiteral("œu")});
    QTest::keyClick(desk.edit, Qt::Key_2, Qt::ControlModifier);
    QTest::keyClick(desk.edit, Qt::Key_2, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(desk.edit, Qt::Key_1, Qt::ControlModifier | Qt::KeypadModifier);
    QCOMPARE(desk.edit->text(), QStringLiteral("œuŒUæ"));

    QAction withAlt, without;
    withAlt.setShortcut(QKeySequence(QStringLiteral("Ctrl+Alt+2")));
    without.setShortcut(QKeySequence(QStringLiteral("Ctrl+9")));
    desk.window.addActions({&withAlt, &without});
    const QSignalSpy quiz(&withAlt, &QAction::triggered);
    const QSignalSpy consumed(&without, &QAction::triggered);
    QTest::keyClick(desk.edit, Qt::Key_2, Qt::ControlModifier | Qt::AltModifier);
    QTest::keyClick(desk.edit, Qt::Key_9, Qt::ControlModifier);
    QCOMPARE(quiz.count(), 1);
    QCOMPARE(consumed.count(), 0);
    QCOMPARE(desk.edit->text(), QStringLiteral("œuŒUæ"));
}

void SpecialCharacterWindowTest::ownCharacters()
{
    Desk desk(0, {QStringLiteral("æ")});
    desk.Open();
    desk.Click(1); // "(...)"
    QTRY_VERIFY(desk.OwnEditor() != nullptr && desk.OwnEditor()->hasFocus());
    QTest::keyClicks(desk.OwnEditor(), QStringLiteral(" ø "));
    QTest::keyClick(desk.OwnEditor(), Qt::Key_Return);
    QTRY_COMPARE(desk.settings.keys, QStringList({QStringLiteral("æ"), QStringLiteral("ø")}));
    QTRY_VERIFY(desk.edit->hasFocus());

    // A double click edits and types nothing.
    desk.DoubleClick(0);
    QCOMPARE(desk.edit->text(), QString());
    QTRY_VERIFY(desk.OwnEditor() != nullptr && desk.OwnEditor()->hasFocus());
    QTest::keyClick(desk.OwnEditor(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(desk.OwnEditor(), Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(desk.OwnEditor()->text(), QStringLiteral("ø"));
    QTest::keyClick(desk.OwnEditor(), Qt::Key_Escape);
    QTRY_VERIFY(desk.edit->hasFocus() && desk.keys->IsOpen());
    QCOMPARE(desk.settings.keys.first(), QStringLiteral("æ"));

    desk.keys->Toggle();
    QTRY_VERIFY(desk.Characters()->HasFocus());
    desk.List()->SetCurrentItem(0);
    QTest::keyClick(desk.List(), Qt::Key_F2);
    QTest::keyClick(desk.OwnEditor(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(desk.OwnEditor(), Qt::Key_Delete);
    QTest::keyClick(desk.OwnEditor(), Qt::Key_Return);
    QTRY_VERIFY(desk.List()->hasFocus());
    QCOMPARE(desk.settings.keys.size(), 2); // An empty one is refused.
    QVERIFY(desk.Characters()->HasFocus());
    QTest::keyClick(desk.List(), Qt::Key_Delete);
    QCOMPARE(desk.settings.keys, QStringList(QStringLiteral("ø")));
    QTest::keyClick(desk.List(), Qt::Key_Return);
    QCOMPARE(desk.edit->text(), QStringLiteral("ø"));
}

void SpecialCharacterWindowTest::editingTypesNothing()
{
    Desk desk(0, {QStringLiteral("xr"), QStringLiteral("ø")});
    desk.Open();
    // Enter stores the text as it was changed.
    desk.DoubleClick(0);
    QTRY_VERIFY(desk.OwnEditor() != nullptr && desk.OwnEditor()->hasFocus());
    QTest::keyClicks(desk.OwnEditor(), QStringLiteral("w"));
    QTest::keyClick(desk.OwnEditor(), Qt::Key_Return);
    QTRY_COMPARE(desk.settings.keys, QStringList({QStringLiteral("w"), QStringLiteral("ø")}));
    QTRY_VERIFY(desk.edit->hasFocus());
    QCOMPARE(desk.edit->text(), QString());

    // A click on another one ends the edit and stores it, no more.
    desk.DoubleClick(0);
    QTRY_VERIFY(desk.OwnEditor() != nullptr && desk.OwnEditor()->hasFocus());
    QTest::keyClicks(desk.OwnEditor(), QStringLiteral("v"));
    const QPoint other = desk.List()->visualRect(desk.List()->model()->index(1, 0)).center();
    QTest::mouseClick(desk.List()->viewport(), Qt::LeftButton, {}, other);
    QTRY_COMPARE(desk.settings.keys.first(), QStringLiteral("v"));
    desk.Characters()->ChooseWaiting();
    QTRY_VERIFY(desk.edit->hasFocus());
    QCOMPARE(desk.edit->text(), QString());
}

void SpecialCharacterWindowTest::clicksOnOwnCharacters()
{
    // They wait for a second click, and what is done after them comes after them.
    QApplication::setDoubleClickInterval(100000);
    Desk desk(0, {QStringLiteral("æ"), QStringLiteral("ø")});
    desk.Open();
    desk.Click(0, Qt::ShiftModifier);
    QCOMPARE(desk.edit->text(), QString());
    desk.Click(1);
    QCOMPARE(desk.edit->text(), QStringLiteral("Æ"));
    QTest::keyClicks(desk.edit, QStringLiteral("l"));
    QCOMPARE(desk.edit->text(), QStringLiteral("Æøl"));
    desk.Click(0);
    QTest::mouseClick(desk.edit, Qt::LeftButton);
    QCOMPARE(desk.edit->text(), QStringLiteral("Æølæ"));
    desk.Click(1);
    desk.Characters()->findChild<QComboBox *>(QStringLiteral("characterSet"))->setCurrentIndex(Latin2);
    QCOMPARE(desk.edit->text(), QStringLiteral("Æølæø"));
    desk.Characters()->findChild<QComboBox *>(QStringLiteral("characterSet"))->setCurrentIndex(0);

    QApplication::setDoubleClickInterval(1);
    desk.Click(0);
    QTRY_COMPARE(desk.edit->text(), QStringLiteral("Æølæøæ"));
}

void SpecialCharacterWindowTest::withoutATarget()
{
    Desk desk(Latin2);
    desk.Open();
    desk.edit->clearFocus();
    desk.Click(ItemOfAe);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("ä"));
    auto *const message = desk.Characters()->findChild<QLabel *>(QStringLiteral("message"));
    QCOMPARE(message->text(), QStringLiteral("Kopierat. Klistra in med Ctrl+V."));
    desk.edit->setFocus();
    desk.Click(ItemOfAe);
    QCOMPARE(message->text(), QString());
    // Assistive technology names a drop-down list by its label.
    for (const QWidget *combo : desk.Characters()->findChildren<QComboBox *>()) {
        const auto labels = desk.Characters()->findChildren<QLabel *>();
        QVERIFY(std::ranges::any_of(labels, [combo](const QLabel *label) { return label->buddy() == combo; }));
    }
}

void SpecialCharacterWindowTest::keepsItsPlace()
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
    desk.Characters()->findChild<QComboBox *>(QStringLiteral("docking"))->setCurrentIndex(2);
    QCOMPARE(
        desk.Characters()->frameGeometry().topLeft(), desk.window.frameGeometry().topRight() + QPoint(1, 0));
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

QTEST_MAIN(SpecialCharacterWindowTest)
#include "special_character_window_test.moc"
