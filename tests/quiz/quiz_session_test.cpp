// SPDX-License-Identifier: MIT
#include "quiz/quiz_session.h"
#include "settings/quiz_settings.h"
#include "support/test_document.h"

#include <QTest>

#include <array>
#include <set>

using namespace Qt::StringLiterals;

namespace {

/// Settings under which every word is asked once in list order.
QuizSettings PlainSettings()
{
    QuizSettings settings;
    settings.order = QuizOrder::AsInList;
    settings.quizNumber = 1;
    settings.requiz = Requiz::None;
    settings.includeFlaggedWords = IncludeFlagged::Always;
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

/// What is right for the question word.
QString Answer(const QString &question)
{
    return u'a' + question.mid(1);
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
    void selection();
    void evenChoice();
    void flaggedWords();
    void selectedEntries();
    void randomRounds();
    void recheckAfterAChange();
    void percentages();
    void flagDecisions();
    void applyingFlags();
    void acceptedAnswers();
    void oneStepForUndo();
    void selectedAfterwards();
    void questions();
    void emptySessions();
    void answersOfOtherWords();
};

void QuizSessionTest::selection()
{
    const struct
    {
        int wordsToQuiz;
        int amount;
        int available;
        int expected;
    } rows[] = {
        {0, 3, 10, 10}, // all
        {1, 3, 10, 3}, // fixed number
        {1, 20, 5, 5}, // more than there are
        {1, 0, 5, 0}, // no words
        {1, -4, 5, 0}, // less than none
        {2, 25, 10, 3}, // share rounds half up
        {2, 1, 10, 1}, // share is at least one
        {2, 0, 10, 1}, // share of nothing is one
        {2, 101, 10, 10}, // share out of range is all
        {2, 50, 0, 0}, // share of an empty list
        {3, 3, 10, 10}, // selected without a selection is all
    };
    for (const auto &row : rows) {
        TestDocument test(Words(row.available));
        QuizSettings settings = PlainSettings();
        settings.wordsToQuiz = WordsToQuiz(row.wordsToQuiz);
        settings.numberOfWords = row.amount;
        settings.partOfWords = row.amount;
        std::set<int> chosen;
        for (quint32 seed = 0; seed < 100; ++seed) {
            CRandom random(seed);
            const CQuizSession session(test.document, settings, random, {});
            QCOMPARE(session.wordCount(), row.expected);
            // Ascending, each once.
            QVERIFY(std::ranges::is_sorted(session.candidates(), std::ranges::less_equal()));
            chosen.insert(session.candidates().begin(), session.candidates().end());
        }
        QCOMPARE(int(chosen.size()), row.expected == 0 ? 0 : row.available); // Every word at some time.
    }
}

void QuizSessionTest::evenChoice()
{
    TestDocument test(Words(5));
    QuizSettings settings = PlainSettings();
    settings.wordsToQuiz = WordsToQuiz::FixedNumber;
    settings.numberOfWords = 2;
    std::array<int, 5> chosen = {};
    std::set<QString> orders;
    constexpr int Sessions = 3000;
    for (quint32 seed = 0; seed < Sessions; ++seed) {
        CRandom random(seed);
        const CQuizSession some(test.document, settings, random, {});
        for (const int entry : some.candidates()) {
            ++chosen[size_t(entry)];
        }
        QuizSettings all = PlainSettings();
        all.order = QuizOrder::Random;
        orders.insert(Round(CQuizSession(test.document, all, random, {})));
    }
    for (const int count : chosen) {
        QVERIFY2(count > 1100 && count < 1300, qPrintable(QString::number(count)));
    }
    QCOMPARE(orders.size(), size_t(120)); // Every order of five words.
}

void QuizSessionTest::flaggedWords()
{
    TestDocument test(QStringList{QStringLiteral("a|b||1"), QStringLiteral("c|d||2"), QStringLiteral("e|f")});
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.includeFlaggedWords = IncludeFlagged::Never;
    QCOMPARE(CQuizSession(test.document, settings, random, {}).candidates(), (std::vector<int>{1, 2}));
    settings.showLanguage = QuizDirection::FromLanguage2;
    QCOMPARE(CQuizSession(test.document, settings, random, {}).candidates(), (std::vector<int>{0, 2}));
    TestDocument learnt(Words(4, QStringLiteral("1")));
    settings.showLanguage = QuizDirection::FromLanguage1;
    QCOMPARE(
        CQuizSession(learnt.document, settings, random, {}).wordCount(), 4); // Nothing else is left to ask.

    // Sometimes: the share kept over many draws.
    QStringList words = Words(3000, QStringLiteral("1"));
    words.append(QStringLiteral("x|y"));
    TestDocument many(words);
    settings.includeFlaggedWords = IncludeFlagged::Sometimes;
    settings.includeFlaggedProbability = 20;
    const int kept = CQuizSession(many.document, settings, random, {}).wordCount();
    QVERIFY2(kept > 500 && kept < 700, qPrintable(QString::number(kept)));
}

void QuizSessionTest::selectedEntries()
{
    TestDocument test(Words(6));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.wordsToQuiz = WordsToQuiz::Selected;
    const CQuizSession session(test.document, settings, random, std::vector<int>{1, 4});
    QCOMPARE(Round(session), QStringLiteral("q1 q4"));
}

void QuizSessionTest::randomRounds()
{
    std::set<std::pair<int, QString>> first; // Of the whole quiz, by the number of words.
    std::set<qsizetype> firstAgain; // Of re-quiz rounds, by its place among the words answered wrong.
    for (quint32 seed = 0; seed < 500; ++seed) {
        const int count = 1 + int(seed % 5);
        TestDocument test(Words(count));
        CRandom random(seed);
        QuizSettings settings = PlainSettings();
        settings.order = QuizOrder::Random;
        settings.quizNumber = 4;
        settings.requiz = Requiz::AfterRound;
        settings.requizNumber = 2;
        CQuizSession session(test.document, settings, random, {});
        first.emplace(count, Round(session).split(u' ').first());
        QStringList expected; // The words answered wrong in order; empty for all words.
        QString last;
        do {
            const QStringList words = Round(session).split(u' ');
            const std::set<QString> asked(words.begin(), words.end());
            QCOMPARE(qsizetype(asked.size()), words.size());
            QCOMPARE(session.requizRound() > 0, !expected.empty());
            QVERIFY(session.requizRound() <= 2);
            if (expected.empty()) {
                QCOMPARE(words.size(), count);
            } else {
                QCOMPARE(asked, std::set<QString>(expected.begin(), expected.end()));
                firstAgain.insert(expected.indexOf(words.first()));
            }
            QVERIFY(words.size() == 1 || words.first() != last);
            last = words.last();
            expected.clear();
            for (int i = 0; i < session.roundSize(); ++i) {
                if (session.recordAnswer(i, random.Next() % 2 == 0 ? QStringLiteral("x") : Answer(words.at(i)))
                    == AnswerVerdict::Wrong) {
                    expected.append(words.at(i));
                }
            }
            if (session.requizRound() == 2) {
                expected.clear();
            }
        } while (session.startRound());
    }
    QCOMPARE(first.size(), size_t(1 + 2 + 3 + 4 + 5)); // Every word at some time.
    QCOMPARE(firstAgain, (std::set<qsizetype>{0, 1, 2, 3})); // The fifth ended the round before.
}

void QuizSessionTest::recheckAfterAChange()
{
    TestDocument test(Words(2));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.requiz = Requiz::AfterRound;
    settings.requizMax = false;
    CQuizSession session(test.document, settings, random, {});
    session.recordAnswer(0, QStringLiteral("new"));
    session.recordAnswer(1, QString());
    session.recordAnswer(1, QStringLiteral("y"));
    test.document.Change([&](CWordList &list) { list.SetEntryField(QStringLiteral("new"), 1, 0, false); });
    session.recheckAll();
    QCOMPARE(session.totalRight(), 1);
    QCOMPARE(session.totalWrong(), 2);
    QCOMPARE(session.wrongAnswers(0), QStringList());
    QCOMPARE(session.wrongAnswers(1), QStringList({QString(), QStringLiteral("y")}));
    QCOMPARE(session.nthWrongAnswer(1, 1), QStringLiteral("y"));
    QCOMPARE(session.nthWrongAnswer(1, 2), QString());
    QVERIFY(session.startRound());
    QCOMPARE(Round(session), QStringLiteral("q1"));
    session.recordAnswer(0, QStringLiteral("x"));
    session.recordAnswer(0, QStringLiteral("x"));
    QVERIFY(session.startRound());
    QCOMPARE(Round(session), QStringLiteral("q1")); // Wrong twice, asked again once.
    session.recheckAll();
    QVERIFY(!session.startRound()); // Wrong before, but not asked in this round.
}

void QuizSessionTest::percentages()
{
    TestDocument test(Words(2));
    CRandom random(1);
    const QuizSettings settings = PlainSettings();
    CQuizSession session(test.document, settings, random, {});
    QCOMPARE(session.totalPercent(), 0.0);
    session.recordAnswer(0, QStringLiteral("a0"));
    session.recordAnswer(0, QStringLiteral("x"));
    session.recordAnswer(0, QStringLiteral("x"));
    QCOMPARE(session.percentRight(0), 100.0 / 3);
    QCOMPARE(session.percentRight(1), 0.0);
    QCOMPARE(session.totalPercent(), 100.0 / 3);
}

void QuizSessionTest::flagDecisions()
{
    const struct
    {
        bool flagged;
        int right;
        int wrong;
        QList<int> limits; // flag, unflag, unasked
        int decision;
    } rows[] = {
        {false, 3, 0, QList{100, 0, -1}, 3}, // always right
        {true, 3, 0, QList{100, 0, -1}, 1}, // always right, flagged already
        {true, 0, 2, QList{100, 0, -1}, 2}, // never right
        {false, 0, 2, QList{100, 0, -1}, 0}, // never right, not flagged
        {true, 1, 1, QList{100, 0, -1}, 1}, // between the limits
        {false, 2, 1, QList{67, -1, -1}, 3}, // two of three are 67 percent
        {false, 2, 1, QList{68, -1, -1}, 0}, // two of three are not 68 percent
        {false, 1, 1, QList{50, 50, -1}, 3}, // flagging wins where both apply
        {true, 0, 3, QList{-1, -1, -1}, 1}, // limits off
        {false, 0, 0, QList{100, 0, 1}, 3}, // not asked becomes flagged
        {true, 0, 0, QList{100, 0, 0}, 2}, // not asked becomes not flagged
        {true, 0, 0, QList{100, 0, -1}, 1}, // not asked stays
    };
    for (const auto &row : rows) {
        TestDocument test(Words(1, row.flagged ? QStringLiteral("1") : QString()));
        CRandom random(1);
        const QuizSettings settings = PlainSettings();
        CQuizSession session(test.document, settings, random, {});
        for (int i = 0; i < row.right; ++i) {
            session.recordAnswer(0, QStringLiteral("a0"));
        }
        for (int i = 0; i < row.wrong; ++i) {
            session.recordAnswer(0, QStringLiteral("x"));
        }
        const auto unasked = row.limits[2] < 0 ? std::nullopt : std::optional(FlagState(row.limits[2]));
        QCOMPARE(int(session.flagDecision(0, {row.limits[0], row.limits[1], unasked})), row.decision);
    }
}

void QuizSessionTest::applyingFlags()
{
    TestDocument test(Words(3));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.showLanguage = QuizDirection::FromLanguage2;
    CQuizSession session(test.document, settings, random, std::vector<int>{});
    session.recordAnswer(1, QStringLiteral("q1"));
    const quint64 before = test.document.ChangeCounter();
    QCOMPARE(session.applyFlags({FlagLimits::Off, 0}), 0);
    QCOMPARE(test.document.ChangeCounter(), before);
    QCOMPARE(session.applyFlags({100, 0}), 1);
    QCOMPARE(Describe(test.document.List()).join(u','), QStringLiteral("q0|a0,q1|a1||2,q2|a2"));
    QVERIFY(test.document.IsModified());
}

void QuizSessionTest::acceptedAnswers()
{
    const struct
    {
        QString term;
        QString answer;
        QString changed; // Empty when it is refused.
    } rows[] = {
        {u"dog"_s, u"hound"_s, u"dog * hound"_s}, // another word
        {u"dog [x] * cur"_s, u"hound [y]"_s, u"dog [x] * cur * hound [y]"_s}, // behind several
        {{}, u"hound"_s, u"hound"_s}, // the first of an empty term
        {u"dog [x"_s, u"hound"_s, u"dog [x * hound"_s}, // an open bracket stays in its alternative
        {u"dog * cur"_s, u"cur"_s, {}}, // right already
        {u"dog"_s, {}, {}}, // nothing typed
        {u"dog"_s, u"hound * cur"_s, {}}, // several at once would still be wrong
    };
    for (const auto &row : rows) {
        TestDocument test(
            QStringList{QStringLiteral("hund|%1|n|12").arg(row.term), QStringLiteral("katt|cat")});
        CRandom random(1);
        QuizSettings settings = PlainSettings();
        CQuizSession session(test.document, settings, random, {});
        session.recordAnswer(0, row.answer);
        session.recordAnswer(1, QStringLiteral("x"));
        QCOMPARE(session.acceptAnswer(0, row.answer), !row.changed.isEmpty());
        QCOMPARE(test.document.UndoCount(), row.changed.isEmpty() ? 0 : 1);
        if (!row.changed.isEmpty()) {
            QCOMPARE(Describe(test.document.List().Entry(0)), QStringLiteral("hund|%1|n|12").arg(row.changed));
            QCOMPARE(session.mistakes(), std::vector<int>{1});
            session.takeBackAcceptedAnswer();
            QCOMPARE(Describe(test.document.List().Entry(0)), QStringLiteral("hund|%1|n|12").arg(row.term));
            QCOMPARE(session.mistakes(), (std::vector<int>{0, 1}));
            QVERIFY(session.acceptAnswer(0, row.answer));
            session.recordAnswer(1, row.answer);
            QVERIFY(!session.acceptedAnswer()); // The next answer: it stays.
        }
        settings.allowChanges = false;
        QVERIFY(!session.mayAccept(1, QStringLiteral("x")));
    }
}

void QuizSessionTest::oneStepForUndo()
{
    TestDocument test(Words(3));
    CRandom random(1);
    const QuizSettings settings = PlainSettings();
    CQuizSession session(test.document, settings, random, {});
    const QStringList before = Describe(test.document.List());
    session.changeEntry(0, QStringLiteral("q0"), QStringLiteral(" a0 "), {}); // As it is.
    QCOMPARE(test.document.UndoCount(), 0);
    session.recordAnswer(1, QStringLiteral("new"));
    session.changeEntry(0, QStringLiteral("Q"), QStringLiteral("A"), QStringLiteral("n"));
    QVERIFY(session.acceptAnswer(1, QStringLiteral("new")));
    QCOMPARE(session.applyFlags({100, 0}), 1);
    QCOMPARE(Describe(test.document.List()).join(u','), QStringLiteral("Q|A|n,q1|a1 * new||1,q2|a2"));
    QCOMPARE(test.document.UndoCount(), 1);
    test.document.Undo();
    QCOMPARE(Describe(test.document.List()), before);
    QVERIFY(!test.document.IsModified());
    // Something came in between: a step of its own.
    session.changeEntry(2, QStringLiteral("Q"), QStringLiteral("A"), {});
    QCOMPARE(test.document.UndoCount(), 1);
    QCOMPARE(Describe(test.document.List()).last(), QStringLiteral("Q|A"));
}

void QuizSessionTest::selectedAfterwards()
{
    TestDocument test(Words(4));
    CRandom random(1);
    QuizSettings settings = PlainSettings();
    settings.wordsToQuiz = WordsToQuiz::Selected;
    CQuizSession session(test.document, settings, random, std::vector<int>{0, 2, 3});
    session.recordAnswer(0, QStringLiteral("a0"));
    session.recordAnswer(1, QStringLiteral("x"));
    QCOMPARE(session.entriesToSelect().value(), (std::vector<int>{0, 2, 3}));
    settings.selectedTestedWordsAfterQuiz = false;
    QVERIFY(!session.entriesToSelect());
    session.setSelectMistakes(true);
    QCOMPARE(session.entriesToSelect().value(), std::vector<int>{2});
}

void QuizSessionTest::questions()
{
    TestDocument test(Words(1));
    CRandom random(1);
    const QuizSettings settings = PlainSettings();
    const CQuizSession session(test.document, settings, random, {});
    const QString standard = QStringLiteral("What is %word?");
    test.document.Change(
        [&](CWordList &list) { list.SetAdaptQuestion(0, true); }); // There is none of its own yet.
    QCOMPARE(session.questionText(0, standard), QStringLiteral("What is q0?"));
    test.document.Change([&](CWordList &list) {
        list.SetProperties({.questionTemplate1 = QStringLiteral("%word (%from, %to)"),
            .questionTemplate2 = QStringLiteral("other")});
    });
    QCOMPARE(session.questionText(0, standard), QStringLiteral("What is q0?"));
    test.document.Change([&](CWordList &list) { list.SetAdaptQuestion(0, true); });
    QCOMPARE(session.questionText(0, standard), QStringLiteral("q0 (Svenska, Engelska)"));
}

void QuizSessionTest::emptySessions()
{
    CRandom random(1);
    QuizSettings settings;
    TestDocument empty;
    CQuizSession none(empty.document, settings, random, {});
    QVERIFY(none.roundSize() == 0 && !none.startRound());
    TestDocument test(Words(3));
    settings.quizNumber = 0;
    CQuizSession session(test.document, settings, random, {});
    QCOMPARE(session.roundSize(), 0);
    QVERIFY(!session.startRound());
}

void QuizSessionTest::answersOfOtherWords()
{
    TestDocument test(QStringList{QStringLiteral("a|x * y"), QStringLiteral("b|y [z]"), QStringLiteral("c|z")});
    CRandom random(1);
    const QuizSettings settings = PlainSettings();
    CQuizSession session(test.document, settings, random, {});
    const auto other = [&](int position, const char *answer) {
        return session.otherWordOf(position, QString::fromLatin1(answer)).value_or(-1);
    };
    QCOMPARE(other(2, "y"), 0);
    QCOMPARE(other(0, "y"), 1); // Without its comment.
    QCOMPARE(other(1, "y"), 0);
    QCOMPARE(other(2, "z"), -1);
    session.changeEntry(0, QStringLiteral("a"), QStringLiteral("x"), {});
    session.recheckAll();
    QCOMPARE(other(1, "y"), -1);
}

QTEST_APPLESS_MAIN(QuizSessionTest)
#include "quiz_session_test.moc"
