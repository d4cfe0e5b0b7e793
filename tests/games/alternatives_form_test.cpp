// SPDX-License-Identifier: MIT
#include "games/alternatives_form.h"
#include "support/test_form.h"

#include <QTest>

#include <array>
#include <set>

namespace {

/// Words "0" to "count - 1" with the answers "a0", "a1" and so on.
QStringList Numbers(int count)
{
    QStringList entries;
    for (int i = 0; i < count; ++i) {
        entries.append(QStringLiteral("%1|a%1").arg(i));
    }
    return entries;
}

QStringList Answers(const CAlternativesForm &form)
{
    QStringList answers;
    for (int i = 0; i < form.answerCount(); ++i) {
        answers.append(form.answer(i));
    }
    return answers;
}

}

class AlternativesFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void draws_data();
    void draws();
    void wholeQuiz();
    void equalAnswers();
};

void AlternativesFormTest::draws_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("leastSeen"); // Different answers, over all draws.
    QTest::newRow("exactly four") << 4 << 4;
    QTest::newRow("one word of ten") << 10 << 10;
    QTest::newRow("a large list") << 10000 << 6000;
}

void AlternativesFormTest::draws()
{
    QFETCH(int, entries);
    QFETCH(int, leastSeen);
    TestDocument test(Numbers(entries));
    QuizSettings settings = InOrder(Requiz::None, 1);
    settings.wordsToQuiz = WordsToQuiz::Selected;
    const int last = entries - 1; // The next free one is the first then.
    TestForm<CAlternativesForm> quiz(test, settings, {&last, 1});
    std::array<int, 4> places = {};
    std::set<QString> seen;
    for (int draw = 0; draw < 4000; ++draw) {
        quiz.form.drawAnswers();
        const QStringList answers = Answers(quiz.form);
        const std::set<QString> distinct(answers.begin(), answers.end());
        QCOMPARE(distinct.size(), size_t(4));
        ++places.at(size_t(answers.indexOf(QStringLiteral("a%1").arg(last))));
        seen.insert(answers.begin(), answers.end());
    }
    for (const int times : places) {
        QVERIFY2(times > 850 && times < 1150, qPrintable(QString::number(times)));
    }
    QVERIFY2(seen.size() >= size_t(leastSeen), qPrintable(QString::number(seen.size())));
}

void AlternativesFormTest::wholeQuiz()
{
    TestDocument test({QStringLiteral("a|x * xx"), QStringLiteral("b|y [z]"), QStringLiteral("c|"),
        QStringLiteral("d|v"), QStringLiteral("e|w")});
    const QuizSettings settings = InOrder(Requiz::AtOnce, 1);
    TestForm<CAlternativesForm> quiz(test, settings);
    CAlternativesForm &form = quiz.form;
    QCOMPARE(quiz.session->wordCount(), 4); // Nothing that is right can be chosen for "c".
    using Next = CWordByWordForm::Next;
    const auto choose = [&](const char *answer) {
        form.drawAnswers();
        while (!Answers(form).contains(QString::fromUtf8(answer))) {
            form.drawAnswers();
        }
        const auto outcome = form.choose(int(Answers(form).indexOf(QString::fromUtf8(answer))));
        const int told = outcome.feedback ? outcome.feedback->number : 0;
        return std::pair(form.advance(outcome.verdict), told);
    };
    QCOMPARE(choose("v"), std::pair(Next::SameWord, 63005));
    QCOMPARE(choose("x * xx"), std::pair(Next::OtherWord, 0)); // The whole term is plainly right.
    quiz.session->changeEntry(form.currentEntry(), QStringLiteral("b"), QStringLiteral("x"), {});
    form.entriesChanged();
    QCOMPARE(choose("x"), std::pair(Next::OtherWord, 0));
    QCOMPARE(choose("v"), std::pair(Next::OtherWord, 0));
    QCOMPARE(choose("w"), std::pair(Next::Over, 0));
    QCOMPARE(quiz.session->record(0).answers, (QStringList{QStringLiteral("v"), QStringLiteral("x * xx")}));
    QCOMPARE(form.rightProgress().text, QStringLiteral("4 rätt av 5."));
}

void AlternativesFormTest::equalAnswers()
{
    TestDocument test(
        {QStringLiteral("a|x"), QStringLiteral("b|x"), QStringLiteral("c|X"), QStringLiteral("d|y [1]")});
    QuizSettings settings = InOrder(Requiz::None, 1);
    settings.ignoreCase = true;
    TestForm<CAlternativesForm> quiz(test, settings);
    quiz.form.drawAnswers();
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(quiz.form.isRight(i), quiz.form.answer(i) != QStringLiteral("y [1]"));
    }
    const qsizetype other = Answers(quiz.form).indexOf(QStringLiteral("X"));
    QCOMPARE(quiz.form.spoken().section(u'\n', int(other) + 1, int(other) + 1),
        QStringLiteral("%1. X").arg(other + 1));
    QVERIFY(quiz.form.choose(int(other)).verdict == AnswerVerdict::Right);
}

QTEST_APPLESS_MAIN(AlternativesFormTest)
#include "alternatives_form_test.moc"
