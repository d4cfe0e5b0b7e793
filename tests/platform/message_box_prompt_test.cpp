// SPDX-License-Identifier: MIT
#include "platform/ui/message_box_prompt.h"
#include "platform/ui/wrapped_text.h"
#include "support/test.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// A window with two fields in which someone types, and a prompt over it whose clock stands still.
struct Window
{
    Window()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&first);
        layout->addWidget(&second);
        window.show();
        QApplication::setActiveWindow(&window);
        first.setFocus();
    }
    /// The box that is shown once a question is open.
    QMessageBox *Box() const { return window.findChild<QMessageBox *>(); }
    PromptAnswer Ask()
    {
        return prompt.Ask(text, PromptIcon::Question, PromptButtons::YesNo, PromptAnswer::Yes);
    }
    PromptAnswer AskTypist()
    {
        return prompt.AskTypist(text, PromptIcon::Question, PromptButtons::YesNo, PromptAnswer::Yes);
    }

    QWidget window;
    QLineEdit first{&window};
    QLineEdit second{&window};
    PromptText text = {1, u"<b>?"_s};
    CMessageBoxPrompt prompt{[] { return std::chrono::milliseconds(0); }};
};

}

class MessageBoxPromptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lettersChooseNothing()
    {
        Window run;
        bool open = false;
        QTimer::singleShot(0, &run.window, [&] {
            QMessageBox *const box = run.Box();
            const QKeySequence no = box->button(QMessageBox::No)->shortcut();
            QTest::keyClick(box, Qt::Key(no[0].key()));
            QTest::qWait(0);
            open = box->isVisible();
            QTest::keyClick(box, Qt::Key_Escape);
        });
        QCOMPARE(run.Ask(), PromptAnswer::No);
        QVERIFY(open);
    }

    void longTextsAreShownToTheirEnd()
    {
        Window run;
        QFont large = run.window.font();
        large.setPointSizeF(large.pointSizeF() * 2);
        run.window.setFont(large); // As the user may choose for quizzes.
        const QSize screen = run.window.screen()->availableSize();
        const QString word(130, u'w');
        for (const QString &text : {word, u"a word "_s.repeated(1200)}) {
            QTimer::singleShot(0, &run.window, [&] {
                QMessageBox *const box = run.Box();
                const auto *const shown = box->findChild<CWrappedText *>();
                QCOMPARE(box->font(), large);
                QCOMPARE(shown->text(), text);
                QVERIFY(box->height() <= screen.height() && box->width() <= screen.width());
                QVERIFY(box->rect().contains(box->button(QMessageBox::Ok)->geometry()));
                QVERIFY(shown->height() >= shown->heightForWidth(shown->width()));
                const QRect place = shown->geometry();
                QTest::keyClick(box, Qt::Key_PageDown);
                QCOMPARE(shown->geometry() != place, text != word); // What finds no room scrolls.
                QTest::keyClick(box, Qt::Key_Return);
            });
            run.prompt.Tell({1, text}, PromptIcon::PlainInformation);
        }
    }

    void typingGoesOn()
    {
        Window run;
        QObject::connect(&run.first, &QLineEdit::returnPressed, &run.window, [&] {
            QTimer::singleShot(0, &run.window, [&] {
                // Wherever the keys arrive, and an input method's text among them.
                QTest::keyClicks(&run.first, u"ny"_s);
                QTest::keyClick(run.Box(), Qt::Key_A);
                QInputMethodEvent composed;
                composed.setCommitString(u"é"_s);
                QApplication::sendEvent(&run.first, &composed);
                QTest::keyClick(&run.first, Qt::Key_Tab);
                QTest::keyClick(&run.first, Qt::Key_Z);
                QVERIFY(run.Box()->isVisible());
                QTest::mouseClick(run.Box()->button(QMessageBox::Yes), Qt::LeftButton);
            });
            QCOMPARE(run.AskTypist(), PromptAnswer::Yes);
            QVERIFY(run.prompt.TypingGoesOn());
            run.first.clear();
        });
        QSignalSpy again(&run.second, &QLineEdit::returnPressed);
        QTest::keyClick(&run.first, Qt::Key_Return);
        QApplication::setActiveWindow(&run.window); // As a window manager does.
        QTest::keyClick(&run.first, Qt::Key_Q); // Typed before the others went on.
        QCOMPARE(run.first.text(), QString());
        QTRY_VERIFY(!run.prompt.TypingGoesOn());
        QCOMPARE(run.first.text(), u"nyaé"_s);
        QCOMPARE(run.second.text(), u"zq"_s);
        QCOMPARE(again.count(), 0); // What opened the question is not typed once more.
    }
};

QTEST_MAIN(MessageBoxPromptTest)
#include "message_box_prompt_test.moc"
