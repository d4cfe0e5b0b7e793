// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"
#include "games/pair_matching_form.h"
#include "games/ui/falling_words_game.h"
#include "games/ui/game_clock.h"
#include "games/ui/pair_matching.h"
#include "generator.h"
#include "platform/clock.h"
#include "platform/file_chooser.h"
#include "platform/random.h"
#include "platform/sound_player.h"
#include "quiz/ui/quiz_windows.h"
#include "quiz/ui/table_quiz.h"
#include "resources/texts.h"
#include "settings/settings.h"
#include "window_bench.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

// The windows that show a whole round, without a display. Aimed at with 100,000 words: each opens at once, and
// a round is checked in less than a second. And the one in which words fall: no picture takes the 16 ms to the
// next one, also with QT_SCALE_FACTOR=2.

namespace {

class CNoSounds : public ISoundPlayer
{
public:
    void Play(const QString & /*file*/) override { }
};

class CNoFiles : public IFileChooser
{
public:
    QString ChooseFileToOpen(const FileChoice & /*choice*/) override { return {}; }
    QStringList ChooseFilesToOpen(const FileChoice & /*choice*/) override { return {}; }
    QString ChooseFolder(const FileChoice & /*choice*/) override { return {}; }
    ChosenFile ChooseFileToSave(const FileChoice & /*choice*/) override { return {}; }
};

struct Quiz
{
    explicit Quiz(int count)
    {
        settings.quiz.includeFlaggedWords = IncludeFlagged::Always;
        settings.quiz.requiz = Requiz::AfterRound;
        document.ReplaceList(GenerateList(count, 1));
    }

    CTexts texts;
    Settings settings;
    CYesPrompt prompt;
    CNoSounds sounds;
    CNoFiles files;
    CRandom random{1};
    CWin32Doc document{{texts, settings.editor, prompt, [] { return QDate(2004, 5, 6); }, {}}};

    void MeasureWindow(const char *name, const QuizWindowMaker &makeWindow)
    {
        std::printf(" %s\n", name);
        const auto session = std::make_shared<CQuizSession>(
            document, settings.quiz, random, std::span<const int>(), QuizAnswers::AreJudged);
        std::unique_ptr<CQuizDialog> window;
        const auto nothing = [] {};
        Print("open to the first paint", Measure(1, nothing, [&] {
            window = makeWindow({texts, prompt, sounds, files, settings.result},
                {session, settings.quiz, {settings.quizChallenge, settings.fallingWord}, texts, random,
                    SteadyClock});
            window->show();
            Settle();
        }));
        QApplication::setActiveWindow(window.get());
        auto *const table = window->findChild<QTableView *>();
        Print("an arrow key", Measure(10, nothing, [&] {
            QTest::keyClick(table, Qt::Key_Down);
            Settle();
        }));
        Print("a search in vain", Measure(1, nothing, [&] {
            QTest::keyClick(table, Qt::Key_NumberSign);
            Settle();
        }));
        Print("check the round", Measure(1, nothing, [&] {
            window->findChild<QPushButton *>(QStringLiteral("checkButton"))->click();
            Settle();
        }));
    }

    void MeasureFallingWords()
    {
        using namespace std::chrono_literals;
        std::printf(" falling words\n");
        settings.fallingWord.speed = 250;
        const auto session = std::make_shared<CQuizSession>(
            document, settings.quiz, random, std::span<const int>(), QuizAnswers::AreJudged);
        auto now = 0ms;
        const Clock clock = [&now] { return now; };
        auto form = std::make_unique<CFallingWordsForm>(QuizStart{
            session, settings.quiz, {settings.quizChallenge, settings.fallingWord}, texts, random, clock});
        const CFallingWordsForm &words = *form;
        CFallingWordsGame window({.texts = texts,
                                     .prompt = prompt,
                                     .sounds = sounds,
                                     .chooser = files,
                                     .resultSettings = settings.result,
                                     .clock = clock},
            std::move(form));
        window.resize(1200, 900);
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            std::exit(EXIT_FAILURE);
        }
        auto *const time = window.findChild<CGameClock *>();
        auto *const field = window.findChild<QLineEdit *>();
        const auto showNextPicture = [&] {
            now += 16ms;
            time->bringUpToDate();
            Settle();
        };
        const auto hitWord = [&] {
            const QuizQuestion question = session->questionOfRound(words.roundPosition());
            field->setText(question.entry.GetText(question.answerColumn()));
            QTest::keyClick(field, Qt::Key_Return);
            showNextPicture();
        };
        const auto nothing = [] {};
        double longest = 0;
        for (int picture = 0; picture < 1000; ++picture) {
            // Some words are hit, with the effect of it, and some missed, with the text about it.
            const std::function<void()> next = picture % 90 == 30 ? hitWord : std::function(showNextPicture);
            longest = std::max(longest, Measure(1, nothing, next).seconds);
        }
        Print("the longest of 1000 pictures", {.seconds = longest});
        Print("one like most of them", Measure(100, nothing, showNextPicture));
    }
};

void Run(int count)
{
    std::printf("%d words\n", count);
    Quiz quiz(count);
    quiz.MeasureWindow("table", makeQuizWindow<CTableQuiz, CTableQuizForm>);
    quiz.MeasureWindow("pair matching", makeQuizWindow<CPairMatchingDialog, CPairMatchingForm>);
    quiz.MeasureFallingWords();
    std::printf("\n");
}

}

int main(int argc, char *argv[])
{
    return MeasureSizes(argc, argv, {100000}, Run);
}
