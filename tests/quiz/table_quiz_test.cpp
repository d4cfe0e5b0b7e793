// SPDX-License-Identifier: MIT
#include "quiz/table_quiz_form.h"
#include "quiz/ui/change_entry_dialog.h"
#include "quiz/ui/table_quiz.h"
#include "support/test_form.h"
#include "support/test_quiz.h"

namespace {

/// What the window would show: the round, the rows with the current one in brackets and answers marked by "*",
/// and the question.
QString Shown(const CTableQuizForm &form)
{
    QStringList rows;
    for (int row = 0; row < form.rowCount(); ++row) {
        const QString mark = form.hasMark(row, 1) ? u"*"_s : QString();
        const QString text = form.cell(row, 0) + u'|' + form.cell(row, 1) + mark;
        rows.append(row == form.currentRow() ? u'[' + text + u']' : text);
    }
    return form.roundText() + u' ' + rows.join(u' ') + u' ' + form.question();
}

/// Plays a quiz by script and returns a line per step. A step is an answer ("." for none), "@2" to select a
/// row, "?k" to search for one, "term 1=term 2" to change the entry of the current row, "!" to check the round
/// and ">" to go on.
QStringList Play(const QStringList &entries, const QuizSettings &settings, const QString &script)
{
    TestDocument test(entries);
    TestForm<CTableQuizForm> quiz(test, settings);
    CTableQuizForm &form = quiz.form;
    QStringList lines;
    for (const QString &step : script.split(u' ')) {
        QString line;
        if (step.startsWith(u'@')) {
            form.selectRow(step.mid(1).toInt());
        } else if (step.startsWith(u'?')) {
            form.selectRow(form.findRow(step.mid(1), form.currentRow()).value_or(-1));
        } else if (step == u'!') {
            const CWholeRoundForm::Outcome outcome = form.check();
            line = outcome.summary + u' ' + form.rightProgress().text + u' ';
            line += outcome.feedback ? QString::number(outcome.feedback->number) + u' ' : QString();
        } else if (step == u'>') {
            if (!form.startRound()) {
                lines.append(u"over"_s);
                break;
            }
        } else if (step.contains(u'=')) {
            quiz.session->changeEntry(
                form.currentEntry(), step.section(u'=', 0, 0), step.section(u'=', 1, 1), {});
            form.entriesChanged();
        } else {
            form.answer(step == u'.' ? QString() : QString(step).replace(u'_', u' '));
        }
        lines.append(line + Shown(form));
    }
    return lines;
}

}

class TableQuizTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuizzes()
    {
        const QStringList animals = {u"hund * vovve|dog"_s, u"katt|cat * puss"_s, u"ko|cow"_s};
        const QStringList letters = {u"a|x"_s, u"b|y"_s, u"c|z"_s};
        QuizSettings silent = InOrder(Requiz::AtOnce, 2);
        silent.showAnswer = false;
        const struct
        {
            QStringList entries;
            QuizSettings settings;
            QString script, lines;
        } rows[] = {
            // In any order; mistakes, then synonyms.
            {animals, InOrder(Requiz::None), u"@1 _puss_ x ! y ?k >"_s,
                uR"(Förhör 1 av 1. hund * vovve| [katt|] ko| Vad heter "katt" på Engelska?
Förhör 1 av 1. hund * vovve| katt|puss* [ko|] Vad heter "ko" på Engelska?
Förhör 1 av 1. [hund * vovve|] katt|puss* ko|x* Vad heter "hund * vovve" på Engelska?
2 fel. 1 rätt av 3. Förhör 1 av 1. [hund * vovve|dog] ko|cow --- Rätta svar med synonymer ---|--- Rätta svar med synonymer --- katt|cat * puss 2 fel.
Förhör 1 av 1. [hund * vovve|dog] ko|cow --- Rätta svar med synonymer ---|--- Rätta svar med synonymer --- katt|cat * puss 2 fel.
Förhör 1 av 1. [hund * vovve|dog] ko|cow --- Rätta svar med synonymer ---|--- Rätta svar med synonymer --- katt|cat * puss 2 fel.
over)"_s},
            // Only mistakes come again, and an entry changes.
            {letters, InOrder(Requiz::AfterRound), u"! > x b=0 0 ! > _z_ ! >"_s,
                uR"(3 fel. 0 rätt av 3. Förhör 1 av 1. [a|x] b|y c|z 3 fel.
Förhör 1 av 1. Omförhör 1 av 3. [a|] b| c| Vad heter "a" på Engelska?
Förhör 1 av 1. Omförhör 1 av 3. a|x* [b|] c| Vad heter "b" på Engelska?
Förhör 1 av 1. Omförhör 1 av 3. a|x* [b|] c| Vad heter "b" på Engelska?
Förhör 1 av 1. Omförhör 1 av 3. a|x* b|0* [c|] Vad heter "c" på Engelska?
1 fel. 2 rätt av 6. Förhör 1 av 1. Omförhör 1 av 3. [c|z] 1 fel.
Förhör 1 av 1. Omförhör 2 av 3. [c|] Vad heter "c" på Engelska?
Förhör 1 av 1. Omförhör 2 av 3. [c|z*] Vad heter "c" på Engelska?
Alla ord var rätt. 3 rätt av 7. 63100 Förhör 1 av 1. Omförhör 2 av 3.  Alla ord var rätt.
over)"_s},
            // Mistakes are not shown, nor asked at once.
            {letters, silent, u"! >"_s, uR"(3 fel. 0 rätt av 3. Förhör 1 av 2.  3 fel.
Förhör 2 av 2. [a|] b| c| Vad heter "a" på Engelska?)"_s},
            // Searching from the current row on.
            {{u"Hund|h"_s, u"katt|k"_s, u"häst|z"_s}, InOrder(Requiz::None), u"?h ?hä ?K ?z"_s,
                uR"(Förhör 1 av 1. [Hund|] katt| häst| Vad heter "Hund" på Engelska?
Förhör 1 av 1. Hund| katt| [häst|] Vad heter "häst" på Engelska?
Förhör 1 av 1. Hund| [katt|] häst| Vad heter "katt" på Engelska?
Förhör 1 av 1. Hund| [katt|] häst| Vad heter "katt" på Engelska?)"_s},
        };
        for (const auto &row : rows) {
            QCOMPARE(Play(row.entries, row.settings, row.script), row.lines.split(u'\n'));
        }
    }

    void window()
    {
        TestQuiz run;
        run.test.prompt.answers = {PromptAnswer::No};
        run.settings.quizNumber = 2;
        run.clock.step = {};
        auto *window = run.Start<CTableQuiz>(QuizKind::Table);
        QVERIFY(window != nullptr && !run.host.shown);
        QApplication::setActiveWindow(window);
        run.clock.now += CInputGuard::Pause;
        auto *table = Find<QTableView>(window, "round");
        auto *question = Find<QPlainTextEdit>(window, "question");
        auto *answer = Find<QLineEdit>(window, "answer");
        const auto button = [&](const char *name) { return Find<QPushButton>(window, name); };
        const auto cell = [&](int row, int column) {
            return table->model()->index(row, column).data().toString();
        };
        QVERIFY(answer->hasFocus() && table->currentIndex().row() == 0);
        QTest::keyClick(answer, Qt::Key_Backtab);
        // The row that has the focus is read out.
        QTRY_COMPARE(window->findChild<CSpokenText *>()->accessibleName(), u"hund"_s);

        // Typed and not confirmed, but for the row that is current when the round is checked.
        QTest::keyClicks(answer, u"lost"_s);
        QTest::keyClick(table, Qt::Key_Down);
        QTest::keyClicks(answer, u"dog"_s);
        button("checkButton")->click();
        QCOMPARE(question->toPlainText(), u"2 fel."_s);
        QCOMPARE(window->findChild<CSpokenText *>()->accessibleName(), u"2 fel."_s);
        QCOMPARE(cell(1, 0) + cell(1, 1), u"<b>katt</b>cat"_s);
        QCOMPARE(button("answerButton")->text(), u"Fort&sätt"_s);
        QVERIFY(!answer->isEnabled() && !button("checkButton")->isEnabled()
            && !button("changeButton")->isEnabled());
        QTest::keyClick(button("answerButton"), Qt::Key_Return); // Too soon.
        QTest::keyClick(button("answerButton"), Qt::Key_Space);
        QVERIFY(!answer->isEnabled());
        run.clock.now += CInputGuard::Pause;
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(window->isVisible() && button("answerButton")->hasFocus());
        QTest::keyClick(table, Qt::Key_Return);

        QVERIFY(answer->isEnabled() && answer->hasFocus() && button("changeButton")->isEnabled());
        QCOMPARE(button("answerButton")->text(), u"&Svara"_s);
        run.clock.now += CInputGuard::Pause;
        QTest::keyClicks(answer, u" dog"_s);
        QTest::keyClick(answer, Qt::Key_Return);
        QCOMPARE(question->toPlainText(), u"Vad heter \"<b>katt</b>\" på Engelska?"_s);
        QTest::keyClicks(answer, u"cat"_s);
        button("changeButton")->click();
        FindWindow<CChangeEntryDialog>()->reject();
        QCOMPARE(answer->text(), u"cat"_s); // It stays while an entry is changed.
        QTest::keyClick(table, Qt::Key_H); // Back to the first row, by its beginning.
        QCOMPARE(answer->text(), u"dog"_s);
        QTest::keyClick(table, Qt::Key_Down);
        QTest::keyClicks(answer, u"cat"_s);
        button("checkButton")->click();
        QCOMPARE(run.test.prompt.numbers, (QList<int>{Text::ReallyEndQuiz, Text::AllWordsRight}));
        QCOMPARE(table->model()->rowCount(), 0);
        QCOMPARE(question->toPlainText(), u"Alla ord var rätt."_s);
        run.clock.now += CInputGuard::Pause;
        button("answerButton")->click();
        QVERIFY(!window->isVisible() && run.host.shown);
        CloseResult();
        run.launch.startQuiz(QuizKind::Table); // The program ends: what it shows must last until it is gone.
    }
};

QTEST_MAIN(TableQuizTest)
#include "table_quiz_test.moc"
