// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/recent_files.h"
#include "editor/ui/win32_view.h"
#include "quiz/ui/standard_quiz.h"
#include "resources/text_numbers.h"
#include "settings/quiz_settings.h"
#include "settings/settings_store.h"
#include "shell/commands.h"
#include "shell/ui/about_dialog.h"
#include "shell/ui/main_frame.h"
#include "support/test_document.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Frame
{
    TestDocument test;
    CScriptedChooser chooser;
    QuizSettings quizSettings;
    CRandom random{1};
    CMemoryStore store;
    CRecentFiles recent{store, QStringLiteral("root")};
    CFileCommands files{test.document, test.texts, test.prompt, chooser, recent};
    CMainFrame frame{
        {test.document, files, recent, test.texts, test.settings, quizSettings, test.prompt, random}};

    QAction *Command(int id) const { return frame.findChild<QAction *>(QStringLiteral("command%1").arg(id)); }
    QString Status() const { return frame.findChild<QLabel *>(QStringLiteral("statusText"))->text(); }
};

}

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheSampleList();
    void savesAndKeepsTheTitle();
    void selectingManyEntries();
    void closing();
    void everyCommandOnAnEmptyList();
};

void MainFrameTest::showsTheSampleList()
{
    Frame run;
    QVERIFY(!run.Command(CommandId::StandardQuiz)->isEnabled());
    QVERIFY(run.files.OpenFile(QStringLiteral(ORDELIN_SOURCE_DIR "/samples/vardagsord.gls")));
    run.frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&run.frame));
    const auto *const list = run.frame.findChild<QTableView *>(QStringLiteral("wordList"));
    QVERIFY(list->model()->rowCount() >= 150);
    QCOMPARE(run.frame.windowTitle(), QStringLiteral("vardagsord.gls"));
    QVERIFY(run.Command(CommandId::StandardQuiz)->isEnabled());
    QVERIFY(run.Status().startsWith(QString::number(list->model()->rowCount())));
    QVERIFY(!list->accessibleName().isEmpty());
}

void MainFrameTest::savesAndKeepsTheTitle()
{
    const QTemporaryDir folder;
    Frame run;
    run.test.document.BeginChange().Insert(MakeEntry(QStringLiteral("a|b")));
    run.chooser.paths = {folder.filePath(QStringLiteral("x.gls"))};
    run.Command(CommandId::SaveFile)->trigger();
    QCOMPARE(run.frame.windowTitle(), QStringLiteral("x.gls"));
}

void MainFrameTest::selectingManyEntries()
{
    Frame run;
    QStringList entries;
    for (int i = 0; i < 2000; ++i) {
        run.test.document.BeginChange().Insert(CWordEntry(QString::number(i)));
    }
    run.frame.View().RefreshAll();
    const std::vector<int> some = {0, 1, 2, 7, 1998, 1999};
    run.frame.SelectEntries(some);
    QCOMPARE(run.frame.SelectedEntries(), some);
    QVERIFY(run.Status().startsWith(QStringLiteral("6 glosor markerade. ")));
    run.frame.SelectEntries({});
    QVERIFY(run.frame.SelectedEntries().empty());
}

void MainFrameTest::closing()
{
    Frame run;
    const QSignalSpy closed(&run.frame, &CMainFrame::Closed);
    run.test.document.BeginChange().Insert(MakeEntry(QStringLiteral("a|b")));
    run.frame.show();
    run.test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::No};
    run.Command(CommandId::Exit)->trigger();
    QVERIFY(run.frame.isVisible());
    QCOMPARE(closed.count(), 0);
    run.Command(CommandId::Exit)->trigger();
    QVERIFY(!run.frame.isVisible());
    QCOMPARE(closed.count(), 1);
    QCOMPARE(run.test.prompt.numbers, QList<int>(2, Text::SaveChanges));
}

void MainFrameTest::everyCommandOnAnEmptyList()
{
    Frame run;
    run.frame.show();
    for (const Command &command : commandTable()) {
        run.Command(command.id)->trigger();
    }
    const auto windows = QApplication::topLevelWidgets();
    QVERIFY(std::ranges::any_of(
        windows, [](QWidget *window) { return qobject_cast<CAboutDialog *>(window) != nullptr; }));
    QVERIFY(std::ranges::none_of(
        windows, [](QWidget *window) { return qobject_cast<CStandardQuiz *>(window) != nullptr; }));
    QVERIFY(run.test.prompt.numbers.isEmpty());
}

QTEST_MAIN(MainFrameTest)
#include "main_frame_test.moc"
