// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/recent_files.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/file_tools_commands.h"
#include "support/list_files.h"
#include "support/scripted_format_dialogs.h"
#include "support/test_document.h"
#include "support/widgets.h"
#include "tools/ui/file_search_window.h"
#include "tools/ui/import_dialog.h"

#include <QAction>
#include <QUrl>

namespace {

/// The two commands with a main window.
struct Window
{
    TestDocument test{QStringList{u"a|A"_s, u"b|B"_s}};
    CListFiles files;
    CScriptedChooser chooser;
    CScriptedFormatDialogs formatDialogs;
    CMemoryStore store;
    CRecentFiles recent{store, QString()};
    CFileCommands fileCommands{test.document, test.texts, test.prompt, chooser, formatDialogs, recent};
    QWidget frame;
    CCommandActions actions{test.texts, &frame};
    QStringList help;
    CFileToolsCommands commands{actions, fileCommands,
        {test.document, test.allSettings.import, test.allSettings.filesearch, test.texts, test.prompt, chooser,
            [this](const QString &section) { help.append(section); }},
        test.settingsChanges, frame};

    Window()
    {
        frame.show();
        actions.Update({});
    }
    template<class Dialog>
    Dialog *Open(int command)
    {
        actions.Action(command)->trigger();
        auto *const dialog = frame.findChild<Dialog *>();
        QApplication::setActiveWindow(dialog);
        return dialog;
    }
};

void Click(const QWidget *window, const char *name)
{
    Find<QPushButton>(window, name)->click();
}

bool IsEnabled(const QWidget *window, const char *name)
{
    return Find<QWidget>(window, name)->isEnabled();
}

}

class FileToolWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void importing()
    {
        Window run;
        auto *const dialog = run.Open<CImportDialog>(CommandId::Import);
        QVERIFY(dialog != nullptr && dialog->isModal());
        QVERIFY(
            !IsEnabled(dialog, "import") && !IsEnabled(dialog, "removeFiles") && !IsEnabled(dialog, "author"));
        Find<QCheckBox>(dialog, "useFilter")->click();
        QVERIFY(IsEnabled(dialog, "author") && !IsEnabled(dialog, "miniValue"));
        Find<QCheckBox>(dialog, "miniValueUse")->click();
        QVERIFY(IsEnabled(dialog, "miniValue"));

        const QString file = run.files.AddList(u"t/x.gls"_s, {u"c|C"_s, u"a|A"_s});
        run.chooser.paths = {file + u'|' + file};
        Click(dialog, "chooseFiles");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(run.files.Path())});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(dialog, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(dialog, &drop);
        QTRY_COMPARE(Find<QLabel>(dialog, "fileCount")->text(), u"3 filer."_s);
        auto *const list = Find<QTableView>(dialog, "files");
        list->selectRow(0);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->model()->rowCount(), 2);
        QTest::keyClick(dialog, Qt::Key_F1);
        QCOMPARE(run.help, QStringList{u"import"_s});

        const int height = dialog->height();
        QTRY_VERIFY(IsEnabled(dialog, "import"));
        Click(dialog, "import");
        QVERIFY(
            !Find<QWidget>(dialog, "useFilter")->isVisible() && Find<QWidget>(dialog, "progress")->isVisible());
        QVERIFY(dialog->height() < height);
        QVERIFY(!IsEnabled(dialog, "chooseFiles"));
        QTRY_COMPARE(Find<QPushButton>(dialog, "cancel")->text(), u"Stäng"_s);
        QCOMPARE(Find<QLabel>(dialog, "counter3")->text(), u"1"_s);
        QCOMPARE(Find<QLabel>(dialog, "counter4")->text(), u"3"_s);
        QVERIFY(!list->selectionModel()->hasSelection() && dialog->cursor().shape() == Qt::ArrowCursor);
        QCOMPARE(Joined(run.test.document.List()), u"c|C,a|A,b|B"_s);
        Click(dialog, "cancel");
        QVERIFY(!dialog->isVisible());
        QCOMPARE(run.test.document.UndoCount(), 1);
    }

    void closedInTheMiddle()
    {
        Window run;
        const QString large = run.files.AddList(u"x.gls"_s, ManyEntries(u"x"_s, 20'000));
        for (const bool byEscape : {true, false}) {
            QPointer<CImportDialog> dialog = run.Open<CImportDialog>(CommandId::Import);
            dialog->AddFiles(QStringList(20, large));
            Click(dialog, "import");
            if (byEscape) {
                QTest::keyClick(dialog, Qt::Key_Escape); // Only stops it.
                QTRY_COMPARE(Find<QPushButton>(dialog, "cancel")->text(), u"Stäng"_s);
            }
            QVERIFY(dialog->isVisible());
            dialog->close();
            QTRY_VERIFY(dialog == nullptr);
        }
        QVERIFY(run.test.document.List().Count() < 800'000);
        // The end of the session, while the search goes on as well.
        auto *const search = run.Open<CFileSearchWindow>(CommandId::FileSearch);
        Find<QLineEdit>(search, "folder")->setText(run.files.Path());
        Click(search, "search");
        const int before = run.test.document.List().Count();
        auto *const dialog = run.Open<CImportDialog>(CommandId::Import);
        dialog->AddFiles({large});
        Click(dialog, "import");
        run.commands.FinishQuietly();
        QCOMPARE(Find<QPushButton>(dialog, "cancel")->text(), u"Stäng"_s);
        QVERIFY(run.test.document.List().Count() <= before + 20'000);
    }

    void searching()
    {
        Window run;
        run.files.AddList(u"a.gls"_s, {u"c|C"_s});
        run.files.AddList(u"b.gls"_s, {u"d|D"_s});
        auto *const window = run.Open<CFileSearchWindow>(CommandId::FileSearch);
        QVERIFY(window != nullptr && !window->isModal());
        QVERIFY(!IsEnabled(window, "open") && !IsEnabled(window, "import"));
        Find<QLineEdit>(window, "folder")->setText(run.files.Path(u"missing"_s));
        Click(window, "search");
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::FolderMissing});
        run.chooser.paths = {run.files.Path()};
        Click(window, "folderBrowse");
        Click(window, "search");
        QCOMPARE(Find<QPushButton>(window, "search")->text(), u"S&topp"_s);
        QTRY_COMPARE(Find<QPushButton>(window, "search")->text(), u"&Sök"_s);
        auto *const list = Find<QTableView>(window, "foundFiles");
        QCOMPARE(list->model()->rowCount(), 2);
        list->selectRow(1);
        run.frame.hide();
        QVERIFY(!window->isVisible());
        run.frame.show();
        QVERIFY(window->isVisible());
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(Joined(run.test.document.List()), u"d|D"_s);
        // It follows settings that somebody else puts back.
        Find<QCheckBox>(window, "useFilter")->click();
        run.test.allSettings.filesearch = {};
        run.test.settingsChanges.Tell(SettingsSection::FileSearch);
        QVERIFY(!Find<QCheckBox>(window, "useFilter")->isChecked() && list->model()->rowCount() == 2);
        QVERIFY(Find<QLineEdit>(window, "folder")->text() != run.files.Path());
        QVERIFY(Find<QLineEdit>(window, "folder")->isVisible());
        // The selected one, or all.
        for (const int files : {1, 2}) {
            Click(window, "import");
            auto *const dialog = run.frame.findChild<CImportDialog *>();
            QCOMPARE(Find<QTableView>(dialog, "files")->model()->rowCount(), files);
            delete dialog;
            list->clearSelection();
        }
    }

    void searchingForTheImport()
    {
        Window run;
        run.files.AddList(u"a.gls"_s, {u"c|C"_s});
        auto *const dialog = run.Open<CImportDialog>(CommandId::Import);
        Click(dialog, "searchFiles");
        QPointer<CFileSearchWindow> window = dialog->findChild<CFileSearchWindow *>();
        QVERIFY(Find<QPushButton>(window, "open") == nullptr);
        Find<QLineEdit>(window, "folder")->setText(run.files.Path());
        QTest::keyClick(Find<QLineEdit>(window, "folder"), Qt::Key_Return);
        QTRY_VERIFY(IsEnabled(window, "add"));
        Click(window, "add");
        QCOMPARE(Find<QTableView>(dialog, "files")->model()->rowCount(), 1);
        QTRY_COMPARE(Find<QPushButton>(window, "search")->text(), u"&Sök"_s);
        Click(dialog, "import");
        QTRY_VERIFY(window == nullptr);
    }
};

QTEST_MAIN(FileToolWindowsTest)
#include "file_tool_windows_test.moc"
