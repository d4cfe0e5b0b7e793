// SPDX-License-Identifier: MIT
#include "quiz/text_numbers.h"
#include "quiz/ui/change_entry_dialog.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "support/test_quiz.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// Types an answer into the quiz on screen and confirms it.
void Answer(const char *text)
{
    auto *const field = FindWindow<CStandardQuiz>()->findChild<QLineEdit *>(QStringLiteral("answer"));
    QTest::keyClicks(field, QLatin1StringView(text));
    QTest::keyClick(field, Qt::Key_Return);
}

void GiveUp(TestQuiz &run)
{
    run.test.prompt.answers = {PromptAnswer::Yes};
    FindWindow<CStandardQuiz>()->reject();
}

}

class QuizLaunchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void questionAboutDuplicates_data();
    void questionAboutDuplicates();
    void tooFewEntries();
    void noRounds();
    void callsInOrder();
    void sizesAreRemembered();
    void changingAnEntry();
    void changesNotAllowed();
    void sounds();
};

void QuizLaunchTest::questionAboutDuplicates_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<bool>("check");
    QTest::addColumn<int>("limit");
    QTest::addColumn<bool>("asked");
    const QStringList twice = {QStringLiteral("a * b|c"), QStringLiteral("d|e"), QStringLiteral("b|f")};
    QTest::newRow("duplicates") << twice << true << 4 << true;
    QTest::newRow("none") << twice.mid(0, 2) << true << 1000 << false;
    QTest::newRow("switched off") << twice << false << 1000 << false;
    QTest::newRow("as many as the limit") << twice << true << 3 << false;
}

void QuizLaunchTest::questionAboutDuplicates()
{
    QFETCH(const QStringList, entries);
    QFETCH(const bool, check);
    QFETCH(const int, limit);
    QFETCH(const bool, asked);
    const QList<int> questions = asked ? QList<int>{Text::DuplicatesBeforeQuiz} : QList<int>();
    for (const PromptAnswer answer : {PromptAnswer::No, PromptAnswer::Cancel, PromptAnswer::Yes}) {
        TestQuiz run(entries);
        run.test.settings.duplicateCheckBeforeQuiz = check;
        run.test.settings.duplilcateCheckBeforeQuizMax = limit;
        if (asked) {
            run.test.prompt.answers = {answer};
        }
        run.launch.startQuiz(QuizKind::Standard);
        QCOMPARE(run.test.prompt.numbers, questions);
        QCOMPARE(run.launch.isRunning(), !asked || answer == PromptAnswer::Yes);
        QCOMPARE(run.host.shown, !run.launch.isRunning());
    }
}

void QuizLaunchTest::tooFewEntries()
{
    TestQuiz run{QStringList()};
    run.launch.startQuiz(QuizKind::Standard);
    QVERIFY(!run.launch.isRunning());
    QVERIFY(FindWindow<CStandardQuiz>() == nullptr);
    QVERIFY(run.host.calls.isEmpty());

    TestQuiz withoutAnswers({QStringLiteral("hund|"), QStringLiteral("katt|")});
    withoutAnswers.launch.startQuiz(QuizKind::Standard);
    QCOMPARE(withoutAnswers.test.prompt.numbers, QList<int>{Text::NothingToAnswer});
    QVERIFY(!withoutAnswers.launch.isRunning() && withoutAnswers.host.shown);
}

void QuizLaunchTest::noRounds()
{
    TestQuiz run;
    run.settings.wordsToQuiz = WordsToQuiz::FixedNumber;
    run.settings.numberOfWords = 0;
    run.launch.startQuiz(QuizKind::Standard);
    QVERIFY(!run.launch.isRunning() && run.host.shown);
    run.settings.numberOfWords = 1;
    run.settings.quizNumber = 0;
    run.launch.startQuiz(QuizKind::Standard);
    QVERIFY(!run.launch.isRunning() && run.host.shown);
}

void QuizLaunchTest::callsInOrder()
{
    TestQuiz run;
    run.settings.wordsToQuiz = WordsToQuiz::Selected;
    run.host.selected = {1};
    run.launch.startQuiz(QuizKind::Standard);
    QCOMPARE(run.host.calls, QStringList{QStringLiteral("hide")});
    run.launch.startQuiz(QuizKind::Standard); // Runs already.
    QCOMPARE(run.host.calls.size(), 1);
    Answer("cat");
    QCOMPARE(run.host.calls.mid(1), QStringList{QStringLiteral("show")});
    auto *const result = FindWindow<CQuizResultDialog>();
    QVERIFY(result != nullptr);
    result->reject();
    QVERIFY(!run.launch.isRunning());
    // Nothing was changed, and flags are changed by OK alone.
    QCOMPARE(run.host.calls.mid(2), (QStringList{QStringLiteral("select"), QStringLiteral("focus")}));
    QCOMPARE(run.host.selected, std::vector<int>{1});
    QVERIFY(run.test.document.List().IsSaved());

    run.host.calls.clear();
    run.settings.showResult = false;
    run.settings.selectedTestedWordsAfterQuiz = false;
    run.launch.startQuiz(QuizKind::Standard);
    run.test.document.Change([&](CWordList &list) { list.SetEntryField(QStringLiteral("x"), 2, 0, false); });
    Answer("cat");
    QVERIFY(FindWindow<CQuizResultDialog>() == nullptr);
    QCOMPARE(run.host.calls.mid(1), (QStringList{QStringLiteral("show"), QStringLiteral("focus")}));
    // No question follows that it could be said with.
    QCOMPARE(run.mainWindow.findChild<QWidget *>(QStringLiteral("spokenText"))->accessibleName(),
        QStringLiteral("Rätt"));
}

void QuizLaunchTest::sizesAreRemembered()
{
    TestQuiz run;
    run.launch.startQuiz(QuizKind::Standard);
    const QSize own = FindWindow<CStandardQuiz>()->size();
    FindWindow<CStandardQuiz>()->resize(own + QSize(30, 40));
    GiveUp(run);
    QCOMPARE(run.windowSizes.windowWidth[0], own.width() + 30);
    QCOMPARE(run.windowSizes.windowHeight[0], own.height() + 40);
    QCOMPARE(run.windowSizes.windowWidth[1], 0);

    run.launch.startQuiz(QuizKind::Standard);
    QCOMPARE(FindWindow<CStandardQuiz>()->size(), own + QSize(30, 40));
    FindWindow<CStandardQuiz>()->showMaximized();
    GiveUp(run);
    QCOMPARE(run.windowSizes.windowWidth[0], own.width() + 30);

    run.windowSizes.windowWidth[0] = 30000;
    run.windowSizes.windowHeight[0] = -7;
    run.launch.startQuiz(QuizKind::Standard);
    const QSize available = run.mainWindow.screen()->availableSize();
    QVERIFY(FindWindow<CStandardQuiz>()->frameGeometry().width() <= available.width());
    QCOMPARE(FindWindow<CStandardQuiz>()->height(), own.height());
    GiveUp(run);
}

void QuizLaunchTest::changingAnEntry()
{
    TestQuiz run;
    run.launch.startQuiz(QuizKind::Standard);
    auto *const window = FindWindow<CStandardQuiz>();
    run.settings.requiz = Requiz::None;
    Answer("doggy");
    window->findChild<QPushButton *>(QStringLiteral("changeButton"))->click();
    auto *const dialog = FindWindow<CChangeEntryDialog>();
    QVERIFY(dialog != nullptr);
    auto *const list = dialog->findChild<QComboBox *>(QStringLiteral("entries"));
    auto *const term1 = dialog->findChild<QLineEdit *>(QStringLiteral("term1"));
    auto *const term2 = dialog->findChild<QLineEdit *>(QStringLiteral("term2"));
    for (const QWidget *control : QList<QWidget *>{list, term1, term2}) {
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
    }
    QCOMPARE(term1->text(), QStringLiteral("<b>katt</b>")); // The word on screen.
    term1->setText(QStringLiteral("katt"));
    QTest::keyClick(term1, Qt::Key_Return);
    QVERIFY(dialog->isVisible());
    QCOMPARE(list->currentText(), QStringLiteral("katt - cat - "));
    auto *const stored = dialog->findChild<QLabel *>(QStringLiteral("storedLine"));
    QCOMPARE(stored->text(), QStringLiteral("Sparad: katt - cat - "));
    term1->clear();
    QTest::keyClicks(term1, QStringLiteral("hane"));
    QCOMPARE(stored->text(), QString());
    run.test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::Cancel, PromptAnswer::No};
    list->setCurrentIndex(0);
    QVERIFY(list->currentIndex() == 1 && term1->text() == QStringLiteral("hane"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(dialog->isVisible());
    list->setCurrentIndex(0);
    QCOMPARE(term2->text(), QStringLiteral("dog"));
    term2->setText(QStringLiteral("dog*doggy"));
    QTest::keyClick(term2, Qt::Key_Return);
    QCOMPARE(term2->text(), QStringLiteral("dog * doggy"));
    QTest::keyClick(dialog, Qt::Key_Escape);

    QCOMPARE(window->findChild<QPlainTextEdit *>(QStringLiteral("question"))->toPlainText(),
        QStringLiteral("Vad heter \"katt\" på Engelska?"));
    Answer("cat");
    FindWindow<CQuizResultDialog>()->accept(); // Flags both, which were answered right after all.
    QCOMPARE(Describe(run.test.document.List()),
        (QStringList{QStringLiteral("hund|dog * doggy||1"), QStringLiteral("katt|cat||1")}));
    QCOMPARE(run.test.document.UndoCount(), 1);
    run.test.document.Undo();
    QCOMPARE(Describe(run.test.document.List()),
        (QStringList{QStringLiteral("hund|dog"), QStringLiteral("<b>katt</b>|cat")}));
}

void QuizLaunchTest::changesNotAllowed()
{
    TestQuiz run;
    run.settings.allowChanges = false;
    run.launch.startQuiz(QuizKind::Standard);
    QVERIFY(
        !FindWindow<CStandardQuiz>()->findChild<QPushButton *>(QStringLiteral("changeButton"))->isEnabled());
    GiveUp(run);
}

void QuizLaunchTest::sounds()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("sounds")));
    const auto make = [&](const char *name) {
        QFile file(folder.filePath(QLatin1StringView(name)));
        return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
    };
    const QString right = make("sounds/right.wav");
    const QString beside = make("own.wav");
    TestQuiz run(
        {QStringLiteral("hund|dog"), QStringLiteral("katt|cat"), QStringLiteral("ko|cow")}, {folder.path()});
    run.settings.wrongSoundFile = QStringLiteral("own.wav");
    run.launch.startQuiz(QuizKind::Standard);
    Answer("x");
    Answer("dog");
    QCOMPARE(run.sounds.played, (QStringList{beside, right}));
    QCOMPARE(run.test.prompt.icons, QList<PromptIcon>{PromptIcon::PlainInformation});

    run.sounds.played.clear();
    run.settings.playRight = false;
    Answer("cat");
    run.settings.wrongSoundFile = folder.filePath(QStringLiteral("missing.wav"));
    Answer("x");
    QCOMPARE(run.sounds.played, QStringList());
    QCOMPARE(run.test.prompt.icons.last(), PromptIcon::Information);
    GiveUp(run);
}

QTEST_MAIN(QuizLaunchTest)
#include "quiz_launch_test.moc"
