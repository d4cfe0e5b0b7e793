// SPDX-License-Identifier: MIT
#pragma once

#include "games/ui/game_windows.h"
#include "platform/input_guard.h"
#include "platform/ui/spoken_text.h"
#include "quiz/quiz_host.h"
#include "quiz/ui/quiz_launch.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "settings/quiz_settings.h"
#include "support/silent_sounds.h"
#include "support/test_document.h"
#include "support/widgets.h"

#include <QPlainTextEdit>

/// Notes what a quiz asks of the main window.
class CTestHost : public IQuizHost
{
public:
    std::vector<int> SelectedEntries() const override { return selected; }
    void SelectEntries(const std::vector<int> &entries) override
    {
        selected = entries;
        calls.append(QStringLiteral("select"));
    }
    void ShowMainWindow(bool show) override
    {
        shown = show;
        calls.append(show ? QStringLiteral("show") : QStringLiteral("hide"));
    }
    void FocusList() override { calls.append(QStringLiteral("focus")); }
    void ShowHelp(const QString &section) override { calls.append(QStringLiteral("help ") + section); }

    std::vector<int> selected;
    bool shown = true;
    QStringList calls;
};

/// A clock that tests set. By default it is a second later each time it is read, so that nobody waits.
struct TestClock
{
    std::chrono::milliseconds now{0};
    std::chrono::milliseconds step{1000};

    std::chrono::milliseconds Read() { return now += step; }
};

/// All that a quiz needs, over two words in list order, one round, wrong words again at once.
struct TestQuiz
{
    TestDocument test;
    QuizSettings settings;
    QuizChallengeSettings quizChallenge;
    FallingWordSettings fallingWord;
    QuizWindowSettings windowSizes;
    ResultSettings resultSettings;
    CRandom random{1};
    CTestHost host;
    CSilentSounds sounds;
    CScriptedChooser chooser;
    TestClock clock;
    QWidget mainWindow;
    CQuizLaunch launch;

    explicit TestQuiz(
        const QString &entries = QStringLiteral("hund|dog,<b>katt</b>|cat"), const QStringList &folders = {})
        : TestQuiz(entries.split(u',', Qt::SkipEmptyParts), folders)
    {
    }
    explicit TestQuiz(const QStringList &entries, const QStringList &folders = {})
        : test(entries), launch({.document = test.document,
                                    .editorSettings = test.settings,
                                    .settings = settings,
                                    .kindSettings = {quizChallenge, fallingWord},
                                    .windowSizes = windowSizes,
                                    .random = random,
                                    .host = host,
                                    .windows = {.texts = test.texts,
                                        .prompt = test.prompt,
                                        .sounds = sounds,
                                        .chooser = chooser,
                                        .resultSettings = resultSettings,
                                        .dataFolders = folders,
                                        .clock = [this] { return clock.Read(); }},
                                    .makers = quizAndGameWindowMakers()},
                             mainWindow)
    {
        settings.order = QuizOrder::AsInList;
        settings.quizNumber = 1;
        settings.includeFlaggedWords = IncludeFlagged::Always;
        mainWindow.show();
    }
    /// Starts a quiz; null when its window did not open.
    template<class Window>
    Window *Start(QuizKind kind = QuizKind::Standard)
    {
        launch.startQuiz(kind);
        return FindWindow<Window>();
    }
};

/// Closes the result on screen and returns what it says of all answers; nothing when there is no result.
inline QString CloseResult()
{
    auto *const result = FindWindow<CQuizResultDialog>();
    const QString summary = result != nullptr ? Find<QLabel>(result, "summary")->text() : QString();
    if (result != nullptr) {
        result->reject();
    }
    return summary;
}
