// SPDX-License-Identifier: MIT
#include "games/alternatives_form.h"
#include "support/test_form.h"

#include <array>
#include <set>

namespace {

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
    void draws()
    {
        const struct
        {
            int entries;
            size_t leastSeen; // Different answers, over all draws.
        } rows[] = {{4, 4}, {10, 10}, {10000, 6000}};
        for (const auto &row : rows) {
            TestDocument test(NumberedEntries(row.entries, u"%1|a%1"_s));
            QuizSettings settings = InOrder(Requiz::None);
            settings.wordsToQuiz = WordsToQuiz::Selected;
            const int last = row.entries - 1; // The next free one is the first then.
            TestForm<CAlternativesForm> quiz(test, settings, {&last, 1});
            std::array<int, 4> places = {};
            std::set<QString> seen;
            for (int draw = 0; draw < 4000; ++draw) {
                quiz.form.drawAnswers();
                const QStringList answers = Answers(quiz.form);
                const std::set<QString> distinct(answers.begin(), answers.end());
                QCOMPARE(distinct.size(), size_t(4));
                ++places.at(size_t(answers.indexOf(u"a%1"_s.arg(last))));
                seen.insert(answers.begin(), answers.end());
            }
            for (const int times : places) {
                QVERIFY2(times > 850 && times < 1150, qPrintable(QString::number(times)));
            }
            QVERIFY2(seen.size() >= row.leastSeen, qPrintable(QString::number(seen.size())));
        }
    }

    void wholeQuiz()
    {
        TestDocument test({u"a|x * xx"_s, u"b|y [z]"_s, u"c|"_s, u"d|v"_s, u"e|w"_s});
        const QuizSettings settings = InOrder(Requiz::AtOnce);
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
        quiz.session->changeEntry(form.currentEntry(), u"b"_s, u"x"_s, {});
        form.entriesChanged();
        QCOMPARE(choose("x"), std::pair(Next::OtherWord, 0));
        QCOMPARE(choose("v"), std::pair(Next::OtherWord, 0));
        QCOMPARE(choose("w"), std::pair(Next::Over, 0));
        QCOMPARE(quiz.session->record(0).answers, (QStringList{u"v"_s, u"x * xx"_s}));
        QCOMPARE(form.rightProgress().text, u"4 rätt av 5."_s);
    }

    void equalAnswers()
    {
        TestDocument test({u"a|x"_s, u"b|x"_s, u"c|X"_s, u"d|y [1]"_s});
        QuizSettings settings = InOrder(Requiz::None);
        settings.ignoreCase = true;
        TestForm<CAlternativesForm> quiz(test, settings);
        quiz.form.drawAnswers();
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(quiz.form.isRight(i), quiz.form.answer(i) != u"y [1]"_s);
        }
        const qsizetype other = Answers(quiz.form).indexOf(u"X"_s);
        QCOMPARE(quiz.form.spoken().section(u'\n', int(other) + 1, int(other) + 1), u"%1. X"_s.arg(other + 1));
        QVERIFY(quiz.form.choose(int(other)).verdict == AnswerVerdict::Right);
    }
};

QTEST_APPLESS_MAIN(AlternativesFormTest)
#include "alternatives_form_test.moc"
