// SPDX-License-Identifier: MIT
#include "games/falling_words_form.h"
#include "support/test_form.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Next = CWordByWordForm::Next;

class FallingWordsFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hitAndMissed()
    {
        TestDocument test(QStringList{u"hund|dog * hound"_s, u"|nothing"_s});
        const QuizSettings settings = InOrder(Requiz::AtOnce, 1);
        TestForm<CFallingWordsForm> run(test, settings);
        CFallingWordsForm &form = run.form;
        form.setFallDistance(600); // Ten seconds at 60 pixels per second.
        QCOMPARE(form.fallingText(), u"hund"_s);
        QVERIFY(!form.answer(u"cat"_s) && !form.answer(u"  "_s));
        QCOMPARE(run.session->totalWrong(), 0);
        QVERIFY(!form.timePassed(9999ms) && form.timePassed(1ms));
        QVERIFY(form.advance(form.land().verdict) == Next::SameWord);
        QCOMPARE(run.session->record(0).answers, QStringList{u"cat"_s});
        QCOMPARE(form.line(), u"Fel. Rätt svar är: dog * hound · Du svarade: cat"_s);
        QVERIFY(!form.timePassed(2999ms) && !form.line().isEmpty());
        QVERIFY(!form.timePassed(1ms) && form.line().isEmpty());

        QVERIFY(form.timePassed(7s)); // The try before counts no more.
        QVERIFY(form.advance(form.land().verdict) == Next::SameWord);
        QCOMPARE(run.session->record(0).answers.last(), QString());
        QVERIFY(!form.timePassed(9999ms)); // The last moment.
        const auto outcome = form.answer(u" hound "_s);
        QVERIFY(outcome && outcome->verdict == AnswerVerdict::RightOneOfSeveral);
        QVERIFY(form.advance(outcome->verdict) == Next::OtherWord);
        QCOMPARE(form.line(), u"Rätt svar! Alla rätta svar är: dog * hound"_s);
        QCOMPARE(form.fallingText(), u"?"_s);
        QCOMPARE(form.fallen(), 0.0);
        QVERIFY(form.skip() == Next::Over);
        QCOMPARE(run.session->totalWrong(), 2);
    }

    void pausedAcrossSpeedAndSize()
    {
        TestDocument test(QStringList{u"hund|dog"_s});
        const QuizSettings settings = InOrder(Requiz::None, 1);
        TestForm<CFallingWordsForm> run(test, settings);
        CFallingWordsForm &form = run.form;
        form.setFallDistance(600);
        QVERIFY(!form.timePassed(5s));
        form.setPaused(true);
        QVERIFY(form.fallingText().isEmpty());
        QVERIFY(!form.timePassed(1h) && !form.answer(u"dog"_s));
        form.setSpeed(120);
        QCOMPARE(run.fallingWord.speed, 120);
        form.setFallDistance(300);
        QCOMPARE(form.fallen(), 0.5);
        form.setPaused(false);
        QVERIFY(!form.timePassed(1249ms) && form.timePassed(1ms));
    }

    void steps()
    {
        TestDocument test(QStringList{u"hund|dog"_s});
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

    void lastWord()
    {
        TestDocument test(QStringList{u"hund|dog"_s});
        const QuizSettings settings = InOrder(Requiz::None, 2);
        TestForm<CFallingWordsForm> run(test, settings);
        CFallingWordsForm &form = run.form;
        form.setFallDistance(60);
        QVERIFY(form.advance(form.answer(u"dog"_s)->verdict) == Next::OtherWord);
        QVERIFY(form.timePassed(1s));
        QVERIFY(form.advance(form.land().verdict) == Next::Over);
        QVERIFY(form.waitsForReader() && form.fallingText().isEmpty());
        QVERIFY(!form.timePassed(1h) && !form.line().isEmpty());
    }
};

QTEST_APPLESS_MAIN(FallingWordsFormTest)
#include "falling_words_form_test.moc"
