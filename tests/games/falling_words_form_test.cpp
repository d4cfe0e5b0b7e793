// SPDX-License-Identifier: MIT
#include "games/falling_words_form.h"
#include "support/test_form.h"

#include <QTest>

using namespace std::chrono_literals;
using Next = CWordByWordForm::Next;

class FallingWordsFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hitAndMissed();
    void pausedAcrossSpeedAndSize();
    void steps();
    void lastWord();
};

void FallingWordsFormTest::hitAndMissed()
{
    TestDocument test(QStringList{QStringLiteral("hund|dog * hound"), QStringLiteral("|nothing")});
    const QuizSettings settings = InOrder(Requiz::AtOnce, 1);
    TestForm<CFallingWordsForm> run(test, settings);
    CFallingWordsForm &form = run.form;
    form.setFallDistance(600); // Ten seconds at 60 pixels per second.
    QCOMPARE(form.fallingText(), QStringLiteral("hund"));
    QVERIFY(!form.answer(QStringLiteral("cat")) && !form.answer(QStringLiteral("  ")));
    QCOMPARE(run.session->totalWrong(), 0);
    QVERIFY(!form.timePassed(9999ms) && form.timePassed(1ms));
    QVERIFY(form.advance(form.land().verdict) == Next::SameWord);
    QCOMPARE(run.session->record(0).answers, QStringList{QStringLiteral("cat")});
    QCOMPARE(form.line(), QStringLiteral("Fel. Rätt svar är: dog * hound · Du svarade: cat"));
    QVERIFY(!form.timePassed(2999ms) && !form.line().isEmpty());
    QVERIFY(!form.timePassed(1ms) && form.line().isEmpty());

    QVERIFY(form.timePassed(7s)); // The try before counts no more.
    QVERIFY(form.advance(form.land().verdict) == Next::SameWord);
    QCOMPARE(run.session->record(0).answers.last(), QString());
    QVERIFY(!form.timePassed(9999ms)); // The last moment.
    const auto outcome = form.answer(QStringLiteral(" hound "));
    QVERIFY(outcome && outcome->verdict == AnswerVerdict::RightOneOfSeveral);
    QVERIFY(form.advance(outcome->verdict) == Next::OtherWord);
    QCOMPARE(form.line(), QStringLiteral("Rätt svar! Alla rätta svar är: dog * hound"));
    QCOMPARE(form.fallingText(), QStringLiteral("?"));
    QCOMPARE(form.fallen(), 0.0);
    QVERIFY(form.skip() == Next::Over);
    QCOMPARE(run.session->totalWrong(), 2);
}

void FallingWordsFormTest::pausedAcrossSpeedAndSize()
{
    TestDocument test(QStringList{QStringLiteral("hund|dog")});
    const QuizSettings settings = InOrder(Requiz::None, 1);
    TestForm<CFallingWordsForm> run(test, settings);
    CFallingWordsForm &form = run.form;
    form.setFallDistance(600);
    QVERIFY(!form.timePassed(5s));
    form.setPaused(true);
    QVERIFY(form.fallingText().isEmpty());
    QVERIFY(!form.timePassed(1h) && !form.answer(QStringLiteral("dog")));
    form.setSpeed(120);
    QCOMPARE(run.fallingWord.speed, 120);
    form.setFallDistance(300);
    QCOMPARE(form.fallen(), 0.5);
    form.setPaused(false);
    QVERIFY(!form.timePassed(1249ms) && form.timePassed(1ms));
}

void FallingWordsFormTest::steps()
{
    TestDocument test(QStringList{QStringLiteral("hund|dog")});
    const QuizSettings settings = InOrder(Requiz::None, 1);
    TestForm<CFallingWordsForm> run(test, settings);
    CFallingWordsForm &form = run.form;
    form.setFallDistance(240);
    form.setStepwise(true);
    QVERIFY(!form.timePassed(999ms));
    QCOMPARE(form.fallen(), 0.0);
    QVERIFY(!form.timePassed(1001ms));
    QCOMPARE(form.fallen(), 0.5);
    QVERIFY(!form.timePassed(1999ms) && form.timePassed(1ms));
}

void FallingWordsFormTest::lastWord()
{
    TestDocument test(QStringList{QStringLiteral("hund|dog")});
    const QuizSettings settings = InOrder(Requiz::None, 2);
    TestForm<CFallingWordsForm> run(test, settings);
    CFallingWordsForm &form = run.form;
    form.setFallDistance(60);
    QVERIFY(form.advance(form.answer(QStringLiteral("dog"))->verdict) == Next::OtherWord);
    QVERIFY(form.timePassed(1s));
    QVERIFY(form.advance(form.land().verdict) == Next::Over);
    QVERIFY(form.waitsForReader() && form.fallingText().isEmpty());
    QVERIFY(!form.timePassed(1h) && !form.line().isEmpty());
}

QTEST_APPLESS_MAIN(FallingWordsFormTest)
#include "falling_words_form_test.moc"
