// SPDX-License-Identifier: MIT
#include "quiz/text_numbers.h"
#include "quiz/ui/flag_settings_dialog.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "support/test_quiz.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

namespace {

template<class Widget>
Widget *Find(QWidget *window, const char *name)
{
    return window->findChild<Widget *>(QLatin1StringView(name));
}

/// Plays the quiz to its end; the answers come in the order of the questions.
CQuizResultDialog *PlayToResult(TestQuiz &run, const QStringList &answers)
{
    run.settings.requiz = Requiz::None;
    run.launch.startQuiz(QuizKind::Standard);
    auto *window = FindWindow<CStandardQuiz>();
    for (const QString &answer : answers) {
        Find<QLineEdit>(window, "answer")->setText(answer);
        QTest::keyClick(window, Qt::Key_Return);
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

QString Flags(const TestQuiz &run)
{
    return Describe(run.test.document.List()).join(u',');
}

}

class QuizResultDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void accepted();
    void cancelled();
    void iWasRight();
    void allRight();
    void duringTheQuiz();
    void flagSettings();
    void mistakesAgain();
    void orderAndFilter();
};

void QuizResultDialogTest::accepted()
{
    TestQuiz run({QStringLiteral("hund|dog"), QStringLiteral("katt|cat||1"), QStringLiteral("häst|horse")});
    auto *dialog = PlayToResult(run, {QStringLiteral("dog"), QStringLiteral("x"), QStringLiteral("hrose")});
    QVERIFY(dialog != nullptr);
    for (const QWidget *widget : dialog->findChildren<QWidget *>()) {
        const bool view = qobject_cast<const QAbstractItemView *>(widget) != nullptr && widget->isVisible()
            && !widget->inherits("QHeaderView");
        QVERIFY2(!view || !widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    QCOMPARE(
        Find<QLabel>(dialog, "summary")->text(), QStringLiteral("Totalt 3 glosor. Av 3 svar är 1 rätt (33%)."));
    QCOMPARE(Find<QLabel>(dialog, "flagLine")->text(),
        QStringLiteral("1 glosor kommer att flaggas, 1 glosor kommer att avflaggas."));
    // The first mistake is shown at once, with what was wrong.
    auto *list = Find<QTableView>(dialog, "results");
    auto *wrong = Find<QListView>(dialog, "wrongAnswers");
    QCOMPARE(list->currentIndex().row(), 1);
    QCOMPARE(wrong->currentIndex().data().toString(), QStringLiteral("\"x\", rätt är \"cat\". Annat ord."));
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(wrong->currentIndex().data().toString(),
        QStringLiteral(
            "\"hrose\", rätt är \"horse\": ändra \"ro\" till \"or\". Två bokstäver har bytt plats."));

    Find<QPushButton>(dialog, "copyButton")->click();
    QVERIFY(QApplication::clipboard()->text().endsWith(
        QStringLiteral("häst\thorse\t0 av 1 (0%)\t\"hrose\"\r\nTotalt 3 glosor. Av 3 svar är 1 rätt (33%).")));
    Find<QCheckBox>(dialog, "selectMistakes")->click();
    QTest::keyClick(list, Qt::Key_Return);
    QVERIFY(!run.launch.isRunning());
    QCOMPARE(Flags(run), QStringLiteral("hund|dog||1,katt|cat,häst|horse"));
    QCOMPARE(run.host.selected, (std::vector<int>{1, 2}));
}

void QuizResultDialogTest::cancelled()
{
    TestQuiz run;
    auto *dialog = PlayToResult(run, {QStringLiteral("dog"), QStringLiteral("cat")});
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!run.launch.isRunning() && !run.test.document.IsModified());
    QCOMPARE(run.host.selected, (std::vector<int>{0, 1}));
}

void QuizResultDialogTest::iWasRight()
{
    TestQuiz run;
    auto *dialog = PlayToResult(run, {QStringLiteral("<i>hound"), QString()});
    auto *accept = Find<QPushButton>(dialog, "acceptAnswerButton");
    QVERIFY(accept->isEnabled());
    QCOMPARE(accept->text(), QStringLiteral("Ja&g hade rätt: <i>hound = hund"));
    for (const char *caption :
        {"Ån&gra: <i>hound = hund", "Ja&g hade rätt: <i>hound = hund", "Ån&gra: <i>hound = hund"}) {
        Press(dialog, Qt::Key_F8);
        QCOMPARE(accept->text(), QString::fromUtf8(caption));
    }
    QCOMPARE(Find<QLabel>(dialog, "acceptedLine")->text(),
        QStringLiteral("Tillagt: <i>hound = hund. F8 tar tillbaka det."));
    QCOMPARE(
        Find<QLabel>(dialog, "summary")->text(), QStringLiteral("Totalt 2 glosor. Av 2 svar är 1 rätt (50%)."));
    auto *list = Find<QTableView>(dialog, "results");
    QCOMPARE(list->model()->index(0, 1).data().toString(), QStringLiteral("dog * <i>hound"));
    QTest::keyClick(list, Qt::Key_Down); // Nothing was typed there.
    QCOMPARE(Find<QListView>(dialog, "wrongAnswers")->currentIndex().data().toString(),
        QStringLiteral("Inget svar"));
    QVERIFY(!accept->isEnabled());
    dialog->accept();
    QCOMPARE(Flags(run), QStringLiteral("hund|dog * <i>hound||1,<b>katt</b>|cat"));
    QCOMPARE(run.test.document.UndoCount(), 1); // With the flags.
}

void QuizResultDialogTest::allRight()
{
    TestQuiz run;
    auto *dialog = PlayToResult(run, {QStringLiteral("dog"), QStringLiteral("cat")});
    QVERIFY(Find<QListView>(dialog, "wrongAnswers") == nullptr);
    QVERIFY(!Find<QPushButton>(dialog, "saveMistakesButton")->isEnabled());
    QVERIFY(!Find<QCheckBox>(dialog, "selectMistakes")->isEnabled());
    dialog->reject();
}

void QuizResultDialogTest::duringTheQuiz()
{
    TestQuiz run;
    run.launch.startQuiz(QuizKind::Standard);
    auto *window = FindWindow<CStandardQuiz>();
    Find<QLineEdit>(window, "answer")->setText(QStringLiteral("hound"));
    QTest::keyClick(window, Qt::Key_Return);
    Find<QLineEdit>(window, "answer")->setText(QStringLiteral("half ty"));
    auto *accept = Find<QPushButton>(window, "acceptAnswerButton");
    QVERIFY(accept->isEnabled());
    Find<QPushButton>(window, "resultButton")->click();
    auto *dialog = FindWindow<CQuizResultDialog>();
    QVERIFY(dialog != nullptr);
    QCOMPARE(Find<QTableView>(dialog, "results")->model()->columnCount(), 3);
    for (const char *hidden :
        {"flagLine", "flagsHint", "flagSettingsButton", "selectMistakes", "wrongAnswers"}) {
        QVERIFY2(Find<QWidget>(dialog, hidden) == nullptr, hidden);
    }
    // A key held down confirms nothing.
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QApplication::sendEvent(Find<QTableView>(dialog, "results"), &held);
    QVERIFY(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Return);
    QCOMPARE(Find<QLineEdit>(window, "answer")->text(), QStringLiteral("half ty"));

    // In the quiz window the same key leaves the word that is asked again.
    Find<QLineEdit>(window, "answer")->setText(QStringLiteral("doggy"));
    QTest::keyClick(window, Qt::Key_Return);
    Press(window, Qt::Key_F8);
    QCOMPARE(Find<QLabel>(window, "wordText")->text(), QStringLiteral("Glosa 2 av 2."));
    QCOMPARE(Flags(run), QStringLiteral("hund|dog * doggy,<b>katt</b>|cat"));
    run.test.prompt.answers = {PromptAnswer::Yes};
    window->reject();
    FindWindow<CQuizResultDialog>()->reject();
}

void QuizResultDialogTest::flagSettings()
{
    TestQuiz run;
    run.resultSettings.changeUnaskedTo = FlagState::On;
    auto *result = PlayToResult(run, {QStringLiteral("dog"), QStringLiteral("x")});
    Find<QPushButton>(result, "flagSettingsButton")->click();
    auto *dialog = FindWindow<CFlagSettingsDialog>();
    QVERIFY(dialog != nullptr);
    auto *limit = Find<QSpinBox>(dialog, "flagWordLimit");
    auto *unasked = Find<QComboBox>(dialog, "changeUnaskedTo");
    QVERIFY(
        limit->value() == 100 && limit->isEnabled() && unasked->currentIndex() == 1 && !unasked->isEnabled());
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
    QCOMPARE(Find<QLabel>(result, "flagLine")->text(), QStringLiteral("1 glosor kommer att flaggas."));
    result->reject();
}

void QuizResultDialogTest::mistakesAgain()
{
    TestQuiz run({QStringLiteral("hund|dog"), QStringLiteral("katt|cat||1"), QStringLiteral("ko|")});
    auto *result = PlayToResult(run, {QStringLiteral("dog"), QStringLiteral("x")});
    QCOMPARE(Find<QLabel>(result, "unanswerable")->text(), QStringLiteral("1 glosa utan svar ställdes inte."));
    run.settings.includeFlaggedWords = IncludeFlagged::Never;
    Find<QPushButton>(result, "askAgainButton")->click();
    QCOMPARE(Flags(run), QStringLiteral("hund|dog||1,katt|cat,ko")); // As with OK.
    auto *again = FindWindow<CStandardQuiz>();
    QVERIFY(again != nullptr && !run.host.shown);
    QCOMPARE(Find<QLabel>(again, "wordText")->text(), QStringLiteral("Glosa 1 av 1."));
    Find<QLineEdit>(again, "answer")->setText(QStringLiteral("cat"));
    QTest::keyClick(again, Qt::Key_Return);
    auto *second = FindWindow<CQuizResultDialog>();
    QVERIFY(second != nullptr && !Find<QPushButton>(second, "askAgainButton")->isEnabled());
    second->accept();
    QCOMPARE(Flags(run), QStringLiteral("hund|dog||1,katt|cat||1,ko"));
    QVERIFY(!run.launch.isRunning() && run.host.selected == std::vector<int>{1});
}

void QuizResultDialogTest::orderAndFilter()
{
    TestQuiz run({QStringLiteral("öl|beer"), QStringLiteral("zebra|zebra"), QStringLiteral("Apa|ape")});
    run.settings.learning = true;
    auto *result = PlayToResult(run, {QStringLiteral("beer"), QStringLiteral("x"), QStringLiteral("y")});
    QCOMPARE(Find<QLabel>(result, "flagLine")->text(), QStringLiteral("Inga glosor kommer att ändras."));
    auto *list = Find<QTableView>(result, "results");
    const auto shown = [list] {
        QStringList words;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            words.append(list->model()->index(row, 0).data().toString());
        }
        return words.join(u' ');
    };
    QCOMPARE(shown(), QStringLiteral("öl zebra Apa"));
    auto *order = Find<QComboBox>(result, "order");
    const auto sortBy = [&](int column) {
        order->setCurrentIndex(column + 1);
        Q_EMIT order->activated(column + 1);
        return shown();
    };
    QCOMPARE(sortBy(0), QStringLiteral("Apa zebra öl"));
    QCOMPARE(sortBy(3), QStringLiteral("Apa zebra öl")); // The most wrong answers first.
    QCOMPARE(list->currentIndex().siblingAtColumn(0).data().toString(), QStringLiteral("zebra"));
    list->horizontalHeader()->setSortIndicator(0, Qt::DescendingOrder);
    QCOMPARE(shown() + u' ' + order->currentText(), QStringLiteral("öl zebra Apa Svenska"));
    Find<QCheckBox>(result, "onlyMistakes")->click();
    QCOMPARE(shown(), QStringLiteral("zebra Apa"));
    QCOMPARE(sortBy(-1), QStringLiteral("zebra Apa"));
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(Find<QListView>(result, "wrongAnswers")->currentIndex().data().toString(),
        QStringLiteral("\"y\", rätt är \"ape\". Annat ord."));
    result->accept();
    QCOMPARE(Flags(run), QStringLiteral("öl|beer,zebra|zebra,Apa|ape"));
}

QTEST_MAIN(QuizResultDialogTest)
#include "quiz_result_dialog_test.moc"
