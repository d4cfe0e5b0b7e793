// SPDX-License-Identifier: MIT
#include "games/pair_matching_form.h"
#include "games/ui/pair_matching.h"
#include "games/ui/pair_table.h"
#include "support/test_form.h"
#include "support/test_quiz.h"

namespace {

/// The answers from the first row to the last one, a mark behind that which is marked.
QString Answers(const CPairMatchingForm &form)
{
    QStringList answers;
    for (int row = 0; row < form.rowCount(); ++row) {
        answers.append(form.cell(row, 0) + (form.hasMark(row, 0) ? u"*"_s : QString()));
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

const QStringList Letters = {u"a|x"_s, u"b|y"_s, u"c|z"_s};
}

class PairMatchingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rounds()
    {
        TestDocument test(Letters + QStringList{u"d|v * w"_s});
        QuizSettings settings = InOrder(Requiz::AfterRound);
        TestForm<CPairMatchingForm> game(test, settings);
        CPairMatchingForm &form = game.form;
        QCOMPARE(form.columnTitle(0) + form.columnTitle(1), u"EngelskaSvenska"_s);
        QCOMPARE(form.cell(0, 1) + form.cell(1, 1) + form.cell(2, 1) + form.cell(3, 1), u"abcd"_s);
        Arrange(form, {u"y"_s, u"x"_s, u"z"_s, u"v * w"_s});
        auto outcome = form.check();
        QVERIFY(form.isChecked() && outcome.verdict == AnswerVerdict::Wrong && !outcome.feedback);
        QCOMPARE(form.hint(), u"2 fel."_s);
        QCOMPARE(Answers(form), u"x y"_s);
        QCOMPARE(game.session->wrongAnswers(0), QStringList{u"y"_s});
        form.markOrExchange(); // Nothing can be moved, marked or looked for.
        QVERIFY(!form.exchange(0, 1) && Answers(form) == u"x y"_s);
        QCOMPARE(form.findRow(u"x"_s, 0), std::nullopt);

        QVERIFY(form.startRound() && !form.isChecked());
        QCOMPARE(form.rowCount(), 2); // Only the mistakes come again.
        QCOMPARE(form.hint(), u"Flytta runt orden så de kommer i rätt ordning."_s);
        settings.showAnswer = false;
        Arrange(form, {u"y"_s, u"x"_s});
        outcome = form.check();
        QVERIFY(!form.isChecked() && outcome.verdict == AnswerVerdict::Wrong);
        QVERIFY(form.startRound());

        Arrange(form, {u"x"_s, u"y"_s});
        form.selectRow(1);
        game.session->changeEntry(form.currentEntry(), u"b"_s, u"yy"_s, {});
        form.entriesChanged();
        QCOMPARE(Answers(form), u"x yy"_s);
        outcome = form.check();
        QVERIFY(!form.isChecked() && outcome.verdict == AnswerVerdict::Right);
        QCOMPARE(outcome.feedback->number, int(Text::AllWordsRight));
        QCOMPARE(form.rightProgress().text, u"4 rätt av 8."_s);
        QVERIFY(!form.startRound());
    }

    void moving()
    {
        QuizSettings settings = InOrder(Requiz::None);
        TestDocument same({u"a|x"_s, u"b|x"_s, u"c|y [n]"_s});
        TestForm<CPairMatchingForm> alike(same, settings);
        Arrange(alike.form, {u"x"_s, u"x"_s, u"y [n]"_s});
        alike.form.exchange(0, 1); // Nobody can tell them apart.
        QVERIFY(alike.form.check().verdict == AnswerVerdict::Right);

        TestDocument test(Letters);
        TestForm<CPairMatchingForm> game(test, settings);
        CPairMatchingForm &form = game.form;
        Arrange(form, {u"x"_s, u"y"_s, u"z"_s});
        form.selectRow(0);
        QVERIFY(!form.moveAnswer(-1) && form.currentRow() == 0);
        QVERIFY(form.moveAnswer(1) && form.moveAnswer(1) && !form.moveAnswer(1));
        QCOMPARE(form.currentRow(), 2); // It follows.
        QCOMPARE(Answers(form), u"y z x"_s);
        QVERIFY(!form.exchange(1, 1) && !form.exchange(0, 3) && !form.exchange(-1, 0));
        QVERIFY(form.exchange(2, 0));
        QCOMPARE(Answers(form), u"x z y"_s);

        form.markOrExchange();
        QCOMPARE(Answers(form), u"x* z y"_s);
        form.markOrExchange();
        QCOMPARE(Answers(form), u"x z y"_s);
        form.markOrExchange();
        form.selectRow(1);
        form.markOrExchange();
        QCOMPARE(Answers(form), u"z x y"_s);
        QCOMPARE(form.findRow(u"Y"_s, 1), std::optional(2)); // By the answers, which stand first.
        QCOMPARE(form.findRow(u"z"_s, 1), std::optional(0));
        QCOMPARE(form.findRow(u"a"_s, 0), std::nullopt);
    }

    void window()
    {
        TestQuiz run(Letters);
        run.clock.step = {};
        auto *window = run.Start<CPairMatchingDialog>(QuizKind::PairMatching);
        QVERIFY(window != nullptr && !run.host.shown);
        QApplication::setActiveWindow(window);
        auto *table = Find<CPairTable>(window, "round");
        auto *check = Find<QPushButton>(window, "checkButton");
        auto *hint = Find<QLabel>(window, "hint");
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
        while (answers() != u"zxy"_s) {
            const int row = answers().indexOf(u'z') != 0 ? int(answers().indexOf(u'z')) : 2;
            table->showRow(row);
            QTest::keyClick(table, Qt::Key_Up, Qt::ShiftModifier);
        }
        check->click();
        QCOMPARE(hint->text(), u"3 fel."_s);
        QCOMPARE(window->findChild<CSpokenText *>()->accessibleName(), u"3 fel."_s);
        QCOMPARE(answers(), u"xyz"_s);
        QVERIFY(check->text() == u"Fort&sätt"_s && check->hasFocus());
        QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(answers(), u"xyz"_s);
        QTest::keyClick(check, Qt::Key_Space); // Too soon.
        QVERIFY(window->isVisible());
        run.clock.now += CInputGuard::Pause;
        QTest::keyClick(check, Qt::Key_Return);
        QVERIFY(!window->isVisible() && run.host.shown);
        CloseResult();
    }
};

QTEST_MAIN(PairMatchingTest)
#include "pair_matching_test.moc"
