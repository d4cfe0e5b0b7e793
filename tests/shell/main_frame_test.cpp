// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/recent_files.h"
#include "document/text_numbers.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "fileformats/word_list_file.h"
#include "quiz/quiz_kinds.h"
#include "quiz/ui/quiz_settings_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "settings/quiz_settings.h"
#include "settings/settings_store.h"
#include "settings/shell_settings.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"
#include "shell/ui/about_dialog.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/main_frame.h"
#include "shell/ui/special_character_keys.h"
#include "support/silent_sounds.h"
#include "support/test_document.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

namespace {

struct Frame
{
    TestDocument test;
    CScriptedChooser chooser;
    CSilentSounds sounds;
    QuizSettings &quizSettings = test.allSettings.quiz;
    CRandom random{1};
    CMemoryStore store;
    CRecentFiles recent{store, QStringLiteral("root")};
    CFileCommands files{test.document, test.texts, test.prompt, chooser, recent};
    EasyKeySettings easyKey;
    CSpecialCharacterKeys specialCharacters{easyKey, test.texts, nullptr};
    int helpOpened = 0;
    CMainFrame frame{{.document = test.document,
        .files = files,
        .recent = recent,
        .texts = test.texts,
        .settings = test.allSettings,
        .settingsChanges = test.settingsChanges,
        .prompt = test.prompt,
        .chooser = chooser,
        .sounds = sounds,
        .random = random,
        .store = store,
        .root = QStringLiteral("root"),
        .specialCharacters = specialCharacters,
        .openHelp = [this](const QString &) { ++helpOpened; },
        .today = [] { return QDate(2004, 5, 6); }}};

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
    void commandsAndTheirMarks();
    void clipboardCommands();
    void commandsWhileACellIsEdited();
    void whatIsTypedIsNotLost();
    void wordsThatAreNoEntryYet();
    void droppedFiles();
    void barsAndPlaceComeBack();
    void menusByKeyboard();
    void captionsFollowTheLanguages();
    void textsFromOutsideArePlain();
};

void MainFrameTest::showsTheSampleList()
{
    Frame run;
    QVERIFY(!run.Command(quizKindRow(QuizKind::Standard).command)->isEnabled());
    QVERIFY(run.files.OpenFile(QStringLiteral(ORDELIN_SOURCE_DIR "/samples/vardagsord.gls")));
    run.frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&run.frame));
    const auto *const list = run.frame.findChild<QTableView *>(QStringLiteral("wordList"));
    QVERIFY(list->model()->rowCount() >= 150);
    QCOMPARE(run.frame.windowTitle(), QStringLiteral("vardagsord.gls"));
    QVERIFY(run.Command(quizKindRow(QuizKind::Standard).command)->isEnabled());
    QVERIFY(run.Status().startsWith(QString::number(list->model()->rowCount() - 1)));
    QVERIFY(!list->accessibleName().isEmpty());
}

void MainFrameTest::savesAndKeepsTheTitle()
{
    const QTemporaryDir folder;
    Frame run;
    run.test.document.Change([&](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("a|b"))); });
    run.chooser.paths = {folder.filePath(QStringLiteral("x.gls"))};
    run.Command(CommandId::SaveFile)->trigger();
    QCOMPARE(run.frame.windowTitle(), QStringLiteral("x.gls"));
}

void MainFrameTest::selectingManyEntries()
{
    Frame run;
    run.test.document.Change([](CWordList &list) {
        for (int i = 0; i < 2000; ++i) {
            list.Insert(CWordEntry(QString::number(i)));
        }
    });
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
    run.test.document.Change([&](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("a|b"))); });
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
    for (const Command &command : CommandTable()) {
        run.Command(command.id)->trigger();
    }
    const auto windows = QApplication::topLevelWidgets();
    QVERIFY(std::ranges::any_of(
        windows, [](QWidget *window) { return qobject_cast<CAboutDialog *>(window) != nullptr; }));
    QVERIFY(std::ranges::none_of(
        windows, [](QWidget *window) { return qobject_cast<CStandardQuiz *>(window) != nullptr; }));
    QVERIFY(run.test.prompt.numbers.isEmpty());
}

void MainFrameTest::commandsAndTheirMarks()
{
    using namespace CommandId;
    // What nobody carries out can't be chosen.
    const CTexts texts;
    CCommandActions actions(texts, nullptr);
    actions.SetHandler(NewFile, [] {});
    actions.Update({});
    QVERIFY(actions.Action(NewFile)->isEnabled() && !actions.Action(OpenFile)->isEnabled());

    Frame run;
    for (const auto &[command, shown] : {std::pair(int(ShowWordNumber), &EditorSettings::showWordNumber),
             {ShowEditFields, &EditorSettings::showEditFields}, {ShowNotes, &EditorSettings::showNotes}}) {
        for (const bool on : {!(run.test.settings.*shown), run.test.settings.*shown}) {
            run.Command(command)->trigger();
            QCOMPARE(run.test.settings.*shown, on);
            QCOMPARE(run.Command(command)->isChecked(), on);
        }
    }
}

void MainFrameTest::clipboardCommands()
{
    using namespace CommandId;
    QClipboard &clipboard = *QApplication::clipboard();
    clipboard.clear();
    Frame run;
    run.frame.show();
    QApplication::setActiveWindow(&run.frame);
    QCoreApplication::processEvents();
    QVERIFY(!run.Command(Paste)->isEnabled());
    clipboard.setText(QStringLiteral("a\tb\tc"));
    run.Command(Paste)->trigger();
    QCOMPARE(Describe(run.test.document.List()), QStringList{QStringLiteral("a|b|c")});
    QCOMPARE(run.Status(), QStringLiteral("1 glosor klistrades in."));

    // The pasted entry is selected.
    for (const auto &[command, text] : {std::pair(int(CopyLanguage1), "a\r\n"), {CopyLanguage2, "b\r\n"},
             {CopyNotes, "c\r\n"}, {CommandId::Copy, "a\tb\tc\r\n"}}) {
        run.Command(command)->trigger();
        QCOMPARE(clipboard.text(), QString::fromLatin1(text));
    }
    run.test.prompt.answers = {PromptAnswer::Yes};
    run.Command(Cut)->trigger();
    QCOMPARE(run.test.document.List().Count(), 0);
    QVERIFY(!run.Command(Copy)->isEnabled() && !run.Command(CopyNotes)->isEnabled());

    // In an edit box they work on its text alone.
    run.Command(ShowEditFields)->trigger();
    auto *const box = run.frame.findChild<QLineEdit *>(QStringLiteral("field0"));
    box->setFocus();
    run.Command(Paste)->trigger();
    QVERIFY(box->text().startsWith(QStringLiteral("a\tb")));
    QCOMPARE(run.test.document.List().Count(), 0);
    box->setSelection(0, 1);
    run.Command(Cut)->trigger();
    QCOMPARE(clipboard.text(), QStringLiteral("a"));
}

void MainFrameTest::commandsWhileACellIsEdited()
{
    using namespace CommandId;
    struct Expected
    {
        int command;
        const char *first; // The term of the first entry afterwards.
        bool edited; // The edit is still open.
    };
    for (const Expected &expected : {Expected{SortByLanguage2, "x", false}, {CopyLanguage1, "x", false},
             {Next, "x", false}, {ShowWordNumber, "a", false}, {ShowNotes, "a", false}, {Descending, "a", true},
             {Paste, "a", true}, {SelectAll, "a", true}, {InsertComment, "a", true}}) {
        Frame run;
        run.test.allSettings.arrange.descending = false;
        run.test.document.ReplaceList([] {
            CWordList list;
            list.Insert(MakeEntry(QStringLiteral("a|1")));
            list.Insert(MakeEntry(QStringLiteral("b|2")));
            return list;
        }());
        run.frame.show();
        QApplication::setActiveWindow(&run.frame);
        auto *const list = run.frame.findChild<CWordListControl *>();
        list->EditCell(1, 0);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
        run.Command(expected.command)->trigger();
        QCOMPARE(run.test.document.List().Entry(0).GetText(0), QLatin1StringView(expected.first));
        QCOMPARE(list->IsEditing(), expected.edited);
    }
}

void MainFrameTest::whatIsTypedIsNotLost()
{
    const QTemporaryDir folder;
    Frame run;
    run.test.document.Change([&](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("a|b"))); });
    const QString path = folder.filePath(QStringLiteral("x.gls"));
    QVERIFY(run.test.document.OnSaveDocument(path));
    run.frame.ShowAsBefore();
    QApplication::setActiveWindow(&run.frame);
    auto *const list = run.frame.findChild<CWordListControl *>();
    const auto type = [&](const char *text) {
        list->EditCell(0, 0);
        QTest::keyClicks(QApplication::focusWidget(), QLatin1StringView(text));
    };
    type("saved");
    run.Command(CommandId::SaveFile)->trigger();
    CWordList read;
    QCOMPARE(ReadWordListFile(read, path), ReadResult::Read);
    QCOMPARE(read.Entry(0).GetText(0), QStringLiteral("saved"));
    type("asked");
    run.test.prompt.answers = {PromptAnswer::Cancel};
    run.frame.close();
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::SaveChanges});
    QCOMPARE(run.test.document.List().Entry(0).GetText(0), QStringLiteral("asked"));
}

void MainFrameTest::wordsThatAreNoEntryYet()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("x.gls"));
    Frame run;
    run.test.document.Change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("a|b"))); });
    QVERIFY(run.test.document.OnSaveDocument(path));
    run.frame.ShowAsBefore();
    run.frame.findChild<CWin32View *>()->SetInsertionPoint(0);
    QApplication::setActiveWindow(&run.frame);
    auto *const list = run.frame.findChild<CWordListControl *>();
    const auto read = [&] {
        CWordList saved;
        (void)ReadWordListFile(saved, path);
        return Describe(saved);
    };
    const auto type = [](QLatin1StringView text) {
        for (const char unit : text) {
            QTest::keyClick(QApplication::focusWidget(), unit == '\n' ? '\r' : unit);
        }
    };
    // A pair is saved, half of one stays; what is typed next goes beside it.
    list->SetCursor(0, 0);
    type(QLatin1StringView("abc\ndef"));
    run.Command(CommandId::SaveFile)->trigger();
    QCOMPARE(read(), (QStringList{QStringLiteral("abc|def"), QStringLiteral("a|b")}));
    type(QLatin1StringView("half"));
    run.Command(CommandId::SaveFile)->trigger();
    QCOMPARE(read().size(), 2);
    QCOMPARE(Describe(run.frame.ListWithTyped()),
        (QStringList{QStringLiteral("abc|def"), QStringLiteral("half"), QStringLiteral("a|b")}));
    type(QLatin1StringView("pair\n\n"));
    QCOMPARE(run.test.document.List().Entry(1).GetText(1), QStringLiteral("pair"));

    // In the fields as well; half a pair is asked about.
    list->EndEditing(false);
    run.Command(CommandId::ShowEditFields)->trigger();
    list->SelectRow(-1, false);
    run.frame.findChild<QLineEdit *>(QStringLiteral("field1"))->setFocus();
    type(QLatin1StringView("alone"));
    run.test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::Yes};
    run.Command(CommandId::NewFile)->trigger();
    QCOMPARE(run.test.document.List().Count(), 3);
    run.Command(CommandId::NewFile)->trigger();
    QCOMPARE(read(),
        (QStringList{QStringLiteral("abc|def"), QStringLiteral("half|pair"), QStringLiteral("|alone"),
            QStringLiteral("a|b")}));
    QCOMPARE(run.frame.findChild<QLineEdit *>(QStringLiteral("field1"))->text(), QString());
}

void MainFrameTest::droppedFiles()
{
    const QTemporaryDir folder;
    Frame run;
    const QString path = folder.filePath(QStringLiteral("a.gls"));
    QVERIFY(QFile::copy(QStringLiteral(ORDELIN_SOURCE_DIR "/samples/vardagsord.gls"), path));
    run.frame.show();
    // Over the list and over a field, where files are dropped in fact.
    QWidget *const rows = run.frame.findChild<QTableView *>(QStringLiteral("wordList"))->viewport();
    QWidget *const field = run.frame.findChild<QLineEdit *>(QStringLiteral("field0"));
    const auto drop = [&](const QList<QUrl> &urls, QWidget *target) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({9, 9}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        if (enter.isAccepted()) {
            QDropEvent dropped({9, 9}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(target, &dropped);
            QCoreApplication::processEvents();
        }
        return enter.isAccepted();
    };
    QVERIFY(drop({QUrl(QStringLiteral("https://a.example/b.gls"))}, rows));
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::OnlyFiles});
    run.test.prompt.numbers.clear();
    QVERIFY(drop({QUrl::fromLocalFile(path), QUrl::fromLocalFile(path)}, rows));
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::OneFileAtATime});
    QCOMPARE(run.test.document.Path(), QString());

    run.test.document.Change([&](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("a|b"))); });
    run.test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::No};
    QVERIFY(drop({QUrl::fromLocalFile(path)}, rows));
    QCOMPARE(run.test.document.Path(), QString());
    QVERIFY(drop({QUrl::fromLocalFile(path)}, field));
    QCOMPARE(run.test.document.Path(), path);
}

void MainFrameTest::barsAndPlaceComeBack()
{
    Frame first;
    first.frame.ShowAsBefore();
    first.Command(CommandId::QuizToolBar)->trigger();
    first.Command(CommandId::StandardToolBar)->trigger();
    first.Command(CommandId::StatusBar)->trigger();
    first.frame.setGeometry(60, 70, 640, 480);
    first.frame.close();
    const auto checks = [](const Frame &run) {
        QString text;
        for (const int id : {CommandId::StandardToolBar, CommandId::QuizToolBar, CommandId::StatusBar}) {
            text += run.Command(id)->isChecked() ? u'1' : u'0';
        }
        return text;
    };
    QCOMPARE(checks(first), QStringLiteral("010"));

    Frame second;
    second.frame.ShowAsBefore();
    QCOMPARE(checks(second), QStringLiteral("101"));
    for (const auto &[section, values] : first.store.Sections().asKeyValueRange()) {
        for (const auto &[name, value] : values.asKeyValueRange()) {
            second.store.Write(section, name, value);
        }
    }
    second.frame.ShowAsBefore();
    QCOMPARE(checks(second), QStringLiteral("010"));
    QCOMPARE(second.frame.geometry(), QRect(60, 70, 640, 480));
    QVERIFY(second.frame.findChild<QToolBar *>(QStringLiteral("standardToolBar"))->isHidden());
}

void MainFrameTest::menusByKeyboard()
{
    Frame run;
    run.frame.show();
    QApplication::setActiveWindow(&run.frame);
    QWidget *const before = run.frame.focusWidget();
    for (const Qt::Key menu : {Qt::Key_A, Qt::Key_R}) {
        QTest::keyClick(run.frame.focusWidget(), menu, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QVERIFY(run.frame.menuBar()->hasFocus());
    }
    QTest::keyClick(run.frame.menuBar(), Qt::Key_Escape);
    QCOMPARE(QApplication::focusWidget(), before);
}

void MainFrameTest::captionsFollowTheLanguages()
{
    Frame run;
    run.test.document.Change([&](CWordList &list) { list.SetLanguage(0, QStringLiteral("A&B")); });
    run.test.document.Change([&](CWordList &list) { list.SetLanguage(1, QStringLiteral("Engelska")); });
    auto *const menu = run.frame.menuBar()->findChild<QMenu *>();
    QVERIFY(QMetaObject::invokeMethod(menu, "aboutToShow"));
    QCOMPARE(run.Command(CommandId::FromLanguage1)->text(), QStringLiteral("A&&B &till Engelska"));
    run.Command(CommandId::FromLanguage2)->trigger();
    QCOMPARE(run.quizSettings.showLanguage, QuizDirection::FromLanguage2);
    QVERIFY(!run.Command(CommandId::FromLanguage1)->isChecked());

    run.Command(CommandId::QuizSettings)->trigger();
    auto *const settings = run.frame.findChild<CQuizSettingsDialog *>();
    auto *const direction = settings->findChild<QRadioButton *>(QStringLiteral("fromLanguage1"));
    QVERIFY(!direction->isChecked());
    direction->click();
    settings->accept();
    QVERIFY(run.Command(CommandId::FromLanguage1)->isChecked());
}

void MainFrameTest::textsFromOutsideArePlain()
{
    Frame run;
    const QString markup = QStringLiteral("<img src=\"/missing/picture.png\">");
    run.test.document.Change([&markup](CWordList &list) {
        list.SetProperties({.language1 = markup,
            .language2 = QString(1000000, u'x'),
            .author = QStringLiteral("\u202E") + markup,
            .comments = QString(1000000, u'<')});
        list.Insert(CWordEntry(markup, markup));
    });
    QByteArray module = "Ordelin-spr\xC3\xA5kmodul\n";
    for (const int number : run.test.texts.Own().Numbers()) {
        module += QByteArray::number(number) + "=<img src=\"/missing/picture.png\"> %s %word\n";
    }
    QVERIFY(run.test.texts.LoadModule(module));
    run.frame.findChild<CWin32View *>()->RefreshAll();
    run.frame.ShowAsBefore();
    QVERIFY(run.frame.minimumSizeHint().width() < 2000);
    run.specialCharacters.Toggle();
    run.Command(CommandId::About)->trigger();
    run.Command(CommandId::QuizSettings)->trigger();
    run.Command(quizKindRow(QuizKind::Standard).command)->trigger();
    CStandardQuiz *quiz = nullptr;
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        quiz = quiz == nullptr ? qobject_cast<CStandardQuiz *>(window) : quiz;
    }
    QVERIFY(quiz != nullptr);
    quiz->findChild<QPushButton *>(QStringLiteral("changeButton"))->click();
    quiz->findChild<QPushButton *>(QStringLiteral("resultButton"))->click();
    quiz->findChild<QPushButton *>(QStringLiteral("answerButton"))->click();
    int labels = 0;
    for (const QWidget *const widget : QApplication::allWidgets()) {
        if (const auto *const label = qobject_cast<const QLabel *>(widget)) {
            QVERIFY2(label->textFormat() == Qt::PlainText, qPrintable(label->objectName() + label->text()));
            ++labels;
        }
    }
    QVERIFY2(labels > 30, qPrintable(QString::number(labels)));
    // What is turned in it turns nothing behind it.
    const QString author = run.frame.findChild<QLabel *>(QStringLiteral("author"))->text();
    QVERIFY2(author.contains(QStringLiteral("\u2068\u202E%1\u2069").arg(markup)), qPrintable(author));
}

QTEST_MAIN(MainFrameTest)
#include "main_frame_test.moc"
