// SPDX-License-Identifier: MIT
#include "quiz/ui/change_entry_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "support/files.h"
#include "support/test_quiz.h"

#include <QScreen>

namespace {

/// Types an answer into the quiz on screen and confirms it.
void Answer(const char *text)
{
    auto *const field = Find<QLineEdit>(FindWindow<CStandardQuiz>(), "answer");
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
    void questionAboutDuplicates()
    {
        const struct
        {
            QString entries;
            bool check;
            int limit;
            bool asked;
        } rows[] = {
            {u"a * b|c,d|e,b|f"_s, true, 4, true}, {u"a * b|c,d|e"_s, true, 1000, false},
            {u"a * b|c,d|e,b|f"_s, false, 1000, false}, // switched off
            {u"a * b|c,d|e,b|f"_s, true, 3, false}, // as many as the limit
        };
        for (const auto &row : rows) {
            for (const PromptAnswer answer : {PromptAnswer::No, PromptAnswer::Cancel, PromptAnswer::Yes}) {
                TestQuiz run(row.entries);
                run.test.settings.duplicateCheckBeforeQuiz = row.check;
                run.test.settings.duplilcateCheckBeforeQuizMax = row.limit;
                if (row.asked) {
                    run.test.prompt.answers = {answer};
                }
                run.launch.startQuiz(QuizKind::Standard);
                QCOMPARE(run.test.prompt.numbers, QList<int>(row.asked ? 1 : 0, Text::DuplicatesBeforeQuiz));
                QCOMPARE(run.launch.isRunning(), !row.asked || answer == PromptAnswer::Yes);
                QCOMPARE(run.host.shown, !run.launch.isRunning());
            }
        }
    }

    void nothingToAsk()
    {
        TestQuiz empty{QString()};
        empty.launch.startQuiz(QuizKind::Standard);
        QVERIFY(!empty.launch.isRunning() && empty.host.calls.isEmpty());
        for (const QuizKindRow &row : quizKinds()) {
            QVERIFY2(empty.launch.hasWindow(row.kind), row.icon); // Else its command can't be chosen.
        }
        TestQuiz withoutAnswers(u"hund|,katt|"_s);
        withoutAnswers.launch.startQuiz(QuizKind::Standard);
        QCOMPARE(withoutAnswers.test.prompt.numbers, QList<int>{Text::NothingToAnswer});
        QVERIFY(!withoutAnswers.launch.isRunning() && withoutAnswers.host.shown);
        TestQuiz run;
        run.settings.wordsToQuiz = WordsToQuiz::FixedNumber;
        for (const auto &[words, rounds] : {std::pair(0, 1), {1, 0}}) {
            run.settings.numberOfWords = words;
            run.settings.quizNumber = rounds;
            run.launch.startQuiz(QuizKind::Standard);
            QVERIFY(!run.launch.isRunning() && run.host.shown);
        }
        QVERIFY(FindWindow<CStandardQuiz>() == nullptr);
    }

    void callsInOrder()
    {
        TestQuiz run;
        run.settings.wordsToQuiz = WordsToQuiz::Selected;
        run.host.selected = {1};
        run.launch.startQuiz(QuizKind::Standard);
        QCOMPARE(run.host.calls, QStringList{u"hide"_s});
        run.launch.startQuiz(QuizKind::Standard); // Runs already.
        QCOMPARE(run.host.calls.size(), 1);
        Answer("cat");
        QCOMPARE(run.host.calls.mid(1), QStringList{u"show"_s});
        auto *const result = FindWindow<CQuizResultDialog>();
        result->reject();
        QVERIFY(!run.launch.isRunning());
        // Nothing was changed, and flags are changed by OK alone.
        QCOMPARE(run.host.calls.mid(2), (QStringList{u"select"_s, u"focus"_s}));
        QCOMPARE(run.host.selected, std::vector<int>{1});
        QVERIFY(run.test.document.List().IsSaved());

        run.host.calls.clear();
        run.settings.showResult = false;
        run.settings.selectedTestedWordsAfterQuiz = false;
        run.launch.startQuiz(QuizKind::Standard);
        run.test.document.Change([&](CWordList &list) { list.SetEntryField(u"x"_s, 2, 0, false); });
        Answer("cat");
        QVERIFY(FindWindow<CQuizResultDialog>() == nullptr);
        QCOMPARE(run.host.calls.mid(1), (QStringList{u"show"_s, u"focus"_s}));
        // No question follows that it could be said with.
        QCOMPARE(Find<QWidget>(&run.mainWindow, "spokenText")->accessibleName(), u"Rätt"_s);
    }

    void sizesAreRememberedAndChangesForbidden()
    {
        TestQuiz run;
        run.settings.allowChanges = false;
        QVERIFY(!Find<QPushButton>(run.Start<CStandardQuiz>(), "changeButton")->isEnabled());
        const QSize own = FindWindow<CStandardQuiz>()->size();
        FindWindow<CStandardQuiz>()->resize(own + QSize(30, 40));
        GiveUp(run);
        QCOMPARE(run.windowSizes.windowWidth[0], own.width() + 30);
        QCOMPARE(run.windowSizes.windowHeight[0], own.height() + 40);
        QCOMPARE(run.windowSizes.windowWidth[1], 0);

        QCOMPARE(run.Start<CStandardQuiz>()->size(), own + QSize(30, 40));
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

    void changingAnEntry()
    {
        TestQuiz run;
        auto *const window = run.Start<CStandardQuiz>();
        run.settings.requiz = Requiz::None;
        Answer("doggy");
        Find<QPushButton>(window, "changeButton")->click();
        auto *const dialog = FindWindow<CChangeEntryDialog>();
        auto *const list = Find<QComboBox>(dialog, "entries");
        auto *const term1 = Find<QLineEdit>(dialog, "term1");
        auto *const term2 = Find<QLineEdit>(dialog, "term2");
        VerifyAccessibleNames(dialog);
        QCOMPARE(term1->text(), u"<b>katt</b>"_s); // The word on screen.
        term1->setText(u"katt"_s);
        QTest::keyClick(term1, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QCOMPARE(list->currentText(), u"katt - cat - "_s);
        auto *const stored = Find<QLabel>(dialog, "storedLine");
        QCOMPARE(stored->text(), u"Sparad: katt - cat - "_s);
        term1->clear();
        QTest::keyClicks(term1, u"hane"_s);
        QCOMPARE(stored->text(), QString());
        run.test.prompt.answers = {PromptAnswer::Cancel, PromptAnswer::Cancel, PromptAnswer::No};
        list->setCurrentIndex(0);
        QVERIFY(list->currentIndex() == 1 && term1->text() == u"hane"_s);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(dialog->isVisible());
        list->setCurrentIndex(0);
        QCOMPARE(term2->text(), u"dog"_s);
        term2->setText(u"dog*doggy"_s);
        QTest::keyClick(term2, Qt::Key_Return);
        QCOMPARE(term2->text(), u"dog * doggy"_s);
        QTest::keyClick(dialog, Qt::Key_Escape);

        QCOMPARE(Find<QPlainTextEdit>(window, "question")->toPlainText(), u"Vad heter \"katt\" på Engelska?"_s);
        Answer("cat");
        FindWindow<CQuizResultDialog>()->accept(); // Flags both, which were answered right after all.
        QCOMPARE(run.test.Entries(), u"hund|dog * doggy||1,katt|cat||1"_s);
        QCOMPARE(run.test.document.UndoCount(), 1);
        run.test.document.Undo();
        QCOMPARE(run.test.Entries(), u"hund|dog,<b>katt</b>|cat"_s);
    }

    void sounds()
    {
        const QTemporaryDir folder;
        const QString right = WriteFile(folder.filePath(u"sounds/right.wav"_s), {});
        const QString beside = WriteFile(folder.filePath(u"own.wav"_s), {});
        TestQuiz run(u"hund|dog,katt|cat,ko|cow"_s, {folder.path()});
        run.settings.wrongSoundFile = u"own.wav"_s;
        run.launch.startQuiz(QuizKind::Standard);
        Answer("x");
        Answer("dog");
        QCOMPARE(run.sounds.played, (QStringList{beside, right}));
        QCOMPARE(run.test.prompt.icons, QList<PromptIcon>{PromptIcon::PlainInformation});

        run.sounds.played.clear();
        run.settings.playRight = false;
        Answer("cat");
        run.settings.wrongSoundFile = folder.filePath(u"missing.wav"_s);
        Answer("x");
        QCOMPARE(run.sounds.played, QStringList());
        QCOMPARE(run.test.prompt.icons.last(), PromptIcon::Information);
        GiveUp(run);
    }
};

QTEST_MAIN(QuizLaunchTest)
#include "quiz_launch_test.moc"
