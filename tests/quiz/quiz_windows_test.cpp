// SPDX-License-Identifier: MIT
#include "platform/ui/input_guard_filter.h"
#include "quiz/ui/self_test.h"
#include "quiz/ui/standard_quiz.h"
#include "support/test_quiz.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QTextEdit>
#include <QWindow>

namespace {

/// The word on screen and the answer, if it is shown.
QString ShownWord(const QWidget &window)
{
    const auto text = [&](const char *name) {
        auto *const field = Find<QPlainTextEdit>(&window, name);
        return field->isVisible() ? field->toPlainText().replace(u'\n', u' ') : QString();
    };
    return text("question").section(u'"', 1, 1) + u' ' + text("answer");
}

}

class QuizWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuizByKeyboard()
    {
        TestQuiz run;
        auto *window = run.Start<CStandardQuiz>();
        QVERIFY(window != nullptr && !run.host.shown);
        auto *answer = Find<QLineEdit>(window, "answer");
        auto *question = Find<QPlainTextEdit>(window, "question");
        const auto statistics = [&] {
            return Find<QLabel>(window, "wordText")->text() + u' ' + Find<QLabel>(window, "rightText")->text();
        };
        VerifyAccessibleNames(window);
        QCOMPARE(question->toPlainText(), u"Vad heter \"hund\" på Engelska?"_s);
        QCOMPARE(statistics(), u"Glosa 1 av 2. 0 rätt av 0."_s);

        QTest::keyClicks(answer, u"cat"_s);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::AnswerAfterWrong});
        QCOMPARE(answer->text(), QString());
        QCOMPARE(question->toPlainText(), u"Vad heter \"hund\" på Engelska?"_s);
        QTest::keyClicks(answer, u"dog"_s);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
        QApplication::sendEvent(window->windowHandle(), &held); // Since it closed the message: not an answer.
        QCOMPARE(statistics(), u"Glosa 1 av 2. 0 rätt av 1."_s);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(statistics(), u"Glosa 2 av 2. 1 rätt av 2."_s);
        QTest::keyClicks(answer, u"cat"_s);
        QTest::keyClick(question, Qt::Key_Return); // Enter answers wherever the focus is.

        QVERIFY(run.host.shown);
        auto *result = FindWindow<CQuizResultDialog>();
        QCOMPARE(Find<QLabel>(result, "summary")->text(), u"Totalt 2 glosor. Av 3 svar är 2 rätt (67%)."_s);
        result->accept();
        QVERIFY(!run.launch.isRunning());
        QCOMPARE(run.host.selected, (std::vector<int>{0, 1}));
    }

    void buttonsAndCancelling()
    {
        TestQuiz run;
        auto *window = run.Start<CStandardQuiz>();
        QApplication::setActiveWindow(window);
        auto *answer = Find<QLineEdit>(window, "answer");
        QTest::keyClick(answer, Qt::Key_F1);
        QCOMPARE(run.host.calls.last(), u"help quizzes"_s);
        auto *skip = Find<QPushButton>(window, "skipButton");
        skip->setFocus();
        QTest::keyClick(skip, Qt::Key_Return); // Not the default button, which would record an empty answer.
        QCOMPARE(Find<QLabel>(window, "rightText")->text(), u"0 rätt av 0."_s);
        QVERIFY(answer->hasFocus());

        auto *cancel = Find<QPushButton>(window, "cancelButton");
        run.test.prompt.answers = {PromptAnswer::No, PromptAnswer::No, PromptAnswer::Yes};
        cancel->setFocus();
        cancel->click();
        QVERIFY(answer->hasFocus());
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(window->isVisible());
        window->close();
        QVERIFY(!window->isVisible());
        QCOMPARE(run.test.prompt.numbers, QList<int>(3, Text::ReallyEndQuiz));
        QVERIFY(run.host.shown && !run.launch.isRunning());
        QVERIFY(FindWindow<CQuizResultDialog>() == nullptr); // Nothing was answered.
    }

    void hastyInput()
    {
        TestQuiz run(u"hund|dog,katt|cat,ko|cow"_s);
        run.settings.requiz = Requiz::None;
        run.settings.showAnswer = false;
        run.clock.step = {};
        auto *window = run.Start<CStandardQuiz>();
        auto *answer = Find<QLineEdit>(window, "answer");
        auto *skip = Find<QPushButton>(window, "skipButton");
        const auto word = [&] { return Find<QLabel>(window, "wordText")->text(); };
        run.clock.now += CInputGuard::Pause;
        QTest::mouseClick(skip, Qt::LeftButton);
        QTest::mouseDClick(skip, Qt::LeftButton); // It belongs to the same double click.
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(word(), u"Glosa 2 av 3."_s);
        QTest::keyClicks(answer, u"cat"_s);
        QTest::keyClick(answer, Qt::Key_Return); // What was typed is an answer.
        QCOMPARE(word(), u"Glosa 3 av 3."_s);
        run.clock.now += CInputGuard::Pause;
        QTest::keyClick(answer, Qt::Key_Return); // So is nothing, once the word was seen.

        auto *result = FindWindow<CQuizResultDialog>();
        run.clock.now += CInputGuard::Pause;
        QVERIFY(QTest::qWaitForWindowExposed(result)); // The pause begins when it is painted.
        auto *list = Find<QWidget>(result, "results");
        auto *ok = result->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
        QTest::keyClick(list, Qt::Key_Return);
        QTest::keyClick(list, Qt::Key_Escape);
        QTest::mouseClick(ok, Qt::LeftButton);
        QVERIFY(result->isVisible());
        QVERIFY(!run.test.document.IsModified());
        run.clock.now += CInputGuard::Pause;
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(!run.launch.isRunning() && run.test.document.IsModified());
    }

    void hastyInputInAMessage()
    {
        std::chrono::milliseconds now{0};
        CInputGuardFilter guard([&] { return now; });
        guard.NextDialogOpens();
        QMessageBox box(QMessageBox::Information, {}, u"x"_s, QMessageBox::Ok);
        box.open();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space}) {
            QTest::keyClick(box.button(QMessageBox::Ok), key);
            QVERIFY(box.isVisible());
        }
        now += CInputGuard::Pause;
        QTest::keyClick(box.button(QMessageBox::Ok), Qt::Key_Return);
        QVERIFY(!box.isVisible());
    }

    void lastAnswerIsSeenAndHeard()
    {
        TestQuiz run(u"hund|dog|<i>,katt|cat"_s);
        auto *window = run.Start<CStandardQuiz>();
        auto *answer = Find<QLineEdit>(window, "answer");
        auto *feedback = Find<QTextEdit>(window, "feedback");
        // Screen readers read out a notification.
        auto *spoken = window->findChild<CSpokenText *>();
        QCOMPARE(QAccessible::queryAccessibleInterface(spoken)->role(), QAccessible::Notification);
        const auto give = [&](const char *text) {
            answer->setText(QString::fromUtf8(text));
            QTest::keyClick(answer, Qt::Key_Return);
            return spoken->accessibleName();
        };
        QCOMPARE(spoken->accessibleName(), u"Vad heter \"hund\" på Engelska?"_s);
        QCOMPARE(feedback->toPlainText(), QString());
        QCOMPARE(give("cat"), u"Fel. Vad heter \"hund\" på Engelska?"_s);
        QCOMPARE(feedback->toPlainText(), u"Fel  hund – dog (<i>)\ncat → dog  Svaret hör till \"katt\""_s);
        run.settings.showAnswer = false; // Then what was right isn't shown beside it either.
        give("x");
        QCOMPARE(feedback->toPlainText(), u"Fel"_s);
        QCOMPARE(give("dog"), u"Rätt. Vad heter \"katt\" på Engelska?"_s);
        QCOMPARE(feedback->toPlainText(), u"Rätt"_s);
        run.test.prompt.answers = {PromptAnswer::Yes};
        window->close();
        CloseResult();
    }

    void selfTest()
    {
        TestQuiz run({u"a|x [1] * y"_s, u"b|<i>||1"_s, u"c|"_s, u"d|z"_s});
        auto *window = run.Start<CSelfTest>(QuizKind::SelfTest);
        QApplication::setActiveWindow(window);
        auto *spoken = window->findChild<CSpokenText *>();
        const auto enter = [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
        QCOMPARE(ShownWord(*window), u"a "_s);
        enter();
        QCOMPARE(ShownWord(*window), u"a Svar: x [1] * y"_s);
        QCOMPARE(spoken->accessibleName(), u"Svar:\r\nx [1] * y"_s);
        QVERIFY(Find<QPushButton>(window, "skipButton")->hasFocus()
            && !Find<QPushButton>(window, "answerButton")->isEnabled());
        Find<QPushButton>(window, "flagButton")->click();
        QCOMPARE(ShownWord(*window), u"b "_s);
        QVERIFY(Find<QPushButton>(window, "answerButton")->hasFocus());
        Find<QPushButton>(window, "flagButton")->click(); // It has its flag already.
        QCOMPARE(ShownWord(*window), u"c "_s);
        enter();
        QCOMPARE(ShownWord(*window), u"c Svar: "_s);
        enter();
        QCOMPARE(ShownWord(*window), u"d "_s);
        Find<QPushButton>(window, "flagButton")->click();

        QVERIFY(!run.launch.isRunning() && FindWindow<CQuizResultDialog>() == nullptr);
        CWin32Doc &document = run.test.document;
        const auto flags = [&] {
            QString set;
            for (int i = 0; i < document.List().Count(); ++i) {
                set += document.List().Entry(i).GetFlag(0) ? u'1' : u'0';
            }
            return set;
        };
        QCOMPARE(flags(), u"1101"_s);
        QVERIFY(document.IsModified());
        document.Undo(); // The whole quiz is one step.
        QCOMPARE(flags(), u"0100"_s);
    }

    void hastyInputInTheSelfTest()
    {
        TestQuiz run;
        run.clock.step = {};
        auto *window = run.Start<CSelfTest>(QuizKind::SelfTest);
        QApplication::setActiveWindow(window);
        run.clock.now += CInputGuard::Pause;
        const auto press = [&](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
        press(Qt::Key_Return);
        press(Qt::Key_Return); // ShownWord and gone on, however fast.
        QCOMPARE(ShownWord(*window), u"<b>katt</b> "_s);
        press(Qt::Key_Return); // Nobody has read that word yet.
        press(Qt::Key_Space);
        QCOMPARE(ShownWord(*window), u"<b>katt</b> "_s);
        run.clock.now += CInputGuard::Pause;
        press(Qt::Key_Space);
        QCOMPARE(ShownWord(*window), u"<b>katt</b> Svar: cat"_s);
        press(Qt::Key_Space);
        QVERIFY(!run.launch.isRunning());
    }
};

QTEST_MAIN(QuizWindowsTest)
#include "quiz_windows_test.moc"
