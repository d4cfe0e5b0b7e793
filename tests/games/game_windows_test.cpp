// SPDX-License-Identifier: MIT
#include "games/ui/alternatives_game.h"
#include "games/ui/answer_button.h"
#include "games/ui/hangman_game.h"
#include "platform/input_guard.h"
#include "platform/ui/spoken_text.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "support/test_quiz.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

class GameWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alternativesByKeys();
    void keysOfAlternatives();
    void marksOfAlternatives();
    void longAlternatives();
    void hangman();
};

namespace {

const QStringList Animals = {QStringLiteral("hund|dog"), QStringLiteral("katt|cat"), QStringLiteral("ko|cow"),
    QStringLiteral("get|goat")};

struct Alternatives
{
    TestQuiz run;
    CAlternativesGame *window = nullptr;

    explicit Alternatives(const QStringList &entries = Animals) : run(entries)
    {
        run.settings.requiz = Requiz::None;
        run.launch.startQuiz(QuizKind::Alternatives);
        window = FindWindow<CAlternativesGame>();
        QApplication::setActiveWindow(window);
    }
    ~Alternatives()
    {
        if (FindWindow<CAlternativesGame>() != nullptr) {
            run.test.prompt.answers = {PromptAnswer::Yes};
            window->close();
        }
        if (auto *const result = FindWindow<CQuizResultDialog>()) {
            result->reject();
        }
    }
    CAnswerButton *button(int digit) const
    {
        return window->findChild<CAnswerButton *>(QStringLiteral("answer%1").arg(digit));
    }
    /// The digit of an answer.
    int digitOf(const char *answer) const
    {
        for (int digit = 1; digit <= 4; ++digit) {
            if (button(digit)->accessibleName().mid(3) == QLatin1StringView(answer)) {
                return digit;
            }
        }
        return 0;
    }
    QString word() const { return window->findChild<QLabel *>(QStringLiteral("wordText"))->text(); }
    void send(QEvent::Type type, int digit, Qt::KeyboardModifiers modifiers = {}, bool repeated = false) const
    {
        QKeyEvent event(type, Qt::Key_0 + digit, modifiers, QString::number(digit), repeated);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
};

}

void GameWindowsTest::alternativesByKeys()
{
    const Alternatives game;
    auto *spoken = game.window->findChild<CSpokenText *>();
    QVERIFY(spoken->accessibleName().startsWith(QStringLiteral("Vad heter \"hund\" på Engelska?\n1. ")));
    QTest::keyClick(QApplication::focusWidget(), char('0' + game.digitOf("dog")));
    QVERIFY(spoken->accessibleName().startsWith(QStringLiteral("Rätt. Vad heter \"katt\" på Engelska?\n1. ")));
    QTest::keyClick(QApplication::focusWidget(), char('0' + game.digitOf("cat")), Qt::KeypadModifier);
    // Enter presses what has the focus, and nothing else.
    auto *question = game.window->findChild<QPlainTextEdit *>(QStringLiteral("question"));
    question->setFocus();
    QTest::keyClick(question, Qt::Key_Return);
    QCOMPARE(game.word(), QStringLiteral("Glosa 3 av 4."));
    game.button(game.digitOf("cow"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::mouseClick(game.button(game.digitOf("goat")), Qt::LeftButton);
    auto *result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr && game.run.test.prompt.numbers.isEmpty());
    QCOMPARE(result->findChild<QLabel *>(QStringLiteral("summary"))->text(),
        QStringLiteral("Totalt 4 glosor. Av 4 svar är 4 rätt (100%)."));
}

void GameWindowsTest::keysOfAlternatives()
{
    Alternatives game;
    game.run.settings.showAnswer = false;
    const auto press = QEvent::KeyPress;
    const auto release = QEvent::KeyRelease;
    const QString first = game.word();
    game.send(release, 1); // It was pressed elsewhere.
    game.send(press, 1, Qt::ControlModifier | Qt::AltModifier);
    game.send(release, 1);
    game.send(press, 5);
    game.send(release, 5);
    game.send(press, 2);
    game.send(press, 2, {}, true);
    game.send(release, 2, {}, true);
    QCOMPARE(game.word(), first); // Held down.
    game.send(press, 3);
    game.send(release, 2);
    QCOMPARE(game.word(), QStringLiteral("Glosa 2 av 4."));
    game.send(release, 3); // Pressed for the word before.
    QCOMPARE(game.word(), QStringLiteral("Glosa 2 av 4."));

    game.send(press, 3);
    game.run.clock.step = {};
    game.send(release, 3);
    QCOMPARE(game.word(), QStringLiteral("Glosa 3 av 4."));
    game.send(press, 3); // Nobody has read the answers yet.
    QTest::mouseClick(game.button(1), Qt::LeftButton);
    game.run.clock.now += CInputGuard::Pause;
    game.send(release, 3);
    QCOMPARE(game.word(), QStringLiteral("Glosa 3 av 4."));
    QTest::mouseClick(game.button(1), Qt::LeftButton);
    QCOMPARE(game.word(), QStringLiteral("Glosa 4 av 4."));
}

void GameWindowsTest::marksOfAlternatives()
{
    Alternatives game;
    const auto marks = [&] {
        QString all;
        for (int digit = 1; digit <= 4; ++digit) {
            CAnswerButton *const button = game.button(digit);
            all += button->accessibleName().mid(3) + u':' + button->accessibleDescription() + u' ';
        }
        return all;
    };
    QString seen;
    game.run.test.prompt.duringMessage = [&] { seen = marks(); };
    game.button(game.digitOf("cow"))->click();
    QVERIFY2(seen.contains(QStringLiteral("dog:Rätt ")) && seen.contains(QStringLiteral("cow:Fel "))
            && seen.contains(QStringLiteral("cat: ")),
        qPrintable(seen));
    QVERIFY(!marks().contains(QStringLiteral("Rätt")) && !marks().contains(QStringLiteral("Fel")));
}

void GameWindowsTest::longAlternatives()
{
    const QString term = QStringLiteral("ett långt svar ").repeated(40).trimmed();
    Alternatives game({QStringLiteral("a|") + term + u'1', QStringLiteral("b|") + term + u'2',
        QStringLiteral("c|") + term + u'3', QStringLiteral("d|") + QStringLiteral("x").repeated(5000)});
    for (const QSize size : {QSize(500, 400), QSize(900, 800)}) {
        game.window->resize(size);
        QApplication::processEvents();
        for (int digit = 1; digit <= 4; ++digit) {
            CAnswerButton *const button = game.button(digit);
            QVERIFY(button->height() >= button->heightForWidth(button->width()));
            QVERIFY(button->width() <= size.width());
        }
    }
}

void GameWindowsTest::hangman()
{
    TestQuiz run;
    run.launch.startQuiz(QuizKind::Hangman);
    auto *window = FindWindow<CHangmanGame>();
    QVERIFY(window != nullptr);
    auto *word = window->findChild<QPlainTextEdit *>(QStringLiteral("word"));
    auto *guess = window->findChild<QLineEdit *>(QStringLiteral("guess"));
    auto *tried = window->findChild<QLabel *>(QStringLiteral("tried"));
    auto *spoken = window->findChild<CSpokenText *>();
    const auto type = [&](const char *letters) {
        QTest::keyClicks(guess, QString::fromUtf8(letters));
        QTest::keyClick(guess, Qt::Key_Return);
        return word->toPlainText();
    };
    QCOMPARE(
        spoken->accessibleName(), QStringLiteral("Vad heter \"hund\" på Engelska?\nstreck, streck, streck"));
    QCOMPARE(type("o1"), QStringLiteral("-o-"));
    QCOMPARE(spoken->accessibleName(), QStringLiteral("streck, o, streck"));
    QString seen;
    run.test.prompt.duringMessage = [&] { seen = word->toPlainText() + tried->text(); };
    QCOMPARE(type("dx"), QStringLiteral("---")); // Asked afresh.
    QCOMPARE(seen, QStringLiteral("do-Provade bokstäver: o, d, x (fel)"));
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::AnswerAfterSkip});
    QVERIFY(spoken->accessibleName().startsWith(QStringLiteral("Fel. Vad heter \"hund\"")));
    type("dog");
    type("cat");
    QCOMPARE(run.test.prompt.numbers.size(), 1); // Right without a message.
    auto *result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr);
    QCOMPARE(result->findChild<QLabel *>(QStringLiteral("summary"))->text(),
        QStringLiteral("Totalt 2 glosor. Av 3 svar är 2 rätt (67%)."));
    result->reject();
}

QTEST_MAIN(GameWindowsTest)
#include "game_windows_test.moc"
