// SPDX-License-Identifier: MIT
#include "quiz/quiz_result.h"
#include "quiz/standard_quiz_form.h"
#include "settings/quiz_settings.h"
#include "support/test_document.h"

#include <QTest>

class StandardQuizFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeQuiz();
    void askedAgainAtOnce();
    void requizLines();
    void learning();
    void results();

private:
    /// Plays a quiz by script: each step is an answer, or "-" to skip. Returns a line per step.
    static QStringList Play(TestDocument &test, const QuizSettings &settings, const QStringList &steps)
    {
        CRandom random(1);
        CQuizSession session(test.document, settings, random, {});
        CStandardQuizForm form(session, settings, test.texts);
        QStringList lines;
        bool more = true;
        for (const QString &step : steps) {
            if (!more) {
                lines.append(QStringLiteral("over"));
                break;
            }
            QString line = form.question() + u' ' + form.roundText() + u' ' + form.wordProgress().text + u' '
                + form.rightProgress().text;
            if (step == u'-') {
                more = form.skip();
            } else {
                const auto outcome = form.answer(step);
                line += outcome.feedback ? QStringLiteral(" %1").arg(outcome.feedback->number) : QString();
                more = form.advance(outcome.verdict);
            }
            lines.append(line);
        }
        if (!more) {
            lines.append(QStringLiteral("over"));
        }
        return lines;
    }

    static QuizSettings InOrder(int requiz)
    {
        QuizSettings settings;
        settings.order = 0;
        settings.requiz = requiz;
        settings.includeFlaggedWords = 1;
        return settings;
    }
};

void StandardQuizFormTest::wholeQuiz()
{
    TestDocument test(QStringList{QStringLiteral("hund * vovve|dog"), QStringLiteral("katt|cat * puss")});
    QuizSettings settings = InOrder(0);
    settings.quizNumber = 2;
    settings.showAnswerIfOneCorrect = true;
    QCOMPARE(
        Play(test, settings, {QStringLiteral(" dog "), QStringLiteral("puss"), QString(), QStringLiteral("-")}),
        QStringList({QStringLiteral(
                         "Vad heter \"hund * vovve\" på Engelska? Förhör 1 av 2. Glosa 1 av 2. 0 rätt av 0."),
            QStringLiteral("Vad heter \"katt\" på Engelska? Förhör 1 av 2. Glosa 2 av 2. 1 rätt av 1. 63004"),
            QStringLiteral(
                "Vad heter \"hund * vovve\" på Engelska? Förhör 2 av 2. Glosa 1 av 2. 2 rätt av 2. 63003"),
            QStringLiteral("Vad heter \"katt\" på Engelska? Förhör 2 av 2. Glosa 2 av 2. 2 rätt av 3."),
            QStringLiteral("over")}));
}

void StandardQuizFormTest::askedAgainAtOnce()
{
    TestDocument test(QStringList{QStringLiteral("a|b")});
    QuizSettings settings = InOrder(2);
    settings.quizNumber = 2;
    const QStringList lines = Play(test, settings,
        {QStringLiteral("x"), QString(), QStringLiteral("b"), QStringLiteral("x"), QStringLiteral("-")});
    QCOMPARE(lines,
        QStringList(
            {QStringLiteral("Vad heter \"a\" på Engelska? Förhör 1 av 2. Glosa 1 av 1. 0 rätt av 0. 63005"),
                QStringLiteral("Vad heter \"a\" på Engelska? Förhör 1 av 2. Glosa 1 av 1. 0 rätt av 1. 63003"),
                QStringLiteral("Vad heter \"a\" på Engelska? Förhör 1 av 2. Glosa 1 av 1. 0 rätt av 2."),
                QStringLiteral("Vad heter \"a\" på Engelska? Förhör 2 av 2. Glosa 1 av 1. 1 rätt av 3. 63005"),
                QStringLiteral("Vad heter \"a\" på Engelska? Förhör 2 av 2. Glosa 1 av 1. 1 rätt av 4."),
                QStringLiteral("over")}));
}

void StandardQuizFormTest::requizLines()
{
    TestDocument test(QStringList{QStringLiteral("a|b"), QStringLiteral("c|d")});
    QuizSettings settings = InOrder(1);
    settings.quizNumber = 1;
    settings.showAnswer = false;
    const QStringList steps = {QStringLiteral("b"), QStringLiteral("x"), QStringLiteral("d")};
    QStringList lines = Play(test, settings, steps);
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(2),
        QStringLiteral(
            "Vad heter \"c\" på Engelska? Förhör 1 av 1. Omförhör 1 av 3. Glosa 1 av 1. 1 rätt av 2."));
    settings.requizMax = false;
    lines = Play(test, settings, steps);
    QCOMPARE(lines.at(2),
        QStringLiteral("Vad heter \"c\" på Engelska? Förhör 1 av 1. Omförhör 1. Glosa 1 av 1. 1 rätt av 2."));
}

void StandardQuizFormTest::learning()
{
    TestDocument test(QStringList{QStringLiteral("a|b [x] * c")});
    QuizSettings settings = InOrder(0);
    CRandom random(1);
    CQuizSession session(test.document, settings, random, {});
    CStandardQuizForm form(session, settings, test.texts);
    QCOMPARE(form.prefilledAnswer(), QString());
    settings.learning = true;
    QCOMPARE(form.prefilledAnswer(), QStringLiteral("b [x] * c"));
    QCOMPARE(form.answer(form.prefilledAnswer()).verdict, AnswerVerdict::Right);
}

void StandardQuizFormTest::results()
{
    TestDocument test(QStringList{QStringLiteral("a|b"), QStringLiteral("c|d")});
    const QuizSettings settings = InOrder(2);
    CRandom random(1);
    CQuizSession session(test.document, settings, random, {});
    session.recordAnswer(0, QStringLiteral("x"));
    session.recordAnswer(0, QStringLiteral("%s"));
    session.recordAnswer(0, QStringLiteral("b"));
    const QuizResultRow first = resultRow(session, test.texts, 0);
    QCOMPARE(first.question + u'|' + first.answer + u'|' + first.share + u'|' + first.wrongAnswers,
        QStringLiteral("a|b|1 av 3 (33%)|\"x\", \"%s\""));
    QCOMPARE(first.percent, 33);
    const QuizResultRow second = resultRow(session, test.texts, 1);
    QCOMPARE(second.share, QStringLiteral("-"));
    QCOMPARE(second.percent, -1);
    QCOMPARE(resultSummary(session, test.texts), QStringLiteral("Totalt 2 glosor. Av 3 svar är 1 rätt (33%)."));
}

QTEST_APPLESS_MAIN(StandardQuizFormTest)
#include "standard_quiz_form_test.moc"
