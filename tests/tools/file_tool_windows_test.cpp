// SPDX-License-Identifier: MIT
#include "shell/commands.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/file_tools_commands.h"
#include "support/list_files.h"
#include "support/test_document.h"
#include "tools/ui/file_search_window.h"
#include "tools/ui/import_dialog.h"

#include "document/file_commands.h"
#include "document/recent_files.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QUrl>

namespace {

/// The two commands with a main window.
struct Window
{
    TestDocument test{QStringList{QStringLiteral("a|A"), QStringLiteral("b|B")}};
    CListFiles files;
    CScriptedChooser chooser;
    CMemoryStore store;
    CRecentFiles recent{store, QString()};
    CFileCommands fileCommands{test.document, test.texts, test.prompt, chooser, recent};
    QWidget frame;
    CCommandActions actions{test.texts, &frame};
    QStringList help;
    CFileToolsCommands commands{actions, fileCommands,
        {test.document, test.allSettings.import, test.allSettings.filesearch, test.texts, test.prompt, chooser,
            [this](const QString &section) { help.append(section); }},
        frame};

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

template<class Control>
Control *In(const QWidget *window, const char *name)
{
    return window->findChild<Control *>(QLatin1StringView(name));
}

void Click(const QWidget *window, const char *name)
{
    In<QPushButton>(window, name)->click();
}

}

class FileToolWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void importing();
    void closedInTheMiddle();
    void searching();
    void searchingForTheImport();
};

void FileToolWindowsTest::importing()
{
    Window run;
    auto *const dialog = run.Open<CImportDialog>(CommandId::Import);
    QVERIFY(dialog != nullptr && dialog->isModal());
    QVERIFY(!In<QPushButton>(dialog, "import")->isEnabled()
        && !In<QPushButton>(dialog, "removeFiles")->isEnabled());
    QVERIFY(!In<QLineEdit>(dialog, "author")->isEnabled());
    In<QCheckBox>(dialog, "useFilter")->click();
    QVERIFY(In<QLineEdit>(dialog, "author")->isEnabled() && !In<QWidget>(dialog, "miniValue")->isEnabled());
    In<QCheckBox>(dialog, "miniValueUse")->click();
    QVERIFY(In<QWidget>(dialog, "miniValue")->isEnabled());

    const QString file =
        run.files.AddList(QStringLiteral("t/x.gls"), {QStringLiteral("c|C"), QStringLiteral("a|A")});
    run.chooser.paths = {file + u'|' + file};
    Click(dialog, "chooseFiles");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(run.files.Path())});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(dialog, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(dialog, &drop);
    QTRY_COMPARE(In<QLabel>(dialog, "fileCount")->text(), QStringLiteral("3 filer."));
    auto *const list = In<QTableView>(dialog, "files");
    list->selectRow(0);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(list->model()->rowCount(), 2);
    QTest::keyClick(dialog, Qt::Key_F1);
    QCOMPARE(run.help, QStringList{QStringLiteral("import")});

    const int height = dialog->height();
    QTRY_VERIFY(In<QPushButton>(dialog, "import")->isEnabled());
    Click(dialog, "import");
    QVERIFY(!In<QWidget>(dialog, "useFilter")->isVisible() && In<QWidget>(dialog, "progress")->isVisible());
    QVERIFY(dialog->height() < height);
    QVERIFY(!In<QPushButton>(dialog, "chooseFiles")->isEnabled());
    QTRY_COMPARE(In<QPushButton>(dialog, "cancel")->text(), QStringLiteral("Stäng"));
    QCOMPARE(In<QLabel>(dialog, "counter3")->text(), QStringLiteral("1"));
    QCOMPARE(In<QLabel>(dialog, "counter4")->text(), QStringLiteral("3"));
    QVERIFY(!list->selectionModel()->hasSelection() && dialog->cursor().shape() == Qt::ArrowCursor);
    QCOMPARE(Joined(run.test.document.List()), QStringLiteral("c|C,a|A,b|B"));
    Click(dialog, "cancel");
    QVERIFY(!dialog->isVisible());
    QCOMPARE(run.test.document.UndoCount(), 1);
}

void FileToolWindowsTest::closedInTheMiddle()
{
    Window run;
    const QString large = run.files.AddList(QStringLiteral("x.gls"), ManyEntries(QStringLiteral("x"), 20'000));
    for (const bool byEscape : {true, false}) {
        QPointer<CImportDialog> dialog = run.Open<CImportDialog>(CommandId::Import);
        dialog->AddFiles(QStringList(20, large));
        Click(dialog, "import");
        if (byEscape) {
            QTest::keyClick(dialog, Qt::Key_Escape); // Only stops it.
            QTRY_COMPARE(In<QPushButton>(dialog, "cancel")->text(), QStringLiteral("Stäng"));
        }
        QVERIFY(dialog->isVisible());
        dialog->close();
        QTRY_VERIFY(dialog == nullptr);
    }
    QVERIFY(run.test.document.List().Count() < 800'000);
    // The end of the session, while the search goes on as well.
    auto *const search = run.Open<CFileSearchWindow>(CommandId::FileSearch);
    In<QLineEdit>(search, "folder")->setText(run.files.Path());
    Click(search, "search");
    const int before = run.test.document.List().Count();
    auto *const dialog = run.Open<CImportDialog>(CommandId::Import);
    dialog->AddFiles({large});
    Click(dialog, "import");
    run.commands.FinishQuietly();
    QCOMPARE(In<QPushButton>(dialog, "cancel")->text(), QStringLiteral("Stäng"));
    QVERIFY(run.test.document.List().Count() <= before + 20'000);
}

void FileToolWindowsTest::searching()
{
    Window run;
    run.files.AddList(QStringLiteral("a.gls"), {QStringLiteral("c|C")});
    run.files.AddList(QStringLiteral("b.gls"), {QStringLiteral("d|D")});
    auto *const window = run.Open<CFileSearchWindow>(CommandId::FileSearch);
    QVERIFY(window != nullptr && !window->isModal());
    QVERIFY(!In<QPushButton>(window, "open")->isEnabled() && !In<QPushButton>(window, "import")->isEnabled());
    In<QLineEdit>(window, "folder")->setText(run.files.Path(QStringLiteral("missing")));
    Click(window, "search");
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::FolderMissing});
    run.chooser.paths = {run.files.Path()};
    Click(window, "folderBrowse");
    Click(window, "search");
    QCOMPARE(In<QPushButton>(window, "search")->text(), QStringLiteral("S&topp"));
    QTRY_COMPARE(In<QPushButton>(window, "search")->text(), QStringLiteral("&Sök"));
    auto *const list = In<QTableView>(window, "foundFiles");
    QCOMPARE(list->model()->rowCount(), 2);
    list->selectRow(1);
    run.frame.hide();
    QVERIFY(!window->isVisible());
    run.frame.show();
    QVERIFY(window->isVisible());
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(Joined(run.test.document.List()), QStringLiteral("d|D"));
    // The selected one, or all.
    for (const int files : {1, 2}) {
        Click(window, "import");
        auto *const dialog = run.frame.findChild<CImportDialog *>();
        QCOMPARE(In<QTableView>(dialog, "files")->model()->rowCount(), files);
        delete dialog;
        list->clearSelection();
    }
}

void FileToolWindowsTest::searchingForTheImport()
{
    Window run;
    run.files.AddList(QStringLiteral("a.gls"), {QStringLiteral("c|C")});
    auto *const dialog = run.Open<CImportDialog>(CommandId::Import);
    Click(dialog, "searchFiles");
    QPointer<CFileSearchWindow> window = dialog->findChild<CFileSearchWindow *>();
    QVERIFY(In<QPushButton>(window, "open") == nullptr);
    In<QLineEdit>(window, "folder")->setText(run.files.Path());
    QTest::keyClick(In<QLineEdit>(window, "folder"), Qt::Key_Return);
    QTRY_VERIFY(In<QPushButton>(window, "add")->isEnabled());
    Click(window, "add");
    QCOMPARE(In<QTableView>(dialog, "files")->model()->rowCount(), 1);
    QTRY_COMPARE(In<QPushButton>(window, "search")->text(), QStringLiteral("&Sök"));
    Click(dialog, "import");
    QTRY_VERIFY(window == nullptr);
}

QTEST_MAIN(FileToolWindowsTest)
#include "file_tool_windows_test.moc"
