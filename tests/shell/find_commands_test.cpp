// SPDX-License-Identifier: MIT
#include "editor/ui/find_window.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/find_commands.h"
#include "support/test_document.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTableView>

namespace {

/// The view in a window that has the commands for finding.
struct Window
{
    explicit Window(const QString &entries) : test(entries)
    {
        frame.setCentralWidget(view);
        frame.resize(700, 500);
        frame.show();
        QApplication::setActiveWindow(&frame);
        List()->setFocus();
        actions.Update({});
    }
    void Run(int command) { actions.Action(command)->trigger(); }
    CFindWindow *Find() { return frame.findChild<CFindWindow *>(); }
    template<class Control>
    Control *In(const char *name)
    {
        return Find()->findChild<Control *>(QLatin1StringView(name));
    }
    CWordListControl *List() { return view->findChild<CWordListControl *>(); }
    QLineEdit *Field(int field) { return view->findChild<QLineEdit *>(u"field%1"_s.arg(field)); }
    /// What stands out in the list, as "row column start length".
    QString Marked()
    {
        const auto *const model = List()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column) {
                if (const TextMark *const mark = List()->MarkIn(model->index(row, column))) {
                    return u"%1 %2 %3 %4"_s.arg(row).arg(column).arg(mark->start).arg(mark->length);
                }
            }
        }
        return {};
    }

    TestDocument test;
    QMainWindow frame;
    CCommandActions actions{test.texts, &frame};
    CWin32View *view =
        new CWin32View({test.document, test.allSettings, test.settingsChanges, test.texts, test.prompt});
    CFindCommands commands{actions, *view, test.document, test.allSettings.find, test.settingsChanges,
        test.texts, test.prompt, frame};
};

}

class FindCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findingInTheList()
    {
        Window run(u"hund|dog,katt|the hundred,x|y|en hund"_s);
        run.view->SetInsertionPoint(3);
        run.Run(CommandId::FindNext); // There is nothing to look for.
        QVERIFY(run.Find() != nullptr && run.Find()->isVisible());
        run.In<QLineEdit>("findText")->setText(u"hund"_s);
        QTest::keyClick(run.In<QLineEdit>("findText"), Qt::Key_Return);
        QCOMPARE(run.view->SelectedEntries(), std::vector<int>{0});
        QCOMPARE(run.Marked(), u"0 1 0 4"_s);
        run.Run(CommandId::FindNext);
        QCOMPARE(run.Marked(), u"1 2 4 4"_s);
        QCOMPARE(run.view->CursorField(), 1);
        // The mark goes with its row, and away when the text or the selection is another.
        run.test.document.Change([](CWordList &list) { list.DeleteEntries(std::array{0}); });
        QCOMPARE(run.Marked(), u"0 2 4 4"_s);
        run.test.document.Change([](CWordList &list) { list.SetEntryField(u"z"_s, 1, 0, false); });
        QCOMPARE(run.Marked(), QString());
        run.Run(CommandId::FindNext);
        QCOMPARE(run.Marked(), u"1 3 3 4"_s);
        run.view->SelectEntry(0);
        QCOMPARE(run.Marked(), QString());
        // A note that is not shown is told.
        run.test.settings.showNotes = false;
        run.test.settingsChanges.Tell(SettingsSection::Editor);
        QString status;
        QObject::connect(
            run.view, &CWin32View::StatusTextChanged, run.view, [&](const QString &text) { status = text; });
        run.Run(CommandId::FindNext);
        QCOMPARE(run.view->SelectedEntries(), std::vector<int>{1});
        QVERIFY(status.contains(u"en hund"_s));
    }

    void findingInTheFields()
    {
        Window run(u"hund|dog|en hund"_s);
        run.test.settings.showEditFields = true;
        run.test.settingsChanges.Tell(SettingsSection::Editor);
        run.test.allSettings.find.advancedSearch = true;
        run.test.allSettings.find.language = 2;
        run.Run(CommandId::Find);
        run.In<QLineEdit>("findText")->setText(u"hund"_s);
        run.In<QPushButton>("findNext")->click();
        QCOMPARE(run.Field(2)->selectedText(), u"hund"_s);
        QCOMPARE(run.Field(2)->selectionStart(), 3);
        QVERIFY(!run.Field(2)->hasFocus());
        run.Find()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(run.Find() == nullptr);
        QApplication::setActiveWindow(&run.frame);
        run.Run(CommandId::FindNext);
        QVERIFY(run.Field(2)->hasFocus());
        QCOMPARE(run.Field(2)->selectedText(), u"hund"_s);
    }

    void theWindow()
    {
        Window run(u"a|b,b|c||1,c|c"_s);
        run.Run(CommandId::Find);
        QVERIFY(!run.In<QComboBox>("column")->isVisible() && !run.In<QTableView>("findResults")->isVisible());
        const int height = run.Find()->height();
        run.In<QCheckBox>("advancedSearch")->click();
        QVERIFY(run.In<QComboBox>("flag1")->isVisible() && run.Find()->height() > height);
        QCOMPARE(run.In<QComboBox>("column")->itemText(2), u"2 Engelska"_s);
        // The controls are settings when a search begins.
        run.In<QComboBox>("column")->setCurrentIndex(2);
        run.In<QComboBox>("flag1")->setCurrentIndex(2);
        run.In<QLineEdit>("findText")->setText(u"c"_s);
        QCOMPARE(run.test.allSettings.find.language, -1);
        run.In<QPushButton>("findAll")->click();
        QCOMPARE(run.test.allSettings.find.language, 1);
        QCOMPARE(run.view->SelectedEntries(), std::vector<int>{2});
        // Names of languages follow the list; a choice that was made stays.
        run.test.document.SetListProperties({.language2 = u"R&D"_s});
        QCOMPARE(run.In<QComboBox>("column")->currentText(), u"2 R&D"_s);
        // It goes and comes with the main window.
        run.frame.hide();
        QVERIFY(!run.Find()->isVisible());
        run.frame.show();
        QVERIFY(!run.Find()->isVisible()); // It would come to lie behind the main window.
        QTRY_VERIFY(run.Find()->isVisible());
        run.In<QCheckBox>("advancedSearch")->click();
        QCOMPARE(run.Find()->height(), height);
        CFindWindow *const window = run.Find();
        run.Run(CommandId::Find);
        QCOMPARE(run.frame.findChildren<CFindWindow *>(), QList<CFindWindow *>{window});
        // It follows settings that somebody else puts back.
        run.In<QCheckBox>("dictionary")->click();
        run.test.allSettings.find = {};
        run.test.settingsChanges.Tell(SettingsSection::Find);
        QVERIFY(!run.In<QTableView>("findResults")->isVisible());
        QCOMPARE(run.In<QComboBox>("flag1")->currentIndex(), 0);
        QVERIFY(!run.test.allSettings.find.dictionary && run.test.allSettings.find.language == AllColumns);
    }

    void theDictionary()
    {
        Window run(u"hund|dog,katt|cat,x|y|hund"_s);
        run.Run(CommandId::Find);
        QApplication::setActiveWindow(run.Find());
        run.In<QLineEdit>("findText")->setText(u"hund"_s);
        run.In<QCheckBox>("dictionary")->click();
        auto *const results = run.In<QTableView>("findResults");
        QCOMPARE(results->model()->rowCount(), 2);
        QCOMPARE(run.In<QLabel>("findCount")->text(), u"2 glosor hittade. Listan har 3 glosor."_s);
        QCOMPARE(run.In<QWidget>("spokenText")->accessibleName(), run.In<QLabel>("findCount")->text());
        results->selectAll();
        QCOMPARE(run.view->SelectedEntries(), (std::vector<int>{0, 2}));
        results->selectRow(1);
        QTest::keyClick(results, Qt::Key_Return);
        QCOMPARE(run.view->SelectedEntries(), std::vector<int>{2});
        QVERIFY(!run.Marked().isEmpty());
        // An edit that is open is stored, and what was found follows the list.
        QApplication::setActiveWindow(&run.frame);
        run.List()->EditCell(1, 0);
        auto *const editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        editor->setText(u"hundar"_s);
        run.In<QPushButton>("findAll")->click();
        QCOMPARE(run.test.document.List().Entry(0).GetText(0), u"hundar"_s);
        run.test.document.Change([](CWordList &list) { list.DeleteEntries(std::array{2}); });
        QCOMPARE(results->model()->rowCount(), 1);
        run.In<QCheckBox>("dictionary")->click();
        QVERIFY(!results->isVisible());
        QTest::keyClick(run.Find(), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(run.Find() == nullptr);
    }
};

QTEST_MAIN(FindCommandsTest)
#include "find_commands_test.moc"
