// SPDX-License-Identifier: MIT
#include "games/ui/alternatives_game.h"
#include "games/ui/answer_button.h"
#include "games/ui/hangman_game.h"
#include "support/test_quiz.h"

namespace {

const QStringList Animals = {u"hund|dog"_s, u"katt|cat"_s, u"ko|cow"_s, u"get|goat"_s};

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
        CloseResult();
    }
    CAnswerButton *button(int digit) const
    {
        return window->findChild<CAnswerButton *>(u"answer%1"_s.arg(digit));
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
    QString word() const { return Find<QLabel>(window, "wordText")->text(); }
    void send(QEvent::Type type, int digit, Qt::KeyboardModifiers modifiers = {}, bool repeated = false) const
    {
        QKeyEvent event(type, Qt::Key_0 + digit, modifiers, QString::number(digit), repeated);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
};

}

class GameWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alternativesByKeys()
    {
        const Alternatives game;
        auto *spoken = game.window->findChild<CSpokenText *>();
        QVERIFY(spoken->accessibleName().startsWith(u"Vad heter \"hund\" på Engelska?\n1. "_s));
        QTest::keyClick(QApplication::focusWidget(), char('0' + game.digitOf("dog")));
        QVERIFY(spoken->accessibleName().startsWith(u"Rätt. Vad heter \"katt\" på Engelska?\n1. "_s));
        QTest::keyClick(QApplication::focusWidget(), char('0' + game.digitOf("cat")), Qt::KeypadModifier);
        // Enter presses what has the focus, and nothing else.
        auto *question = Find<QPlainTextEdit>(game.window, "question");
        question->setFocus();
        QTest::keyClick(question, Qt::Key_Return);
        QCOMPARE(game.word(), u"Glosa 3 av 4."_s);
        game.button(game.digitOf("cow"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::mouseClick(game.button(game.digitOf("goat")), Qt::LeftButton);
        QVERIFY(game.run.test.prompt.numbers.isEmpty());
        QCOMPARE(CloseResult(), u"Totalt 4 glosor. Av 4 svar är 4 rätt (100%)."_s);
    }

    void keysOfAlternatives()
    {
        Alternatives game;
        game.run.settings.showAnswer = false;
        const auto press = QEvent::KeyPress;
        const auto release = QEvent::KeyRelease;
        game.send(release, 1); // It was pressed elsewhere.
        game.send(press, 1, Qt::ControlModifier | Qt::AltModifier);
        game.send(release, 1);
        game.send(press, 5);
        game.send(release, 5);
        game.send(press, 2);
        game.send(press, 2, {}, true);
        game.send(release, 2, {}, true);
        QCOMPARE(game.word(), u"Glosa 1 av 4."_s); // Held down.
        game.send(press, 3);
        game.send(release, 2);
        game.send(release, 3); // Pressed for the word before.
        QCOMPARE(game.word(), u"Glosa 2 av 4."_s);

        game.send(press, 3);
        game.run.clock.step = {};
        game.send(release, 3);
        QCOMPARE(game.word(), u"Glosa 3 av 4."_s);
        game.send(press, 3); // Nobody has read the answers yet.
        QTest::mouseClick(game.button(1), Qt::LeftButton);
        game.run.clock.now += CInputGuard::Pause;
        game.send(release, 3);
        QCOMPARE(game.word(), u"Glosa 3 av 4."_s);
        QTest::mouseClick(game.button(1), Qt::LeftButton);
        QCOMPARE(game.word(), u"Glosa 4 av 4."_s);
    }

    void marksOfAlternatives()
    {
        Alternatives game;
        const auto marks = [&] {
            QString all;
            for (int digit = 1; digit <= 4; ++digit) {
                all += game.button(digit)->accessibleName().mid(3) + u':'
                    + game.button(digit)->accessibleDescription() + u' ';
            }
            return all;
        };
        QString seen;
        game.run.test.prompt.duringMessage = [&] { seen = marks(); };
        game.button(game.digitOf("cow"))->click();
        QVERIFY2(seen.contains(u"dog:Rätt "_s) && seen.contains(u"cow:Fel "_s) && seen.contains(u"cat: "_s),
            qPrintable(seen));
        QVERIFY(!marks().contains(u"Rätt"_s) && !marks().contains(u"Fel"_s));
    }

    void longAlternatives()
    {
        const QString term = u"ett långt svar "_s.repeated(40).trimmed();
        Alternatives game({u"a|"_s + term + u'1', u"b|"_s + term + u'2', u"c|"_s + term + u'3',
            u"d|"_s + u"x"_s.repeated(5000)});
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

    void hangman()
    {
        TestQuiz run;
        auto *window = run.Start<CHangmanGame>(QuizKind::Hangman);
        QVERIFY(window != nullptr);
        auto *word = Find<QPlainTextEdit>(window, "word");
        auto *guess = Find<QLineEdit>(window, "guess");
        auto *tried = Find<QLabel>(window, "tried");
        auto *spoken = window->findChild<CSpokenText *>();
        const auto type = [&](const char *letters) {
            QTest::keyClicks(guess, QString::fromUtf8(letters));
            QTest::keyClick(guess, Qt::Key_Return);
            return word->toPlainText();
        };
        QCOMPARE(spoken->accessibleName(), u"Vad heter \"hund\" på Engelska?\nstreck, streck, streck"_s);
        QCOMPARE(type("o1"), u"-o-"_s);
        QCOMPARE(spoken->accessibleName(), u"streck, o, streck"_s);
        QString seen;
        run.test.prompt.duringMessage = [&] { seen = word->toPlainText() + tried->text(); };
        QCOMPARE(type("dx"), u"---"_s); // Asked afresh.
        QCOMPARE(seen, u"do-Provade bokstäver: o, d, x (fel)"_s);
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::AnswerAfterSkip});
        QVERIFY(spoken->accessibleName().startsWith(u"Fel. Vad heter \"hund\""_s));
        type("dog");
        type("cat");
        QCOMPARE(run.test.prompt.numbers.size(), 1); // Right without a message.
        QCOMPARE(CloseResult(), u"Totalt 2 glosor. Av 3 svar är 2 rätt (67%)."_s);
    }
};

QTEST_MAIN(GameWindowsTest)
#include "game_windows_test.moc"
