// SPDX-License-Identifier: MIT
#include "quiz/ui/flag_settings_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "support/test_quiz.h"

#include <QClipboard>
#include <QHeaderView>
#include <QListView>

namespace {

void Answer(QWidget *window, const QString &answer)
{
    Find<QLineEdit>(window, "answer")->setText(answer);
    QTest::keyClick(window, Qt::Key_Return);
}

/// Plays the quiz to its end; the answers come in the order of the questions.
CQuizResultDialog *PlayToResult(TestQuiz &run, const QStringList &answers)
{
    run.settings.requiz = Requiz::None;
    auto *window = run.Start<CStandardQuiz>();
    for (const QString &answer : answers) {
        Answer(window, answer);
    }
    return FindWindow<CQuizResultDialog>();
}

/// A shortcut works in the active window alone.
void Press(QWidget *window, Qt::Key key)
{
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, key);
}

}

class QuizResultDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void accepted()
    {
        TestQuiz run(u"hund|dog,katt|cat||1,häst|horse"_s);
        auto *dialog = PlayToResult(run, {u"dog"_s, u"x"_s, u"hrose"_s});
        VerifyAccessibleNames(dialog);
        QCOMPARE(Find<QLabel>(dialog, "summary")->text(), u"Totalt 3 glosor. Av 3 svar är 1 rätt (33%)."_s);
        QCOMPARE(Find<QLabel>(dialog, "flagLine")->text(),
            u"1 glosor kommer att flaggas, 1 glosor kommer att avflaggas."_s);
        // The first mistake is shown at once, with what was wrong.
        auto *list = Find<QTableView>(dialog, "results");
        auto *wrong = Find<QListView>(dialog, "wrongAnswers");
        QCOMPARE(list->currentIndex().row(), 1);
        QCOMPARE(wrong->currentIndex().data().toString(), u"\"x\", rätt är \"cat\". Annat ord."_s);
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(wrong->currentIndex().data().toString(),
            u"\"hrose\", rätt är \"horse\": ändra \"ro\" till \"or\". Två bokstäver har bytt plats."_s);

        Find<QPushButton>(dialog, "copyButton")->click();
        QVERIFY(QApplication::clipboard()->text().endsWith(
            u"häst\thorse\t0 av 1 (0%)\t\"hrose\"\r\nTotalt 3 glosor. Av 3 svar är 1 rätt (33%)."_s));
        Find<QCheckBox>(dialog, "selectMistakes")->click();
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(!run.launch.isRunning());
        QCOMPARE(run.test.Entries(), u"hund|dog||1,katt|cat,häst|horse"_s);
        QCOMPARE(run.host.selected, (std::vector<int>{1, 2}));
    }

    void cancelled()
    {
        TestQuiz run;
        auto *dialog = PlayToResult(run, {u"dog"_s, u"cat"_s}); // There are no mistakes.
        QVERIFY(Find<QListView>(dialog, "wrongAnswers") == nullptr);
        QVERIFY(!Find<QPushButton>(dialog, "saveMistakesButton")->isEnabled());
        QVERIFY(!Find<QCheckBox>(dialog, "selectMistakes")->isEnabled());
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!run.launch.isRunning() && !run.test.document.IsModified());
        QCOMPARE(run.host.selected, (std::vector<int>{0, 1}));
    }

    void iWasRight()
    {
        TestQuiz run;
        auto *dialog = PlayToResult(run, {u"<i>hound"_s, QString()});
        auto *accept = Find<QPushButton>(dialog, "acceptAnswerButton");
        QVERIFY(accept->isEnabled());
        QCOMPARE(accept->text(), u"Ja&g hade rätt: <i>hound = hund"_s);
        for (const char *caption :
            {"Ån&gra: <i>hound = hund", "Ja&g hade rätt: <i>hound = hund", "Ån&gra: <i>hound = hund"}) {
            Press(dialog, Qt::Key_F8);
            QCOMPARE(accept->text(), QString::fromUtf8(caption));
        }
        QCOMPARE(
            Find<QLabel>(dialog, "acceptedLine")->text(), u"Tillagt: <i>hound = hund. F8 tar tillbaka det."_s);
        QCOMPARE(Find<QLabel>(dialog, "summary")->text(), u"Totalt 2 glosor. Av 2 svar är 1 rätt (50%)."_s);
        auto *list = Find<QTableView>(dialog, "results");
        QCOMPARE(list->model()->index(0, 1).data().toString(), u"dog * <i>hound"_s);
        QTest::keyClick(list, Qt::Key_Down); // Nothing was typed there.
        QCOMPARE(Find<QListView>(dialog, "wrongAnswers")->currentIndex().data().toString(), u"Inget svar"_s);
        QVERIFY(!accept->isEnabled());
        dialog->accept();
        QCOMPARE(run.test.Entries(), u"hund|dog * <i>hound||1,<b>katt</b>|cat"_s);
        QCOMPARE(run.test.document.UndoCount(), 1); // With the flags.
    }

    void duringTheQuiz()
    {
        TestQuiz run;
        auto *window = run.Start<CStandardQuiz>();
        Answer(window, u"hound"_s);
        Find<QLineEdit>(window, "answer")->setText(u"half ty"_s);
        auto *accept = Find<QPushButton>(window, "acceptAnswerButton");
        QVERIFY(accept->isEnabled());
        Find<QPushButton>(window, "resultButton")->click();
        auto *dialog = FindWindow<CQuizResultDialog>();
        QCOMPARE(Find<QTableView>(dialog, "results")->model()->columnCount(), 3);
        for (const char *hidden :
            {"flagLine", "flagsHint", "flagSettingsButton", "selectMistakes", "wrongAnswers"}) {
            QVERIFY2(Find<QWidget>(dialog, hidden) == nullptr, hidden);
        }
        QTest::keyClick(dialog, Qt::Key_Return);
        QCOMPARE(Find<QLineEdit>(window, "answer")->text(), u"half ty"_s);

        // In the quiz window the same key leaves the word that is asked again.
        Answer(window, u"doggy"_s);
        Press(window, Qt::Key_F8);
        QCOMPARE(Find<QLabel>(window, "wordText")->text(), u"Glosa 2 av 2."_s);
        QCOMPARE(run.test.Entries(), u"hund|dog * doggy,<b>katt</b>|cat"_s);
        run.test.prompt.answers = {PromptAnswer::Yes};
        window->reject();
        CloseResult();
    }

    void flagSettings()
    {
        TestQuiz run;
        run.resultSettings.changeUnaskedTo = FlagState::On;
        auto *result = PlayToResult(run, {u"dog"_s, u"x"_s});
        Find<QPushButton>(result, "flagSettingsButton")->click();
        auto *dialog = FindWindow<CFlagSettingsDialog>();
        auto *limit = Find<QSpinBox>(dialog, "flagWordLimit");
        auto *unasked = Find<QComboBox>(dialog, "changeUnaskedTo");
        QVERIFY(limit->value() == 100 && limit->isEnabled() && unasked->currentIndex() == 1
            && !unasked->isEnabled());
        limit->setValue(50);
        Find<QSpinBox>(dialog, "unFlagWordLimit")->setValue(50);
        dialog->accept();
        QCOMPARE(run.test.prompt.numbers.last(), int(Text::FlagLimitsContradict));
        QVERIFY(dialog->isVisible() && run.resultSettings.flagWordLimit == 100);
        Find<QCheckBox>(dialog, "unFlagWord")->click();
        Find<QCheckBox>(dialog, "changeUnasked")->click();
        unasked->setCurrentIndex(0);
        QVERIFY(!Find<QSpinBox>(dialog, "unFlagWordLimit")->isEnabled() && unasked->isEnabled());
        dialog->accept();
        const ResultSettings &settings = run.resultSettings;
        QVERIFY(settings.flagWord && settings.flagWordLimit == 50 && !settings.unFlagWord
            && settings.unFlagWordLimit == 50 && settings.changeUnasked
            && settings.changeUnaskedTo == FlagState::Off);
        QCOMPARE(Find<QLabel>(result, "flagLine")->text(), u"1 glosor kommer att flaggas."_s);
        result->reject();
    }

    void mistakesAgain()
    {
        TestQuiz run(u"hund|dog,katt|cat||1,ko|"_s);
        auto *result = PlayToResult(run, {u"dog"_s, u"x"_s});
        QCOMPARE(Find<QLabel>(result, "unanswerable")->text(), u"1 glosa utan svar ställdes inte."_s);
        run.settings.includeFlaggedWords = IncludeFlagged::Never;
        Find<QPushButton>(result, "askAgainButton")->click();
        QCOMPARE(run.test.Entries(), u"hund|dog||1,katt|cat,ko"_s); // As with OK.
        auto *again = FindWindow<CStandardQuiz>();
        QVERIFY(again != nullptr && !run.host.shown);
        QCOMPARE(Find<QLabel>(again, "wordText")->text(), u"Glosa 1 av 1."_s);
        Answer(again, u"cat"_s);
        auto *second = FindWindow<CQuizResultDialog>();
        QVERIFY(second != nullptr && !Find<QPushButton>(second, "askAgainButton")->isEnabled());
        second->accept();
        QCOMPARE(run.test.Entries(), u"hund|dog||1,katt|cat||1,ko"_s);
        QVERIFY(!run.launch.isRunning() && run.host.selected == std::vector<int>{1});
    }

    void orderAndFilter()
    {
        TestQuiz run(u"öl|beer,zebra|zebra,Apa|ape"_s);
        run.settings.learning = true;
        auto *result = PlayToResult(run, {u"beer"_s, u"x"_s, u"y"_s});
        QCOMPARE(Find<QLabel>(result, "flagLine")->text(), u"Inga glosor kommer att ändras."_s);
        auto *list = Find<QTableView>(result, "results");
        const auto shown = [list] {
            QStringList words;
            for (int row = 0; row < list->model()->rowCount(); ++row) {
                words.append(list->model()->index(row, 0).data().toString());
            }
            return words.join(u' ');
        };
        QCOMPARE(shown(), u"öl zebra Apa"_s);
        auto *order = Find<QComboBox>(result, "order");
        const auto sortBy = [&](int column) {
            order->setCurrentIndex(column + 1);
            Q_EMIT order->activated(column + 1);
            return shown();
        };
        QCOMPARE(sortBy(0), u"Apa zebra öl"_s);
        QCOMPARE(sortBy(3), u"Apa zebra öl"_s); // The most wrong answers first.
        QCOMPARE(list->currentIndex().siblingAtColumn(0).data().toString(), u"zebra"_s);
        list->horizontalHeader()->setSortIndicator(0, Qt::DescendingOrder);
        QCOMPARE(shown() + u' ' + order->currentText(), u"öl zebra Apa Svenska"_s);
        Find<QCheckBox>(result, "onlyMistakes")->click();
        QCOMPARE(shown(), u"zebra Apa"_s);
        QCOMPARE(sortBy(-1), u"zebra Apa"_s);
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(Find<QListView>(result, "wrongAnswers")->currentIndex().data().toString(),
            u"\"y\", rätt är \"ape\". Annat ord."_s);
        result->accept();
        QCOMPARE(run.test.Entries(), u"öl|beer,zebra|zebra,Apa|ape"_s);
    }
};

QTEST_MAIN(QuizResultDialogTest)
#include "quiz_result_dialog_test.moc"
