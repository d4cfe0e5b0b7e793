// SPDX-License-Identifier: MIT
#include "quiz/quiz_host.h"
#include "quiz/ui/quiz_launch.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "resources/text_numbers.h"
#include "settings/quiz_settings.h"
#include "support/test_document.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace {

class CTestHost : public IQuizHost
{
public:
    std::vector<int> SelectedEntries() const override { return {}; }
    void SelectEntries(const std::vector<int> &entries) override { selected = entries; }
    void ShowMainWindow(bool show) override { shown = show; }

    std::vector<int> selected;
    bool shown = true;
};

template<class Window>
Window *FindWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *window = qobject_cast<Window *>(widget);
        if (window != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// A launch over two words in list order, one round, wrong words again at once.
struct Launch
{
    TestDocument test{QStringList{QStringLiteral("hund|dog"), QStringLiteral("<b>katt</b>|cat")}};
    QuizSettings settings;
    CRandom random{1};
    CTestHost host;
    QWidget mainWindow;
    CQuizLaunch launch{test.document, {test.texts, test.prompt}, settings, random, host, mainWindow};

    Launch()
    {
        settings.order = 0;
        settings.quizNumber = 1;
        settings.includeFlaggedWords = 1;
        mainWindow.show();
        launch.startQuiz();
    }
};

}

class QuizWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuizByKeyboard();
    void cancelling();
    void nothingToAsk();
};

void QuizWindowsTest::wholeQuizByKeyboard()
{
    Launch run;
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
    QTest::keyClick(answer, Qt::Key_Return);
    QCOMPARE(statistics(), QStringLiteral("Glosa 2 av 2. 1 rätt av 2."));
    QTest::keyClicks(answer, QStringLiteral("cat"));
    QTest::keyClick(answer, Qt::Key_Return);

    QVERIFY(run.host.shown);
    auto *result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr);
    QCOMPARE(result->findChild<QLabel *>(QStringLiteral("summary"))->text(),
        QStringLiteral("Totalt 2 glosor. Av 3 svar är 2 rätt (67%)."));
    auto *rows = result->findChild<QTreeWidget *>(QStringLiteral("results"));
    QCOMPARE(rows->topLevelItem(0)->text(2), QStringLiteral("1 av 2 (50%)"));
    QCOMPARE(rows->topLevelItem(0)->text(3), QStringLiteral("\"cat\""));
    result->accept();
    QVERIFY(!run.launch.isRunning());
    QCOMPARE(run.host.selected, (std::vector<int>{0, 1}));
}

void QuizWindowsTest::cancelling()
{
    Launch run;
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
    TestDocument test;
    QuizSettings settings;
    CRandom random(1);
    CTestHost host;
    QWidget mainWindow;
    CQuizLaunch launch(test.document, {test.texts, test.prompt}, settings, random, host, mainWindow);
    launch.startQuiz();
    QVERIFY(!launch.isRunning() && host.shown && FindWindow<CStandardQuiz>() == nullptr);
}

QTEST_MAIN(QuizWindowsTest)
#include "quiz_windows_test.moc"
