// SPDX-License-Identifier: MIT
#include "quiz/quiz_session.h"
#include "settings/quiz_settings.h"
#include "support/test_document.h"

#include <QTest>

#include <set>

namespace {

/// Settings under which every word is asked once in list order.
QuizSettings PlainSettings()
{
    QuizSettings settings;
    settings.order = 0;
    settings.quizNumber = 1;
    settings.requiz = 0;
    settings.includeFlaggedWords = 1;
    return settings;
}

QStringList Words(int count, const QString &flags = {})
{
    QStringList words;
    for (int i = 0; i < count; ++i) {
        words.append(QStringLiteral("q%1|a%1||%2").arg(i).arg(flags));
    }
    return words;
}

/// The question words of the current round in order.
QString Round(const CQuizSession &session)
{
    QStringList words;
    for (int i = 0; i < session.roundSize(); ++i) {
        words.append(session.questionOfRound(i).entry.GetText(0));
    }
    return words.join(u' ');
}

}

class QuizSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selection_data();
    void selection();
    void flaggedWords();
    void selectedEntries();
    void orders();
    void randomRounds();
    void requizRounds();
    void recheckAfterAChange();
    void percentages();
    void flagDecisions_data();
    void flagDecisions();
    void applyingFlags();
    void questions();
    void emptySessions();
};

void QuizSessionTest::selection_data()
{
    QTest::addColumn<int>("wordsToQuiz");
    QTest::addColumn<int>("amount");
    QTest::addColumn<int>("available");
    QTest::addColumn<int>("expected");
    QTest::newRow("all") << 0 << 3 << 10 << 10;
    QTest::newRow("fixed number") << 1 << 3 << 10 << 3;
    QTest::newRow("more than there are") << 1 << 20 << 5 << 5;
    QTest::newRow("no words") << 1 << 0 << 5 << 0;
    QTest::newRow("less than none") << 1 << -4 << 5 << 0;
    QTest::newRow("share rounds half up") << 2 << 25 << 10 << 3;
    QTest::newRow("share is at least one") << 2 << 1 << 10 << 1;
    QTest::newRow("share of nothing is one") << 2 << 0 << 10 << 1;
    QTest::newRow("share out of range is all") << 2 << 101 << 10 << 10;
    QTest::newRow("share of an empty list") << 2 << 50 << 0 << 0;
    QTest::newRow("selected without a selection is all") << 3 << 3 << 10 << 10;
}

void QuizSessionTest::selection()
{
    QFETCH(int, wordsToQuiz);
    QFETCH(int, amount);
    QFETCH(int, available);
    QFETCH(int, expected);
    TestDocument test(Words(available));
    QuizSettings settings = PlainSettings();
    settings.wordsToQuiz = wordsToQuiz;
    settings.numberOfWords = amount;
    settings.partOfWords = amount;
    for (quint32 seed = 0; seed < 20; ++seed) {
        CRandom random(seed);
        const CQuizSession session(test.document, settings, random, {});
        QCOMPARE(session.wordCount(), expected);
        QVERIFY(std::ranges::is_sorted(session.candidates()));
        QCOMPARE(
            std::set<int>(session.candidates().begin(), session.candidates().end()).size(), size_t(expected));
    }
}

void QuizSessionTest::flaggedWords()
{
    TestDocument test(QStringList{QStringLiteral("a|b||1"), QStringLiteral("c|d||2"), QStringLiteral("e|f")});
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.includeFlaggedWords = 0;
    QCOMPARE(CQuizSession(test.document, settings, random, {}).candidates(), (std::vector<int>{1, 2}));
    settings.showLanguage = 1;
    QCOMPARE(CQuizSession(test.document, settings, random, {}).candidates(), (std::vector<int>{0, 2}));
    TestDocument learnt(Words(4, QStringLiteral("1")));
    settings.showLanguage = 0;
    QCOMPARE(
        CQuizSession(learnt.document, settings, random, {}).wordCount(), 4); // Nothing else is left to ask.

    // Sometimes: the share kept over many draws.
    QStringList words = Words(3000, QStringLiteral("1"));
    words.append(QStringLiteral("x|y"));
    TestDocument many(words);
    settings.includeFlaggedWords = 2;
    settings.includeFlaggedProbability = 20;
    const int kept = CQuizSession(many.document, settings, random, {}).wordCount();
    QVERIFY2(kept > 500 && kept < 700, qPrintable(QString::number(kept)));
}

void QuizSessionTest::selectedEntries()
{
    TestDocument test(Words(6));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.wordsToQuiz = 3;
    const CQuizSession session(test.document, settings, random, std::vector<int>{1, 4});
    QCOMPARE(Round(session), QStringLiteral("q1 q4"));
}

void QuizSessionTest::orders()
{
    TestDocument test(Words(3));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.quizNumber = 2;
    settings.order = 1;
    CQuizSession session(test.document, settings, random, {});
    QCOMPARE(Round(session), QStringLiteral("q2 q1 q0"));
    QCOMPARE(session.baseRound(), 1);
    QVERIFY(session.startRound());
    QCOMPARE(session.baseRound(), 2);
    QVERIFY(!session.startRound());
}

void QuizSessionTest::randomRounds()
{
    for (quint32 seed = 0; seed < 200; ++seed) {
        const int count = 2 + int(seed % 4);
        TestDocument test(Words(count));
        CRandom random(seed);
        QuizSettings settings = PlainSettings();
        settings.order = 2;
        settings.quizNumber = 5;
        CQuizSession session(test.document, settings, random, {});
        QString last;
        do {
            const QStringList words = Round(session).split(u' ');
            QCOMPARE(int(std::set<QString>(words.begin(), words.end()).size()), count);
            QVERIFY(words.first() != last);
            last = words.last();
        } while (session.startRound());
    }
}

void QuizSessionTest::requizRounds()
{
    TestDocument test(Words(3));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.requiz = 1;
    settings.quizNumber = 2;
    settings.requizMax = true;
    settings.requizNumber = 2;
    CQuizSession session(test.document, settings, random, {});
    const auto answerAll = [&](const QString &answers) {
        for (int i = 0; i < session.roundSize(); ++i) {
            session.recordAnswer(i, answers.section(u' ', i, i));
        }
        return session.startRound();
    };
    QVERIFY(answerAll(QStringLiteral("x a1 x")));
    QCOMPARE(Round(session), QStringLiteral("q0 q2"));
    QCOMPARE(session.requizRound(), 1);
    QVERIFY(answerAll(QStringLiteral("x a2")));
    QCOMPARE(Round(session), QStringLiteral("q0"));
    QVERIFY(answerAll(QStringLiteral("x"))); // Two rounds were the most: a base round follows.
    QCOMPARE(Round(session), QStringLiteral("q0 q1 q2"));
    QCOMPARE(session.baseRound(), 2);
    QCOMPARE(session.requizRound(), 0);
    QVERIFY(!answerAll(QStringLiteral("a0 a1 a2")));
    QCOMPARE(session.totalRight(), 5);
    QCOMPARE(session.totalWrong(), 4);

    settings.requizMax = false;
    settings.quizNumber = 1;
    CQuizSession endless(test.document, settings, random, {});
    for (int i = 0; i < 20; ++i) {
        endless.recordAnswer(0, QStringLiteral("x"));
        endless.recordAnswer(0, QStringLiteral("x")); // Wrong twice, asked again once.
        QVERIFY(endless.startRound());
        QCOMPARE(Round(endless), QStringLiteral("q0"));
    }
    endless.recordAnswer(0, QStringLiteral("a0"));
    QVERIFY(!endless.startRound());
}

void QuizSessionTest::recheckAfterAChange()
{
    TestDocument test(Words(2));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.requiz = 1;
    CQuizSession session(test.document, settings, random, {});
    session.recordAnswer(0, QStringLiteral("new"));
    session.recordAnswer(1, QString());
    session.recordAnswer(1, QStringLiteral("y"));
    test.document.BeginChange().SetEntryField(QStringLiteral("new"), 1, 0, false);
    session.recheckAll();
    QCOMPARE(session.totalRight(), 1);
    QCOMPARE(session.totalWrong(), 2);
    QCOMPARE(session.wrongAnswers(0), QStringList());
    QCOMPARE(session.wrongAnswers(1), QStringList({QString(), QStringLiteral("y")}));
    QCOMPARE(session.nthWrongAnswer(1, 1), QStringLiteral("y"));
    QCOMPARE(session.nthWrongAnswer(1, 2), QString());
    QVERIFY(session.startRound());
    QCOMPARE(Round(session), QStringLiteral("q1"));
}

void QuizSessionTest::percentages()
{
    TestDocument test(Words(2));
    CRandom random(1);
    CQuizSession session(test.document, PlainSettings(), random, {});
    QCOMPARE(session.totalPercent(), 0.0);
    session.recordAnswer(0, QStringLiteral("a0"));
    session.recordAnswer(0, QStringLiteral("x"));
    session.recordAnswer(0, QStringLiteral("x"));
    QCOMPARE(session.percentRight(0), 100.0 / 3);
    QCOMPARE(session.percentRight(1), 0.0);
    QCOMPARE(session.totalPercent(), 100.0 / 3);
}

void QuizSessionTest::flagDecisions_data()
{
    QTest::addColumn<bool>("flagged");
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("wrong");
    QTest::addColumn<QList<int>>("limits"); // flag, unflag, unasked
    QTest::addColumn<int>("decision");
    QTest::newRow("always right") << false << 3 << 0 << QList{100, 0, -1} << 3;
    QTest::newRow("always right, flagged already") << true << 3 << 0 << QList{100, 0, -1} << 1;
    QTest::newRow("never right") << true << 0 << 2 << QList{100, 0, -1} << 2;
    QTest::newRow("never right, not flagged") << false << 0 << 2 << QList{100, 0, -1} << 0;
    QTest::newRow("between the limits") << true << 1 << 1 << QList{100, 0, -1} << 1;
    QTest::newRow("two of three are 67 percent") << false << 2 << 1 << QList{67, -1, -1} << 3;
    QTest::newRow("two of three are not 68 percent") << false << 2 << 1 << QList{68, -1, -1} << 0;
    QTest::newRow("flagging wins where both apply") << false << 1 << 1 << QList{50, 50, -1} << 3;
    QTest::newRow("limits off") << true << 0 << 3 << QList{-1, -1, -1} << 1;
    QTest::newRow("not asked becomes flagged") << false << 0 << 0 << QList{100, 0, 1} << 3;
    QTest::newRow("not asked becomes not flagged") << true << 0 << 0 << QList{100, 0, 0} << 2;
    QTest::newRow("not asked stays") << true << 0 << 0 << QList{100, 0, -1} << 1;
}

void QuizSessionTest::flagDecisions()
{
    QFETCH(bool, flagged);
    QFETCH(int, right);
    QFETCH(int, wrong);
    QFETCH(QList<int>, limits);
    QFETCH(int, decision);
    TestDocument test(Words(1, flagged ? QStringLiteral("1") : QString()));
    CRandom random(1);
    CQuizSession session(test.document, PlainSettings(), random, {});
    for (int i = 0; i < right; ++i) {
        session.recordAnswer(0, QStringLiteral("a0"));
    }
    for (int i = 0; i < wrong; ++i) {
        session.recordAnswer(0, QStringLiteral("x"));
    }
    QCOMPARE(session.flagDecision(0, {limits[0], limits[1], limits[2]}), decision);
}

void QuizSessionTest::applyingFlags()
{
    TestDocument test(Words(3));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.showLanguage = 1;
    CQuizSession session(test.document, settings, random, std::vector<int>{});
    session.recordAnswer(1, QStringLiteral("q1"));
    const quint64 before = test.document.ChangeCounter();
    QCOMPARE(session.applyFlags({-1, 0, -1}), 0);
    QCOMPARE(test.document.ChangeCounter(), before);
    QCOMPARE(session.applyFlags({100, 0, -1}), 1);
    QCOMPARE(Describe(test.document.List()).join(u','), QStringLiteral("q0|a0,q1|a1||2,q2|a2"));
    QVERIFY(test.document.IsModified());
}

void QuizSessionTest::questions()
{
    TestDocument test(Words(1));
    CRandom random(1);
    const QuizSettings settings = PlainSettings();
    const CQuizSession session(test.document, settings, random, {});
    const QString standard = QStringLiteral("What is %word?");
    QCOMPARE(session.questionText(0, standard), QStringLiteral("What is q0?"));
    test.document.BeginChange().SetProperties({.questionTemplate1 = QStringLiteral("%word (%from, %to)"),
        .questionTemplate2 = QStringLiteral("other")});
    QCOMPARE(session.questionText(0, standard), QStringLiteral("What is q0?"));
    test.document.BeginChange().SetAdaptQuestion(0, true);
    QCOMPARE(session.questionText(0, standard), QStringLiteral("q0 (Svenska, Engelska)"));
}

void QuizSessionTest::emptySessions()
{
    CRandom random(1);
    QuizSettings settings;
    TestDocument empty;
    QCOMPARE(CQuizSession(empty.document, settings, random, {}).roundSize(), 0);
    TestDocument test(Words(3));
    settings.quizNumber = 0;
    CQuizSession session(test.document, settings, random, {});
    QCOMPARE(session.roundSize(), 0);
    QVERIFY(!session.startRound());
}

QTEST_APPLESS_MAIN(QuizSessionTest)
#include "quiz_session_test.moc"
