// SPDX-License-Identifier: MIT
#include "games/text_numbers.h"
#include "games/ui/contest_setup_dialog.h"
#include "games/ui/contest_standing_dialog.h"
#include "games/ui/falling_words_game.h"
#include "games/ui/memory_game.h"
#include "games/ui/play_field.h"
#include "games/ui/word_contest_game.h"
#include "platform/input_guard.h"
#include "platform/ui/spoken_text.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "support/test_quiz.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A quiz whose clock stands until a test sets it.
struct Game : TestQuiz
{
    explicit Game(const QStringList &entries = {u"hund|dog"_s, u"katt|cat"_s}) : TestQuiz(entries)
    {
        clock.step = {};
        settings.requiz = Requiz::None;
        settings.showAnswer = false;
    }
    void wait(std::chrono::milliseconds time = CInputGuard::Pause) { clock.now += time; }
};

QPushButton *Button(QWidget *window, const char *name)
{
    return window->findChild<QPushButton *>(QLatin1StringView(name));
}

QString Spoken(QWidget *window)
{
    return window->findChild<CSpokenText *>()->accessibleName();
}

}

class GamePlayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contest()
    {
        Game game;
        game.quizChallenge.players = u"Anna"_s;
        QTimer::singleShot(0, this, [] {
            auto *setup = FindWindow<CContestSetupDialog>();
            QVERIFY(setup != nullptr && !Button(setup, "startButton")->isEnabled());
            auto *name = setup->findChild<QLineEdit *>(u"name"_s);
            QTest::keyClicks(name, u"anna"_s);
            QTest::keyClick(name, Qt::Key_Return); // Taken: neither added nor a start.
            QVERIFY(setup->isVisible() && !Button(setup, "addButton")->isEnabled());
            name->clear();
            QTest::keyClicks(name, u"Bo"_s);
            QTest::keyClick(name, Qt::Key_Return);
            QCOMPARE(setup->findChild<QListWidget *>()->count(), 2);
            QTest::keyClick(name, Qt::Key_Return);
        });
        game.launch.startQuiz(QuizKind::WordContest);
        QCOMPARE(game.quizChallenge.players, u"Anna\nBo"_s);
        auto *window = FindWindow<CWordContestGame>();
        QVERIFY(window != nullptr && !game.host.shown);
        QApplication::setActiveWindow(window);
        auto *answer = window->findChild<QLineEdit *>(u"answer"_s);
        auto *begin = Button(window, "beginButton");
        auto *question = window->findChild<QPlainTextEdit *>(u"question"_s);
        QVERIFY(!question->toPlainText().contains(u"hund"_s));
        QCOMPARE(Spoken(window), u"Anna, det är din tur!"_s);
        QTest::keyClick(begin, Qt::Key_Space); // Typed on from before.
        QVERIFY(!begin->isHidden() && !answer->isVisible());
        game.wait();
        QTest::keyClick(begin, Qt::Key_Return);
        QVERIFY(question->toPlainText().contains(u"hund"_s) && answer->hasFocus());
        QTest::keyClicks(answer, u"dog"_s);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(Spoken(window), u"Rätt. Bo, det är din tur!"_s);
        auto *scores = window->findChild<QTreeWidget *>(u"scores"_s);
        QCOMPARE(scores->topLevelItem(0)->text(1), u"1"_s);

        game.wait(1h); // Nobody thinks.
        QTest::keyClick(begin, Qt::Key_Return);
        QVERIFY(question->toPlainText().contains(u"katt"_s));
        QTest::keyClicks(answer, u"cat"_s);
        game.wait(30s);
        QTest::keyClick(answer, Qt::Key_Return); // Too late.
        QCOMPARE(game.test.prompt.numbers, QList<int>{Text::TimeIsUp});

        auto *standing = FindWindow<CContestStandingDialog>();
        QVERIFY(standing != nullptr && FindWindow<CQuizResultDialog>() == nullptr);
        QVERIFY(Spoken(standing).startsWith(u"Fel. Vinnare: Anna"_s));
        QVERIFY(QTest::qWaitForWindowExposed(standing));
        auto *list = standing->findChild<QTreeWidget *>();
        QCOMPARE(list->topLevelItem(1)->text(1), u"Bo"_s);
        QTest::keyClick(list, Qt::Key_Return); // It has opened by itself.
        QVERIFY(standing->isVisible());
        game.wait();
        QTest::keyClick(list, Qt::Key_Return);
        auto *result = FindWindow<CQuizResultDialog>();
        QVERIFY(result != nullptr && game.host.shown);
        result->reject();
    }

    void noContest()
    {
        Game game;
        game.quizChallenge.players = u"A\nB"_s;
        QTimer::singleShot(0, this, [] {
            auto *setup = FindWindow<CContestSetupDialog>();
            Button(setup, "removeButton")->click();
            setup->reject();
        });
        game.launch.startQuiz(QuizKind::WordContest);
        QVERIFY(!game.launch.isRunning() && game.host.shown);
        QCOMPARE(game.quizChallenge.players, u"A\nB"_s);
    }

    void fallingWords()
    {
        Game game;
        game.settings.showAnswer = true;
        game.launch.startQuiz(QuizKind::FallingWords);
        auto *window = FindWindow<CFallingWordsGame>();
        QVERIFY(window != nullptr && QTest::qWaitForWindowActive(window));
        auto *answer = window->findChild<QLineEdit *>(u"answer"_s);
        auto *field = window->findChild<CPlayField *>();
        QCOMPARE(Spoken(window), u"hund"_s);
        QTest::keyClicks(answer, u"cat"_s);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(answer->selectedText(), u"cat"_s);
        QTest::keyClicks(answer, u"dog"_s);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(Spoken(window), u"Rätt. katt"_s);

        auto *speed = window->findChild<QSlider *>();
        speed->setValue(250);
        QCOMPARE(game.fallingWord.speed, 250);
        game.wait(1h);
        QTRY_COMPARE(field->accessibleDescription(), u"Rätt svar är: cat"_s);
        QVERIFY(window->isVisible()); // The line is to be read.
        QTest::keyClick(field, Qt::Key_A);
        game.wait();
        QVERIFY(window->isVisible());
        QTest::keyClick(field, Qt::Key_Shift);
        QVERIFY(window->isVisible());
        QTest::keyClick(field, Qt::Key_Escape); // There is nothing to give up.
        auto *result = FindWindow<CQuizResultDialog>();
        QVERIFY(result != nullptr);
        result->reject();
    }

    void fallingWordsPause()
    {
        Game game;
        game.launch.startQuiz(QuizKind::FallingWords);
        auto *window = FindWindow<CFallingWordsGame>();
        QApplication::setActiveWindow(window);
        auto *pause = Button(window, "pauseButton");
        auto *right = window->findChild<QLabel *>(u"rightText"_s);
        game.wait();
        pause->setFocus();
        QTest::keyClick(pause, Qt::Key_Return);
        QCOMPARE(pause->text(), u"Forts&ätt"_s);
        QCOMPARE(Spoken(window), u"Paus"_s);
        game.wait(1h);
        auto *answer = window->findChild<QLineEdit *>(u"answer"_s);
        QTest::keyClicks(answer, u"dog"_s);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(right->text(), u"0 rätt av 0."_s);
        pause->click();
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(right->text(), u"1 rätt av 1."_s);

        QWidget other;
        other.show();
        QApplication::setActiveWindow(&other);
        game.wait(1h);
        QApplication::setActiveWindow(window);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(right->text(), u"1 rätt av 1."_s);
        game.test.prompt.answers = {PromptAnswer::Yes};
        window->close();
        FindWindow<CQuizResultDialog>()->reject();
    }

    void memory()
    {
        Game game({u"hund|dog"_s});
        game.launch.startQuiz(QuizKind::Memory);
        auto *window = FindWindow<CMemoryGame>();
        QVERIFY(window != nullptr);
        QApplication::setActiveWindow(window);
        const auto card = [&](int number) {
            return window->findChild<QAbstractButton *>(u"card%1"_s.arg(number));
        };
        const QString place = u"Rad 1, kolumn 1, "_s;
        QVERIFY(card(0)->accessibleName().startsWith(place));
        QVERIFY(!card(0)->accessibleName().contains(u"hund"_s));
        QCOMPARE(QAccessible::queryAccessibleInterface(card(0))->role(), QAccessible::Button);
        QTest::keyClick(card(0), Qt::Key_Space); // Typed before the board was seen.
        QVERIFY(card(0)->accessibleName().startsWith(place));
        game.wait();
        QTest::keyClick(card(0), Qt::Key_Return);
        QVERIFY(card(0)->accessibleName() == u"Rad 1, kolumn 1: hund"_s
            || card(0)->accessibleName() == u"Rad 1, kolumn 1: dog"_s);
        QTest::keyClick(card(0), Qt::Key_Right);
        QTest::keyClick(card(0), Qt::Key_Down); // Whatever the form of the grid.
        QVERIFY(card(1)->hasFocus());
        QTest::keyClick(card(1), Qt::Key_Space);
        QCOMPARE(window->findChild<QLabel *>(u"moves"_s)->text(), u"1 drag"_s);
        QVERIFY(Spoken(window).startsWith(u"Rätt. "_s));
        game.wait(2s);
        QTRY_VERIFY(FindWindow<CQuizResultDialog>() != nullptr); // The game's own window is gone by then.
        FindWindow<CQuizResultDialog>()->reject();
    }
};

QTEST_MAIN(GamePlayTest)
#include "game_play_test.moc"
