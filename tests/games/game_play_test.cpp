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

using namespace std::chrono_literals;

namespace {

/// A quiz whose clock stands until a test sets it.
struct Game : TestQuiz
{
    explicit Game(const QStringList &entries = {QStringLiteral("hund|dog"), QStringLiteral("katt|cat")})
        : TestQuiz(entries)
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
    void contest();
    void noContest();
    void fallingWords();
    void fallingWordsPause();
    void memory();
};

void GamePlayTest::contest()
{
    Game game;
    game.quizChallenge.players = QStringLiteral("Anna");
    QTimer::singleShot(0, this, [] {
        auto *setup = FindWindow<CContestSetupDialog>();
        QVERIFY(setup != nullptr && !Button(setup, "startButton")->isEnabled());
        auto *name = setup->findChild<QLineEdit *>(QStringLiteral("name"));
        QTest::keyClicks(name, QStringLiteral("anna"));
        QTest::keyClick(name, Qt::Key_Return); // Taken: neither added nor a start.
        QVERIFY(setup->isVisible() && !Button(setup, "addButton")->isEnabled());
        name->clear();
        QTest::keyClicks(name, QStringLiteral("Bo"));
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(setup->findChild<QListWidget *>()->count(), 2);
        QTest::keyClick(name, Qt::Key_Return);
    });
    game.launch.startQuiz(QuizKind::WordContest);
    QCOMPARE(game.quizChallenge.players, QStringLiteral("Anna\nBo"));
    auto *window = FindWindow<CWordContestGame>();
    QVERIFY(window != nullptr && !game.host.shown);
    QApplication::setActiveWindow(window);
    auto *answer = window->findChild<QLineEdit *>(QStringLiteral("answer"));
    auto *begin = Button(window, "beginButton");
    auto *question = window->findChild<QPlainTextEdit *>(QStringLiteral("question"));
    QVERIFY(!question->toPlainText().contains(QStringLiteral("hund")));
    QCOMPARE(Spoken(window), QStringLiteral("Anna, det är din tur!"));
    QTest::keyClick(begin, Qt::Key_Space); // Typed on from before.
    QVERIFY(!begin->isHidden() && !answer->isVisible());
    game.wait();
    QTest::keyClick(begin, Qt::Key_Return);
    QVERIFY(question->toPlainText().contains(QStringLiteral("hund")) && answer->hasFocus());
    QTest::keyClicks(answer, QStringLiteral("dog"));
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(Spoken(window), QStringLiteral("Rätt. Bo, det är din tur!"));
    auto *scores = window->findChild<QTreeWidget *>(QStringLiteral("scores"));
    QCOMPARE(scores->topLevelItem(0)->text(1), QStringLiteral("1"));

    game.wait(1h); // Nobody thinks.
    QTest::keyClick(begin, Qt::Key_Return);
    QVERIFY(question->toPlainText().contains(QStringLiteral("katt")));
    QTest::keyClicks(answer, QStringLiteral("cat"));
    game.wait(30s);
    QTest::keyClick(answer, Qt::Key_Return); // Too late.
    QCOMPARE(game.test.prompt.numbers, QList<int>{Text::TimeIsUp});

    auto *standing = FindWindow<CContestStandingDialog>();
    QVERIFY(standing != nullptr && FindWindow<CQuizResultDialog>() == nullptr);
    QVERIFY(Spoken(standing).startsWith(QStringLiteral("Fel. Vinnare: Anna")));
    QVERIFY(QTest::qWaitForWindowExposed(standing));
    auto *list = standing->findChild<QTreeWidget *>();
    QCOMPARE(list->topLevelItem(1)->text(1), QStringLiteral("Bo"));
    QTest::keyClick(list, Qt::Key_Return); // It has opened by itself.
    QVERIFY(standing->isVisible());
    game.wait();
    QTest::keyClick(list, Qt::Key_Return);
    auto *result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr && game.host.shown);
    result->reject();
}

void GamePlayTest::noContest()
{
    Game game;
    game.quizChallenge.players = QStringLiteral("A\nB");
    QTimer::singleShot(0, this, [] {
        auto *setup = FindWindow<CContestSetupDialog>();
        Button(setup, "removeButton")->click();
        setup->reject();
    });
    game.launch.startQuiz(QuizKind::WordContest);
    QVERIFY(!game.launch.isRunning() && game.host.shown);
    QCOMPARE(game.quizChallenge.players, QStringLiteral("A\nB"));
}

void GamePlayTest::fallingWords()
{
    Game game;
    game.settings.showAnswer = true;
    game.launch.startQuiz(QuizKind::FallingWords);
    auto *window = FindWindow<CFallingWordsGame>();
    QVERIFY(window != nullptr && QTest::qWaitForWindowActive(window));
    auto *answer = window->findChild<QLineEdit *>(QStringLiteral("answer"));
    auto *field = window->findChild<CPlayField *>();
    QCOMPARE(Spoken(window), QStringLiteral("hund"));
    QTest::keyClicks(answer, QStringLiteral("cat"));
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(answer->selectedText(), QStringLiteral("cat"));
    QTest::keyClicks(answer, QStringLiteral("dog"));
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(Spoken(window), QStringLiteral("Rätt. katt"));

    auto *speed = window->findChild<QSlider *>();
    speed->setValue(250);
    QCOMPARE(game.fallingWord.speed, 250);
    game.wait(1h);
    QTRY_COMPARE(field->accessibleDescription(), QStringLiteral("Rätt svar är: cat"));
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

void GamePlayTest::fallingWordsPause()
{
    Game game;
    game.launch.startQuiz(QuizKind::FallingWords);
    auto *window = FindWindow<CFallingWordsGame>();
    QApplication::setActiveWindow(window);
    auto *pause = Button(window, "pauseButton");
    auto *right = window->findChild<QLabel *>(QStringLiteral("rightText"));
    game.wait();
    pause->setFocus();
    QTest::keyClick(pause, Qt::Key_Return);
    QCOMPARE(pause->text(), QStringLiteral("Forts&ätt"));
    game.wait(1h);
    auto *answer = window->findChild<QLineEdit *>(QStringLiteral("answer"));
    QTest::keyClicks(answer, QStringLiteral("dog"));
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(right->text(), QStringLiteral("0 rätt av 0."));
    pause->click();
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(right->text(), QStringLiteral("1 rätt av 1."));

    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    game.wait(1h);
    QApplication::setActiveWindow(window);
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(right->text(), QStringLiteral("1 rätt av 1."));
    game.test.prompt.answers = {PromptAnswer::Yes};
    window->close();
    FindWindow<CQuizResultDialog>()->reject();
}

void GamePlayTest::memory()
{
    Game game({QStringLiteral("hund|dog")});
    game.launch.startQuiz(QuizKind::Memory);
    auto *window = FindWindow<CMemoryGame>();
    QVERIFY(window != nullptr);
    QApplication::setActiveWindow(window);
    const auto card = [&](int number) {
        return window->findChild<QAbstractButton *>(QStringLiteral("card%1").arg(number));
    };
    const QString place = QStringLiteral("Rad 1, kolumn 1, ");
    QVERIFY(card(0)->accessibleName().startsWith(place));
    QVERIFY(!card(0)->accessibleName().contains(QStringLiteral("hund")));
    QCOMPARE(QAccessible::queryAccessibleInterface(card(0))->role(), QAccessible::Button);
    QTest::keyClick(card(0), Qt::Key_Space); // Typed before the board was seen.
    QVERIFY(card(0)->accessibleName().startsWith(place));
    game.wait();
    QTest::keyClick(card(0), Qt::Key_Return);
    QVERIFY(card(0)->accessibleName() == QStringLiteral("Rad 1, kolumn 1: hund")
        || card(0)->accessibleName() == QStringLiteral("Rad 1, kolumn 1: dog"));
    QTest::keyClick(card(0), Qt::Key_Right);
    QTest::keyClick(card(0), Qt::Key_Down); // Whatever the form of the grid.
    QVERIFY(card(1)->hasFocus());
    QTest::keyClick(card(1), Qt::Key_Space);
    QCOMPARE(window->findChild<QLabel *>(QStringLiteral("moves"))->text(), QStringLiteral("1 drag"));
    QVERIFY(Spoken(window).startsWith(QStringLiteral("Rätt. ")));
    game.wait(2s);
    QTRY_VERIFY(!window->isVisible());
    auto *result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr);
    result->reject();
}

QTEST_MAIN(GamePlayTest)
#include "game_play_test.moc"
