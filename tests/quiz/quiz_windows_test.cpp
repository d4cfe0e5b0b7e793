// SPDX-License-Identifier: MIT
#include "platform/ui/input_guard_filter.h"
#include "platform/ui/spoken_text.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "support/test_quiz.h"

#include <QAccessible>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

class QuizWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuizByKeyboard();
    void cancelling();
    void nothingToAsk();
    void buttonsByKeyboard();
    void hastyInput();
    void hastyInputInAMessage();
    void lastAnswerIsSeenAndHeard();
};

void QuizWindowsTest::wholeQuizByKeyboard()
{
    TestQuiz run;
    run.launch.startQuiz(QuizKind::Standard);
    auto *window = FindWindow<CStandardQuiz>();
    QVERIFY(window != nullptr && !run.host.shown);
    auto *answer = window->findChild<QLineEdit *>(QStringLiteral("answer"));
    auto *question = window->findChild<QPlainTextEdit *>(QStringLiteral("question"));
    const auto statistics = [&] {
        return window->findChild<QLabel *>(QStringLiteral("wordText"))->text() + u' '
            + window->findChild<QLabel *>(QStringLiteral("rightText"))->text();
    };
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const bool input = qobject_cast<const QLineEdit *>(widget) != nullptr
            || qobject_cast<const QPlainTextEdit *>(widget) != nullptr
            || qobject_cast<const QProgressBar *>(widget) != nullptr;
        QVERIFY2(!input || !widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    QCOMPARE(question->toPlainText(), QStringLiteral("Vad heter \"hund\" på Engelska?"));
    QCOMPARE(statistics(), QStringLiteral("Glosa 1 av 2. 0 rätt av 0."));

    QTest::keyClicks(answer, QStringLiteral("cat"));
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::AnswerAfterWrong});
    QCOMPARE(answer->text(), QString());
    QCOMPARE(question->toPlainText(), QStringLiteral("Vad heter \"hund\" på Engelska?"));
    QTest::keyClicks(answer, QStringLiteral("dog"));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QApplication::sendEvent(answer, &held); // Held since it closed the message: not an answer.
    QCOMPARE(statistics(), QStringLiteral("Glosa 1 av 2. 0 rätt av 1."));
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(statistics(), QStringLiteral("Glosa 2 av 2. 1 rätt av 2."));
    QTest::keyClicks(answer, QStringLiteral("cat"));
    QTest::keyClick(question, Qt::Key_Return); // Enter answers wherever the focus is.

    QVERIFY(run.host.shown);
    auto *result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr);
    QCOMPARE(result->findChild<QLabel *>(QStringLiteral("summary"))->text(),
        QStringLiteral("Totalt 2 glosor. Av 3 svar är 2 rätt (67%)."));
    result->accept();
    QVERIFY(!run.launch.isRunning());
    QCOMPARE(run.host.selected, (std::vector<int>{0, 1}));
}

void QuizWindowsTest::cancelling()
{
    TestQuiz run;
    run.launch.startQuiz(QuizKind::Standard);
    auto *window = FindWindow<CStandardQuiz>();
    QVERIFY(window != nullptr);
    run.test.prompt.answers = {PromptAnswer::No, PromptAnswer::Yes};
    QTest::keyClick(window, Qt::Key_Escape);
    QVERIFY(window->isVisible());
    window->close();
    QVERIFY(!window->isVisible());
    QCOMPARE(run.test.prompt.numbers, QList<int>(2, Text::ReallyEndQuiz));
    QVERIFY(run.host.shown && !run.launch.isRunning());
    QVERIFY(FindWindow<CQuizResultDialog>() == nullptr); // Nothing was answered.
}

void QuizWindowsTest::nothingToAsk()
{
    TestQuiz run{QStringList()};
    run.launch.startQuiz(QuizKind::Standard);
    QVERIFY(!run.launch.isRunning() && run.host.shown && FindWindow<CStandardQuiz>() == nullptr);
}

void QuizWindowsTest::buttonsByKeyboard()
{
    TestQuiz run;
    run.launch.startQuiz(QuizKind::Standard);
    auto *window = FindWindow<CStandardQuiz>();
    QApplication::setActiveWindow(window);
    auto *answer = window->findChild<QLineEdit *>(QStringLiteral("answer"));
    QTest::keyClick(answer, Qt::Key_F1);
    QCOMPARE(run.host.calls.last(), QStringLiteral("help quizzes"));
    auto *skip = window->findChild<QPushButton *>(QStringLiteral("skipButton"));
    skip->setFocus();
    QTest::keyClick(skip, Qt::Key_Return); // Not the default button, which would record an empty answer.
    QCOMPARE(window->findChild<QLabel *>(QStringLiteral("rightText"))->text(), QStringLiteral("0 rätt av 0."));
    QVERIFY(answer->hasFocus());
    auto *cancel = window->findChild<QPushButton *>(QStringLiteral("cancelButton"));
    run.test.prompt.answers = {PromptAnswer::No, PromptAnswer::Yes};
    cancel->setFocus();
    cancel->click();
    QVERIFY(answer->hasFocus());
    window->close();
}

void QuizWindowsTest::hastyInput()
{
    TestQuiz run({QStringLiteral("hund|dog"), QStringLiteral("katt|cat"), QStringLiteral("ko|cow")});
    run.settings.requiz = Requiz::None;
    run.settings.showAnswer = false;
    run.clock.step = {};
    run.launch.startQuiz(QuizKind::Standard);
    auto *window = FindWindow<CStandardQuiz>();
    auto *answer = window->findChild<QLineEdit *>(QStringLiteral("answer"));
    auto *skip = window->findChild<QPushButton *>(QStringLiteral("skipButton"));
    const auto word = [&] { return window->findChild<QLabel *>(QStringLiteral("wordText"))->text(); };
    run.clock.now += CInputGuard::Pause;
    QTest::mouseClick(skip, Qt::LeftButton);
    QTest::mouseDClick(skip, Qt::LeftButton); // It belongs to the same double click.
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(word(), QStringLiteral("Glosa 2 av 3."));
    QTest::keyClicks(answer, QStringLiteral("cat"));
    QTest::keyClick(answer, Qt::Key_Return); // What was typed is an answer.
    QCOMPARE(word(), QStringLiteral("Glosa 3 av 3."));
    run.clock.now += CInputGuard::Pause;
    QTest::keyClick(answer, Qt::Key_Return); // So is nothing, once the word was seen.

    auto *result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr);
    run.clock.now += CInputGuard::Pause;
    QVERIFY(QTest::qWaitForWindowExposed(result)); // The pause begins when it is painted.
    auto *list = result->findChild<QWidget *>(QStringLiteral("results"));
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

void QuizWindowsTest::hastyInputInAMessage()
{
    std::chrono::milliseconds now{0};
    CInputGuardFilter guard([&] { return now; });
    guard.NextDialogOpens();
    QMessageBox box(QMessageBox::Information, {}, QStringLiteral("x"), QMessageBox::Ok);
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

void QuizWindowsTest::lastAnswerIsSeenAndHeard()
{
    TestQuiz run({QStringLiteral("hund|dog|<i>"), QStringLiteral("katt|cat")});
    run.launch.startQuiz(QuizKind::Standard);
    auto *window = FindWindow<CStandardQuiz>();
    auto *answer = window->findChild<QLineEdit *>(QStringLiteral("answer"));
    auto *feedback = window->findChild<QTextEdit *>(QStringLiteral("feedback"));
    // Screen readers read out a notification.
    auto *spoken = window->findChild<CSpokenText *>();
    QCOMPARE(QAccessible::queryAccessibleInterface(spoken)->role(), QAccessible::Notification);
    const auto give = [&](const char *text) {
        answer->setText(QString::fromUtf8(text));
        QTest::keyClick(answer, Qt::Key_Return);
        return spoken->accessibleName();
    };
    QCOMPARE(spoken->accessibleName(), QStringLiteral("Vad heter \"hund\" på Engelska?"));
    QCOMPARE(feedback->toPlainText(), QString());
    QCOMPARE(give("cat"), QStringLiteral("Fel. Vad heter \"hund\" på Engelska?"));
    QCOMPARE(
        feedback->toPlainText(), QStringLiteral("Fel  hund – dog (<i>)\ncat → dog  Svaret hör till \"katt\""));
    run.settings.showAnswer = false; // Then what was right isn't shown beside it either.
    give("x");
    QCOMPARE(feedback->toPlainText(), QStringLiteral("Fel"));
    QCOMPARE(give("dog"), QStringLiteral("Rätt. Vad heter \"katt\" på Engelska?"));
    QCOMPARE(feedback->toPlainText(), QStringLiteral("Rätt"));
    run.test.prompt.answers = {PromptAnswer::Yes};
    window->close();
    FindWindow<CQuizResultDialog>()->reject();
}

QTEST_MAIN(QuizWindowsTest)
#include "quiz_windows_test.moc"
