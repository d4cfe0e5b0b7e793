// SPDX-License-Identifier: MIT
#include "platform/ui/input_guard_filter.h"
#include "quiz/ui/standard_quiz.h"
#include "support/test_quiz.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QTextEdit>
#include <QWindow>

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
};

QTEST_MAIN(QuizWindowsTest)
#include "quiz_windows_test.moc"
