// SPDX-License-Identifier: MIT
#include "games/pair_matching_form.h"
#include "games/ui/pair_matching.h"
#include "games/ui/pair_table.h"
#include "platform/input_guard.h"
#include "platform/ui/spoken_text.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "support/test_form.h"
#include "support/test_quiz.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

/// The answers from the first row to the last one, a mark behind that which is marked.
QString Answers(const CPairMatchingForm &form)
{
    QStringList answers;
    for (int row = 0; row < form.rowCount(); ++row) {
        answers.append(form.cell(row, 0) + (form.hasMark(row, 0) ? QStringLiteral("*") : QString()));
    }
    return answers.join(u' ');
}

/// Brings the answers into an order by exchanging them.
void Arrange(CPairMatchingForm &form, const QStringList &answers)
{
    for (int row = 0; row < form.rowCount(); ++row) {
        int other = row;
        while (form.cell(other, 0) != answers.at(row)) {
            ++other;
        }
        form.exchange(other, row);
    }
}

const QStringList Letters = {QStringLiteral("a|x"), QStringLiteral("b|y"), QStringLiteral("c|z")};

}

class PairMatchingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rounds();
    void sameAnswers();
    void moving();
    void window();
};

void PairMatchingTest::rounds()
{
    TestDocument test(Letters + QStringList{QStringLiteral("d|v * w")});
    QuizSettings settings = InOrder(Requiz::AfterRound, 1);
    TestForm<CPairMatchingForm> game(test, settings);
    CPairMatchingForm &form = game.form;
    QCOMPARE(form.columnTitle(0) + form.columnTitle(1), QStringLiteral("EngelskaSvenska"));
    QCOMPARE(form.cell(0, 1) + form.cell(1, 1) + form.cell(2, 1) + form.cell(3, 1), QStringLiteral("abcd"));
    Arrange(form, {QStringLiteral("y"), QStringLiteral("x"), QStringLiteral("z"), QStringLiteral("v * w")});
    auto outcome = form.check();
    QVERIFY(form.isChecked() && outcome.verdict == AnswerVerdict::Wrong && !outcome.feedback);
    QCOMPARE(form.hint(), QStringLiteral("2 fel."));
    QCOMPARE(Answers(form), QStringLiteral("x y"));
    QCOMPARE(game.session->wrongAnswers(0), QStringList{QStringLiteral("y")});
    form.markOrExchange(); // Nothing can be moved, marked or looked for.
    QVERIFY(!form.exchange(0, 1) && Answers(form) == QStringLiteral("x y"));
    QCOMPARE(form.findRow(QStringLiteral("x"), 0), std::nullopt);

    QVERIFY(form.startRound() && !form.isChecked());
    QCOMPARE(form.rowCount(), 2); // Only the mistakes come again.
    QCOMPARE(form.hint(), QStringLiteral("Flytta runt orden så de kommer i rätt ordning."));
    settings.showAnswer = false;
    Arrange(form, {QStringLiteral("y"), QStringLiteral("x")});
    outcome = form.check();
    QVERIFY(!form.isChecked() && outcome.verdict == AnswerVerdict::Wrong);
    QVERIFY(form.startRound());

    Arrange(form, {QStringLiteral("x"), QStringLiteral("y")});
    form.selectRow(1);
    game.session->changeEntry(form.currentEntry(), QStringLiteral("b"), QStringLiteral("yy"), {});
    form.entriesChanged();
    QCOMPARE(Answers(form), QStringLiteral("x yy"));
    outcome = form.check();
    QVERIFY(!form.isChecked() && outcome.verdict == AnswerVerdict::Right);
    QCOMPARE(outcome.feedback->number, int(Text::AllWordsRight));
    QCOMPARE(form.rightProgress().text, QStringLiteral("4 rätt av 8."));
    QVERIFY(!form.startRound());
}

void PairMatchingTest::sameAnswers()
{
    TestDocument test({QStringLiteral("a|x"), QStringLiteral("b|x"), QStringLiteral("c|y [n]")});
    const QuizSettings settings = InOrder(Requiz::None, 1);
    TestForm<CPairMatchingForm> game(test, settings);
    const QStringList order = {QStringLiteral("x"), QStringLiteral("x"), QStringLiteral("y [n]")};
    Arrange(game.form, order);
    game.form.exchange(0, 1); // Nobody can tell them apart.
    QVERIFY(game.form.check().verdict == AnswerVerdict::Right);
}

void PairMatchingTest::moving()
{
    TestDocument test(Letters);
    const QuizSettings settings = InOrder(Requiz::None, 1);
    TestForm<CPairMatchingForm> game(test, settings);
    CPairMatchingForm &form = game.form;
    Arrange(form, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")});
    form.selectRow(0);
    QVERIFY(!form.moveAnswer(-1) && form.currentRow() == 0);
    QVERIFY(form.moveAnswer(1) && form.moveAnswer(1) && !form.moveAnswer(1));
    QCOMPARE(form.currentRow(), 2); // It follows.
    QCOMPARE(Answers(form), QStringLiteral("y z x"));
    QVERIFY(!form.exchange(1, 1) && !form.exchange(0, 3) && !form.exchange(-1, 0));
    QVERIFY(form.exchange(2, 0));
    QCOMPARE(Answers(form), QStringLiteral("x z y"));

    form.markOrExchange();
    QCOMPARE(Answers(form), QStringLiteral("x* z y"));
    form.markOrExchange();
    QCOMPARE(Answers(form), QStringLiteral("x z y"));
    form.markOrExchange();
    form.selectRow(1);
    form.markOrExchange();
    QCOMPARE(Answers(form), QStringLiteral("z x y"));
    QCOMPARE(form.findRow(QStringLiteral("Y"), 1), std::optional(2)); // By the answers, which stand first.
    QCOMPARE(form.findRow(QStringLiteral("z"), 1), std::optional(0));
    QCOMPARE(form.findRow(QStringLiteral("a"), 0), std::nullopt);
}

void PairMatchingTest::window()
{
    TestQuiz run(Letters);
    run.clock.step = {};
    run.launch.startQuiz(QuizKind::PairMatching);
    auto *window = FindWindow<CPairMatchingDialog>();
    QVERIFY(window != nullptr && !run.host.shown);
    QApplication::setActiveWindow(window);
    auto *table = window->findChild<CPairTable *>(QStringLiteral("round"));
    auto *check = window->findChild<QPushButton *>(QStringLiteral("checkButton"));
    auto *hint = window->findChild<QLabel *>(QStringLiteral("hint"));
    const auto answers = [&] {
        QString text;
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            text += table->model()->index(row, 0).data().toString();
        }
        return text;
    };
    const auto swapped = [](QString text, int a, int b) {
        std::swap(text[a], text[b]);
        return text;
    };
    run.clock.now += CInputGuard::Pause;
    QVERIFY(table->hasFocus() && table->currentIndex().row() == 0);
    const QString first = answers();
    QTest::keyClick(table, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(answers(), first);
    QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
    const QString second = swapped(swapped(first, 0, 1), 1, 2);
    QCOMPARE(answers(), second);
    QTest::keyClick(table, Qt::Key_Return);
    QTest::keyClick(table, Qt::Key_Home);
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(answers(), swapped(second, 0, 2));

    // What a drag from the last row to the first one asks for, and one that ends where it began.
    Q_EMIT table->exchangeRequested(2, 0);
    QCOMPARE(answers(), second);
    QCOMPARE(table->currentIndex().row(), 0);
    Q_EMIT table->exchangeRequested(1, 1);
    QCOMPARE(answers(), second);

    // All wrong: each answer stands one row too low.
    while (answers() != QStringLiteral("zxy")) {
        const int row = answers().indexOf(u'z') != 0 ? int(answers().indexOf(u'z')) : 2;
        table->showRow(row);
        QTest::keyClick(table, Qt::Key_Up, Qt::ShiftModifier);
    }
    check->click();
    QCOMPARE(hint->text(), QStringLiteral("3 fel."));
    QCOMPARE(window->findChild<CSpokenText *>()->accessibleName(), QStringLiteral("3 fel."));
    QCOMPARE(answers(), QStringLiteral("xyz"));
    QVERIFY(check->text() == QStringLiteral("Fort&sätt") && check->hasFocus());
    QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(answers(), QStringLiteral("xyz"));
    QTest::keyClick(check, Qt::Key_Space); // Too soon.
    QVERIFY(window->isVisible());
    run.clock.now += CInputGuard::Pause;
    QTest::keyClick(check, Qt::Key_Return);
    QVERIFY(!window->isVisible() && run.host.shown);
    FindWindow<CQuizResultDialog>()->reject();
}

QTEST_MAIN(PairMatchingTest)
#include "pair_matching_test.moc"
