// SPDX-License-Identifier: MIT
#include "platform/input_guard.h"
#include "platform/ui/spoken_text.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "quiz/ui/self_test.h"
#include "support/test_quiz.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

class SelfTestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuiz();
    void hastyInput();
};

namespace {

/// The word on screen and the answer, if it is shown.
QString Shown(const QWidget &window)
{
    const auto text = [&](const char *name) {
        auto *const field = window.findChild<QPlainTextEdit *>(QLatin1StringView(name));
        return field->isVisible() ? field->toPlainText().replace(u'\n', u' ') : QString();
    };
    return text("question").section(u'"', 1, 1) + u' ' + text("answer");
}

QPushButton *Button(const QWidget &window, const char *name)
{
    return window.findChild<QPushButton *>(QLatin1StringView(name));
}

}

void SelfTestTest::wholeQuiz()
{
    TestQuiz run({QStringLiteral("a|x [1] * y"), QStringLiteral("b|<i>||1"), QStringLiteral("c|"),
        QStringLiteral("d|z")});
    run.launch.startQuiz(QuizKind::SelfTest);
    auto *window = FindWindow<CSelfTest>();
    QVERIFY(window != nullptr);
    QApplication::setActiveWindow(window);
    auto *spoken = window->findChild<CSpokenText *>();
    const auto enter = [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
    QCOMPARE(Shown(*window), QStringLiteral("a "));
    enter();
    QCOMPARE(Shown(*window), QStringLiteral("a Svar: x [1] * y"));
    QCOMPARE(spoken->accessibleName(), QStringLiteral("Svar:\r\nx [1] * y"));
    QVERIFY(Button(*window, "skipButton")->hasFocus() && !Button(*window, "answerButton")->isEnabled());
    Button(*window, "flagButton")->click();
    QCOMPARE(Shown(*window), QStringLiteral("b "));
    QVERIFY(Button(*window, "answerButton")->hasFocus());
    Button(*window, "flagButton")->click(); // It has its flag already.
    QCOMPARE(Shown(*window), QStringLiteral("c "));
    enter();
    QCOMPARE(Shown(*window), QStringLiteral("c Svar: "));
    enter();
    QCOMPARE(Shown(*window), QStringLiteral("d "));
    Button(*window, "flagButton")->click();

    QVERIFY(!run.launch.isRunning() && FindWindow<CQuizResultDialog>() == nullptr);
    CWin32Doc &document = run.test.document;
    const auto flags = [&] {
        QString set;
        for (int i = 0; i < document.List().Count(); ++i) {
            set += document.List().Entry(i).GetFlag(0) ? u'1' : u'0';
        }
        return set;
    };
    QCOMPARE(flags(), QStringLiteral("1101"));
    QVERIFY(document.IsModified());
    document.Undo(); // The whole quiz is one step.
    QCOMPARE(flags(), QStringLiteral("0100"));
}

void SelfTestTest::hastyInput()
{
    TestQuiz run;
    run.clock.step = {};
    run.launch.startQuiz(QuizKind::SelfTest);
    auto *window = FindWindow<CSelfTest>();
    QApplication::setActiveWindow(window);
    run.clock.now += CInputGuard::Pause;
    const auto press = [&](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    press(Qt::Key_Return);
    press(Qt::Key_Return); // Shown and gone on, however fast.
    QCOMPARE(Shown(*window), QStringLiteral("<b>katt</b> "));
    press(Qt::Key_Return); // Nobody has read that word yet.
    press(Qt::Key_Space);
    QCOMPARE(Shown(*window), QStringLiteral("<b>katt</b> "));
    run.clock.now += CInputGuard::Pause;
    press(Qt::Key_Space);
    QCOMPARE(Shown(*window), QStringLiteral("<b>katt</b> Svar: cat"));
    press(Qt::Key_Space);
    QVERIFY(!run.launch.isRunning());
}

QTEST_MAIN(SelfTestTest)
#include "self_test_test.moc"
