// SPDX-License-Identifier: MIT
#include "document/file_commands.h"
#include "document/recent_files.h"
#include "editor/text_numbers.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "fileformats/import_preview.h"
#include "fileformats/word_list_file.h"
#include "quiz/quiz_kinds.h"
#include "quiz/ui/quiz_settings_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "settings/quiz_settings.h"
#include "settings/settings_store.h"
#include "settings/shell_settings.h"
#include "shell/commands.h"
#include "shell/ui/about_dialog.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/main_frame.h"
#include "shell/ui/special_character_keys.h"
#include "support/files.h"
#include "support/scripted_format_dialogs.h"
#include "support/silent_sounds.h"
#include "support/test_document.h"
#include "support/widgets.h"

#include <QAction>
#include <QClipboard>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QToolBar>

namespace {

struct Frame
{
    TestDocument test;
    CScriptedChooser chooser;
    CScriptedFormatDialogs formatDialogs;
    CSilentSounds sounds;
    QuizSettings &quizSettings = test.allSettings.quiz;
    CRandom random{1};
    CMemoryStore store;
    CRecentFiles recent{store, u"root"_s};
    CFileCommands files{test.document, test.texts, test.prompt, chooser, formatDialogs, recent};
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
        .formatDialogs = formatDialogs,
        .sounds = sounds,
        .random = random,
        .store = store,
        .root = u"root"_s,
        .specialCharacters = specialCharacters,
        .openHelp = [this](const QString &) { ++helpOpened; },
        .today = [] { return QDate(2004, 5, 6); }}};

    explicit Frame(const QString &entries = {}) : test(entries) { }
    QAction *Command(int id) const { return frame.findChild<QAction *>(u"command%1"_s.arg(id)); }
    QString Status() const { return Find<QLabel>(&frame, "statusText")->text(); }
    CWordListControl *List() const { return frame.findChild<CWordListControl *>(); }
    void Show()
    {
        frame.ShowAsBefore();
        QApplication::setActiveWindow(&frame);
    }
    void Insert(const QString &entry)
    {
        test.document.Change([&entry](CWordList &list) { list.Insert(MakeEntry(entry)); });
    }
};

}

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheSampleList()
    {
        const QTemporaryDir folder;
        Frame run;
        QAction *const quiz = run.Command(quizKindRow(QuizKind::Standard).command);
        QVERIFY(!quiz->isEnabled());
        QVERIFY(run.files.OpenFile(QStringLiteral(ORDELIN_SOURCE_DIR "/samples/vardagsord.gls")));
        run.frame.show();
        QVERIFY(QTest::qWaitForWindowExposed(&run.frame));
        const int entries = run.List()->model()->rowCount() - 1;
        QVERIFY(entries >= 150);
        QCOMPARE(run.frame.windowTitle(), u"vardagsord.gls"_s);
        QVERIFY(quiz->isEnabled());
        QVERIFY(run.Status().startsWith(QString::number(entries)));
        VerifyAccessibleNames(&run.frame);
        const std::vector<int> some = {0, 1, 2, 7, 149};
        run.frame.SelectEntries(some);
        QCOMPARE(run.frame.SelectedEntries(), some);
        QVERIFY(run.Status().startsWith(u"5 glosor markerade. "_s));

        run.Insert(u"a|b"_s);
        run.chooser.paths = {folder.filePath(u"x.gls"_s)};
        run.Command(CommandId::SaveFileAs)->trigger();
        QCOMPARE(run.frame.windowTitle(), u"x.gls"_s);
    }

    void closing()
    {
        Frame run;
        const QSignalSpy closed(&run.frame, &CMainFrame::Closed);
        run.Insert(u"a|b"_s);
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

    void everyCommandOnAnEmptyList()
    {
        const QTemporaryDir withoutDictionaries;
        Frame run;
        run.test.allSettings.dictionaries.folder = withoutDictionaries.path();
        run.frame.show();
        for (const Command &command : CommandTable()) {
            run.Command(command.id)->trigger();
        }
        QVERIFY(FindWindow<CAboutDialog>() != nullptr && FindWindow<CStandardQuiz>() == nullptr);
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NoDictionaryInstalled});
    }

    void commandsAndTheirMarks()
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

    void clipboardCommands()
    {
        using namespace CommandId;
        QClipboard &clipboard = *QApplication::clipboard();
        clipboard.clear();
        Frame run;
        run.frame.show();
        QApplication::setActiveWindow(&run.frame);
        QCoreApplication::processEvents();
        QVERIFY(!run.Command(Paste)->isEnabled());
        clipboard.setText(u"a\tb\tc"_s);
        run.Command(Paste)->trigger();
        QCOMPARE(run.test.Entries(), u"a|b|c"_s);
        QCOMPARE(run.Status(), u"1 glosor klistrades in."_s);

        // The pasted entry is selected.
        for (const auto &[command, text] : {std::pair(int(CopyLanguage1), "a\r\n"), {CopyLanguage2, "b\r\n"},
                 {CopyNotes, "c\r\n"}, {CommandId::Copy, "a\tb\tc\r\n"}}) {
            run.Command(command)->trigger();
            QCOMPARE(clipboard.text(), QString::fromLatin1(text));
        }
        run.test.prompt.answers = {PromptAnswer::Yes};
        run.Command(Cut)->trigger();
        QVERIFY(!run.Command(Copy)->isEnabled() && !run.Command(CopyNotes)->isEnabled());

        // In an edit box they work on its text alone.
        run.Command(ShowEditFields)->trigger();
        auto *const box = ::Find<QLineEdit>(&run.frame, "field0");
        box->setFocus();
        run.Command(Paste)->trigger();
        QVERIFY(box->text().startsWith(u"a\tb"_s));
        QCOMPARE(run.test.document.List().Count(), 0);
        box->setSelection(0, 1);
        run.Command(Cut)->trigger();
        QCOMPARE(clipboard.text(), u"a"_s);
    }

    void commandsWhileACellIsEdited()
    {
        using namespace CommandId;
        struct Expected
        {
            int command;
            const char *first; // The term of the first entry afterwards.
            bool edited; // The edit is still open.
        };
        for (const Expected &expected :
            {Expected{SortByLanguage2, "x", false}, {CopyLanguage1, "x", false}, {Next, "x", false},
                {ShowWordNumber, "a", false}, {ShowNotes, "a", false}, {Descending, "a", true},
                {Paste, "a", true}, {SelectAll, "a", true}, {InsertComment, "a", true}}) {
            Frame run(u"a|1,b|2"_s);
            run.test.allSettings.arrange.descending = false;
            run.Show();
            run.List()->EditCell(1, 0);
            TypeKeys(u"x"_s);
            run.Command(expected.command)->trigger();
            QCOMPARE(run.test.document.List().Entry(0).GetText(0), QLatin1StringView(expected.first));
            QCOMPARE(run.List()->IsEditing(), expected.edited);
        }
    }

    void whatIsTypedIsNotLost()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"x.gls"_s);
        Frame run;
        run.Insert(u"a|b"_s);
        QVERIFY(run.test.document.OnSaveDocument(path));
        run.Show();
        const auto saved = [&] {
            CWordList list;
            (void)ReadWordListFile(list, path);
            return Joined(list);
        };
        run.List()->EditCell(0, 0);
        TypeKeys(u"saved"_s);
        run.Command(CommandId::SaveFile)->trigger();
        QCOMPARE(saved(), u"saved|b"_s);
        run.List()->EditCell(0, 0);
        TypeKeys(u"asked"_s);
        run.test.prompt.answers = {PromptAnswer::Cancel};
        run.frame.close();
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::SaveChanges});
        QCOMPARE(run.test.Entries(), u"asked|b"_s);

        // Half of a pair stays; what is typed next goes beside it.
        run.frame.findChild<CWin32View *>()->SetInsertionPoint(0);
        run.List()->SetCursor(0, 0);
        TypeKeys(u"half"_s);
        run.Command(CommandId::SaveFile)->trigger();
        QCOMPARE(saved(), u"asked|b"_s);
        QCOMPARE(Joined(run.frame.ListWithTyped()), u"half,asked|b"_s);
        TypeKeys(u"pair\n\n"_s);
        QCOMPARE(run.test.Entries(), u"half|pair,asked|b"_s);

        // In the fields as well; half a pair is asked about.
        run.List()->EndEditing(false);
        run.Command(CommandId::ShowEditFields)->trigger();
        run.List()->SelectRow(-1, false);
        auto *const field = Find<QLineEdit>(&run.frame, "field1");
        field->setFocus();
        TypeKeys(u"alone"_s);
        run.test.prompt.answers = {PromptAnswer::Yes};
        run.Command(CommandId::NewFile)->trigger();
        QCOMPARE(saved(), u"half|pair,|alone,asked|b"_s);
        QCOMPARE(field->text(), QString());
    }

    void droppedFiles()
    {
        const QTemporaryDir folder;
        Frame run;
        const QString path = folder.filePath(u"a.gls"_s);
        QVERIFY(QFile::copy(QStringLiteral(ORDELIN_SOURCE_DIR "/samples/vardagsord.gls"), path));
        run.frame.show();
        // Over the list and over a field, where files are dropped in fact.
        QWidget *const rows = Find<QTableView>(&run.frame, "wordList")->viewport();
        QWidget *const field = Find<QLineEdit>(&run.frame, "field0");
        const auto drop = [&](const QList<QUrl> &urls, QWidget *target) {
            QMimeData data;
            data.setUrls(urls);
            const bool taken = Drop(target, data);
            QCoreApplication::processEvents();
            return taken;
        };
        QVERIFY(drop({QUrl(u"https://a.example/b.gls"_s)}, rows));
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::OnlyFiles});
        run.test.prompt.numbers.clear();
        QVERIFY(drop({QUrl::fromLocalFile(path), QUrl::fromLocalFile(path)}, rows));
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::OneFileAtATime});
        QCOMPARE(run.test.document.Path(), QString());

        run.Insert(u"a|b"_s);
        run.test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::No};
        QVERIFY(drop({QUrl::fromLocalFile(path)}, rows));
        QCOMPARE(run.test.document.Path(), QString());
        QVERIFY(drop({QUrl::fromLocalFile(path)}, field));
        QCOMPARE(run.test.document.Path(), path);

        // A separated text is looked at first.
        const QString text = WriteFile(folder.filePath(u"a.csv"_s), "Svenska;Engelska\nhund;dog\n");
        run.formatDialogs.onImport = [](CImportPreview &preview) {
            preview.SetColumn(0, TextColumn::Term2);
            return true;
        };
        QVERIFY(drop({QUrl::fromLocalFile(text)}, rows));
        QCOMPARE(Joined(run.test.document.List()), u"dog|hund"_s);
    }

    void barsAndPlaceComeBack()
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
        QCOMPARE(checks(first), u"010"_s);

        Frame second;
        second.frame.ShowAsBefore();
        QCOMPARE(checks(second), u"101"_s);
        for (const auto &[section, values] : first.store.Sections().asKeyValueRange()) {
            for (const auto &[name, value] : values.asKeyValueRange()) {
                second.store.Write(section, name, value);
            }
        }
        second.frame.ShowAsBefore();
        QCOMPARE(checks(second), u"010"_s);
        QCOMPARE(second.frame.geometry(), QRect(60, 70, 640, 480));
        QVERIFY(Find<QToolBar>(&second.frame, "standardToolBar")->isHidden());
    }

    void menusByKeyboard()
    {
        Frame run;
        run.Show();
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

    void captionsFollowTheLanguages()
    {
        Frame run;
        run.test.document.Change([&](CWordList &list) { list.SetLanguage(0, u"A&B"_s); });
        run.test.document.Change([&](CWordList &list) { list.SetLanguage(1, u"Engelska"_s); });
        auto *const menu = run.frame.menuBar()->findChild<QMenu *>();
        QVERIFY(QMetaObject::invokeMethod(menu, "aboutToShow"));
        QCOMPARE(run.Command(CommandId::FromLanguage1)->text(), u"A&&B &till Engelska"_s);
        run.Command(CommandId::FromLanguage2)->trigger();
        QCOMPARE(run.quizSettings.showLanguage, QuizDirection::FromLanguage2);
        QVERIFY(!run.Command(CommandId::FromLanguage1)->isChecked());

        run.Command(CommandId::QuizSettings)->trigger();
        auto *const settings = run.frame.findChild<CQuizSettingsDialog *>();
        auto *const direction = Find<QRadioButton>(settings, "fromLanguage1");
        QVERIFY(!direction->isChecked());
        direction->click();
        settings->accept();
        QVERIFY(run.Command(CommandId::FromLanguage1)->isChecked());
    }

    void textsFromOutsideArePlain()
    {
        Frame run;
        const QString markup = u"<img src=\"/missing/picture.png\">"_s;
        run.test.document.Change([&markup](CWordList &list) {
            list.SetProperties({.language1 = markup,
                .language2 = QString(1000000, u'x'),
                .author = u"\u202E"_s + markup,
                .comments = QString(1000000, u'<')});
            list.Insert(CWordEntry(markup, markup));
        });
        run.frame.findChild<CWin32View *>()->RefreshAll();
        run.frame.ShowAsBefore();
        QVERIFY(run.frame.minimumSizeHint().width() < 2000);
        for (const QLabel *const label : run.frame.findChildren<QLabel *>()) {
            QVERIFY2(label->textFormat() == Qt::PlainText, qPrintable(label->objectName()));
        }
        // What is turned in it turns nothing behind it.
        const QString author = Find<QLabel>(&run.frame, "author")->text();
        QVERIFY2(author.contains(u"\u2068\u202E%1\u2069"_s.arg(markup)), qPrintable(author));
    }
};

QTEST_MAIN(MainFrameTest)
#include "main_frame_test.moc"
