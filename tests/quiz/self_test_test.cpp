// SPDX-License-Identifier: MIT
#include "quiz/ui/self_test.h"
#include "support/test_quiz.h"

namespace {

/// The word on screen and the answer, if it is shown.
QString Shown(const QWidget &window)
{
    const auto text = [&](const char *name) {
        auto *const field = Find<QPlainTextEdit>(&window, name);
        return field->isVisible() ? field->toPlainText().replace(u'\n', u' ') : QString();
    };
    return text("question").section(u'"', 1, 1) + u' ' + text("answer");
}

}

class SelfTestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuiz()
    {
        TestQuiz run({u"a|x [1] * y"_s, u"b|<i>||1"_s, u"c|"_s, u"d|z"_s});
        auto *window = run.Start<CSelfTest>(QuizKind::SelfTest);
        QApplication::setActiveWindow(window);
        auto *spoken = window->findChild<CSpokenText *>();
        const auto enter = [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
        QCOMPARE(Shown(*window), u"a "_s);
        enter();
        QCOMPARE(Shown(*window), u"a Svar: x [1] * y"_s);
        QCOMPARE(spoken->accessibleName(), u"Svar:\r\nx [1] * y"_s);
        QVERIFY(Find<QPushButton>(window, "skipButton")->hasFocus()
            && !Find<QPushButton>(window, "answerButton")->isEnabled());
        Find<QPushButton>(window, "flagButton")->click();
        QCOMPARE(Shown(*window), u"b "_s);
        QVERIFY(Find<QPushButton>(window, "answerButton")->hasFocus());
        Find<QPushButton>(window, "flagButton")->click(); // It has its flag already.
        QCOMPARE(Shown(*window), u"c "_s);
        enter();
        QCOMPARE(Shown(*window), u"c Svar: "_s);
        enter();
        QCOMPARE(Shown(*window), u"d "_s);
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

    void hastyInput()
    {
        TestQuiz run;
        run.clock.step = {};
        auto *window = run.Start<CSelfTest>(QuizKind::SelfTest);
        QApplication::setActiveWindow(window);
        run.clock.now += CInputGuard::Pause;
        const auto press = [&](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
        press(Qt::Key_Return);
        press(Qt::Key_Return); // Shown and gone on, however fast.
        QCOMPARE(Shown(*window), u"<b>katt</b> "_s);
        press(Qt::Key_Return); // Nobody has read that word yet.
        press(Qt::Key_Space);
        QCOMPARE(Shown(*window), u"<b>katt</b> "_s);
        run.clock.now += CInputGuard::Pause;
        press(Qt::Key_Space);
        QCOMPARE(Shown(*window), u"<b>katt</b> Svar: cat"_s);
        press(Qt::Key_Space);
        QVERIFY(!run.launch.isRunning());
    }
};

QTEST_MAIN(SelfTestTest)
#include "self_test_test.moc"
