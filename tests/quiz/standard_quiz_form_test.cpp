// SPDX-License-Identifier: MIT
#include "quiz/standard_quiz_form.h"
#include "support/test_form.h"

#include <QTest>

namespace {

using Next = CWordByWordForm::Next;

/// Plays a quiz by script and returns a line per step: the question, the statistics, and the number of the text
/// shown after the answer. A step is an answer, "-" to skip, "!" for the button "I was right", or "term 1=term
/// 2" to change the entry asked.
QStringList Play(TestDocument &test, const QuizSettings &settings, const QString &script)
{
    TestForm<CStandardQuizForm> quiz(test, settings);
    CStandardQuizForm &form = quiz.form;
    QStringList lines;
    auto next = Next::SameWord;
    for (const QString &step : script.split(u' ')) {
        if (next == Next::Over) {
            break;
        }
        QString line = form.question() + u' ' + form.roundText() + u' ' + form.wordProgress()->text + u' '
            + form.rightProgress().text;
        if (step == u'-') {
            next = form.skip();
        } else if (step == u'!') {
            line += u' ' + acceptCaption(form.acceptOffer(), test.texts);
            next = form.takeAcceptOffer();
        } else if (step.contains(u'=')) {
            quiz.session->changeEntry(
                form.currentEntry(), step.section(u'=', 0, 0), step.section(u'=', 1, 1), {});
            form.entriesChanged();
        } else {
            const auto outcome = form.answer(QString(step).replace(u'_', u' '));
            line += outcome.feedback ? QStringLiteral(" %1").arg(outcome.feedback->number) : QString();
            next = form.advance(outcome.verdict);
        }
        lines.append(line);
    }
    lines.append(next == Next::Over ? QStringLiteral("over") : form.question());
    return lines;
}

}

class StandardQuizFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuizzes_data();
    void wholeQuizzes();
    void learning();
    void nothingToAsk();
};

void StandardQuizFormTest::wholeQuizzes_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QuizSettings>("settings");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("lines");

    const QStringList animals = {QStringLiteral("hund * vovve|dog"), QStringLiteral("katt|cat * puss")};
    QTest::newRow("two rounds in order") << animals << InOrder(Requiz::None, 2) << "_dog_ puss _ -"
                                         <<
        R"(Vad heter "hund * vovve" på Engelska? Förhör 1 av 2. Glosa 1 av 2. 0 rätt av 0.
Vad heter "katt" på Engelska? Förhör 1 av 2. Glosa 2 av 2. 1 rätt av 1. 63004
Vad heter "hund * vovve" på Engelska? Förhör 2 av 2. Glosa 1 av 2. 2 rätt av 2. 63003
Vad heter "katt" på Engelska? Förhör 2 av 2. Glosa 2 av 2. 2 rätt av 3.
over)";

    QuizSettings backwards = InOrder(Requiz::None, 1);
    backwards.order = QuizOrder::Backwards;
    backwards.showLanguage = QuizDirection::FromLanguage2;
    QTest::newRow("backwards, the other direction") << animals << backwards << "puss vovve"
                                                    <<
        R"(Vad heter "cat * puss" på Svenska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0. 63005
Vad heter "dog" på Svenska? Förhör 1 av 1. Glosa 2 av 2. 0 rätt av 1. 63004
over)";

    const QStringList letters = {QStringLiteral("a|x"), QStringLiteral("b|y")};
    QTest::newRow("again at once") << letters << InOrder(Requiz::AtOnce, 1) << "- 0 _ y"
                                   <<
        R"(Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0.
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 0 rätt av 0. 63005
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 0 rätt av 1. 63003
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 0 rätt av 2.
over)";

    QuizSettings repeated = InOrder(Requiz::AfterRound, 2);
    repeated.requizNumber = 2;
    repeated.showAnswer = false;
    QTest::newRow("at most two repeats after each round") << letters << repeated << "0 0 0 y 0 x 0 y"
                                                          <<
        R"(Vad heter "a" på Engelska? Förhör 1 av 2. Glosa 1 av 2. 0 rätt av 0.
Vad heter "b" på Engelska? Förhör 1 av 2. Glosa 2 av 2. 0 rätt av 1.
Vad heter "a" på Engelska? Förhör 1 av 2. Omförhör 1 av 2. Glosa 1 av 2. 0 rätt av 2.
Vad heter "b" på Engelska? Förhör 1 av 2. Omförhör 1 av 2. Glosa 2 av 2. 0 rätt av 3.
Vad heter "a" på Engelska? Förhör 1 av 2. Omförhör 2 av 2. Glosa 1 av 1. 1 rätt av 4.
Vad heter "a" på Engelska? Förhör 2 av 2. Glosa 1 av 2. 1 rätt av 5.
Vad heter "b" på Engelska? Förhör 2 av 2. Glosa 2 av 2. 2 rätt av 6.
Vad heter "b" på Engelska? Förhör 2 av 2. Omförhör 1 av 2. Glosa 1 av 1. 2 rätt av 7.
over)";

    repeated.quizNumber = 1;
    repeated.requizMax = false;
    QTest::newRow("repeats without a maximum") << letters << repeated << "x 0 0 0 y"
                                               <<
        R"(Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0.
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 1 rätt av 1.
Vad heter "b" på Engelska? Förhör 1 av 1. Omförhör 1. Glosa 1 av 1. 1 rätt av 2.
Vad heter "b" på Engelska? Förhör 1 av 1. Omförhör 2. Glosa 1 av 1. 1 rätt av 3.
Vad heter "b" på Engelska? Förhör 1 av 1. Omförhör 3. Glosa 1 av 1. 1 rätt av 4.
over)";

    QTest::newRow("an entry changes before it would be repeated") << letters << repeated << "x 0 b=0 -"
                                                                  <<
        R"(Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0.
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 1 rätt av 1.
Vad heter "b" på Engelska? Förhör 1 av 1. Omförhör 1. Glosa 1 av 1. 1 rätt av 2.
Vad heter "b" på Engelska? Förhör 1 av 1. Omförhör 1. Glosa 1 av 1. 2 rätt av 2.
over)";
    QTest::newRow("an entry changes in the middle of a round")
        << letters << InOrder(Requiz::AtOnce, 1) << "0 aa=0 0 y"
        <<
        R"(Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0. 63005
Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 1.
Vad heter "aa" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 1 rätt av 1.
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 2 rätt av 2.
over)";

    QTest::newRow("I was right: a word asked again is left, and comes back")
        << letters << InOrder(Requiz::AtOnce, 1) << "! 0 ! ! 0 - ! y"
        <<
        R"(Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0. Ja&g hade rätt
Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0. 63005
Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 1. Ja&g hade rätt: 0 = a
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 1 rätt av 1. Ån&gra: 0 = a
Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 1. 63005
Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 2.
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 0 rätt av 2. Ja&g hade rätt
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 0 rätt av 2.
over)";
    QTest::newRow("I was right: a word left behind is not repeated") << letters << repeated << "0 ! y"
                                                                     <<
        R"(Vad heter "a" på Engelska? Förhör 1 av 1. Glosa 1 av 2. 0 rätt av 0.
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 0 rätt av 1. Ja&g hade rätt: 0 = a
Vad heter "b" på Engelska? Förhör 1 av 1. Glosa 2 av 2. 1 rätt av 1.
over)";
}

void StandardQuizFormTest::wholeQuizzes()
{
    QFETCH(QStringList, entries);
    QFETCH(QuizSettings, settings);
    QFETCH(QString, script);
    QFETCH(QString, lines);
    TestDocument test(entries);
    QCOMPARE(Play(test, settings, script), lines.split(u'\n'));
}

void StandardQuizFormTest::learning()
{
    TestDocument test(QStringList{QStringLiteral("a|b [x] * c")});
    QuizSettings settings = InOrder(Requiz::None, 1);
    TestForm<CStandardQuizForm> quiz(test, settings);
    CStandardQuizForm &form = quiz.form;
    QCOMPARE(form.prefilledAnswer(), QString());
    settings.learning = true;
    QCOMPARE(form.prefilledAnswer(), QStringLiteral("b [x] * c"));
    QCOMPARE(form.answer(form.prefilledAnswer()).verdict, AnswerVerdict::Right);
}

void StandardQuizFormTest::nothingToAsk()
{
    TestDocument test;
    const QuizSettings settings = InOrder(Requiz::AtOnce, 3);
    TestForm<CStandardQuizForm> quiz(test, settings);
    CStandardQuizForm &form = quiz.form;
    QVERIFY(form.skip() == Next::Over && form.acceptOffer().kind == AcceptOffer::Kind::Nothing);
}

QTEST_APPLESS_MAIN(StandardQuizFormTest)
#include "standard_quiz_form_test.moc"
