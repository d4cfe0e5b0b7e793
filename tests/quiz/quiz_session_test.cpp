// SPDX-License-Identifier: MIT
#include "support/test_session.h"

#include <array>
#include <set>

namespace {

/// So many entries, "q0|a0" and so on, all with these flags.
QString Words(int count, const char *flags = "")
{
    return NumberedEntries(count, u"q%1|a%1||"_s + QLatin1StringView(flags)).join(u',');
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
    void selection()
    {
        const struct
        {
            int wordsToQuiz, amount, available, expected;
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
            QuizSettings settings = InListOrder();
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

    void evenChoice()
    {
        TestDocument test(Words(5));
        QuizSettings settings = InListOrder();
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
            QuizSettings all = InListOrder();
            all.order = QuizOrder::Random;
            orders.insert(Round(CQuizSession(test.document, all, random, {})));
        }
        for (const int count : chosen) {
            QVERIFY2(count > 1100 && count < 1300, qPrintable(QString::number(count)));
        }
        QCOMPARE(orders.size(), size_t(120)); // Every order of five words.
    }

    void flaggedWords()
    {
        QuizSettings settings = InListOrder();
        const auto asked = [&settings](const QString &entries) {
            return TestSession(entries, settings).session.candidates();
        };
        const QString words = u"a|b||1,c|d||2,e|f"_s;
        settings.includeFlaggedWords = IncludeFlagged::Never;
        QCOMPARE(asked(words), (std::vector<int>{1, 2}));
        settings.showLanguage = QuizDirection::FromLanguage2;
        QCOMPARE(asked(words), (std::vector<int>{0, 2}));
        settings.showLanguage = QuizDirection::FromLanguage1;
        QCOMPARE(asked(Words(4, "1")).size(), size_t(4)); // Nothing else is left to ask.
        // Sometimes: the share kept over many draws.
        settings.includeFlaggedWords = IncludeFlagged::Sometimes;
        settings.includeFlaggedProbability = 20;
        const size_t kept = asked(Words(3000, "1") + u",x|y"_s).size();
        QVERIFY2(kept > 500 && kept < 700, qPrintable(QString::number(kept)));
        settings = InListOrder();
        settings.wordsToQuiz = WordsToQuiz::Selected;
        QCOMPARE(Round(TestSession(Words(6), settings, {1, 4}).session), u"q1 q4"_s);
    }

    void randomRounds()
    {
        std::set<std::pair<int, QString>> first; // Of the whole quiz, by the number of words.
        std::set<qsizetype> firstAgain; // Of re-quiz rounds, by its place among the words answered wrong.
        for (quint32 seed = 0; seed < 500; ++seed) {
            const int count = 1 + int(seed % 5);
            TestDocument test(Words(count));
            CRandom random(seed);
            QuizSettings settings = InListOrder(Requiz::AfterRound, 4);
            settings.order = QuizOrder::Random;
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
                    if (session.recordAnswer(i, random.Next() % 2 == 0 ? u"x"_s : Answer(words.at(i)))
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

    void recheckAfterAChange()
    {
        TestSession run(Words(2), InListOrder(Requiz::AfterRound));
        run.settings.requizMax = false;
        CQuizSession &session = run.session;
        session.recordAnswer(0, u"new"_s);
        session.recordAnswer(1, QString());
        session.recordAnswer(1, u"y"_s);
        run.test.document.Change([](CWordList &list) { list.SetEntryField(u"new"_s, 1, 0, false); });
        session.recheckAll();
        QCOMPARE(session.totalRight(), 1);
        QCOMPARE(session.totalWrong(), 2);
        QCOMPARE((std::array{session.percentRight(0), session.percentRight(1), session.totalPercent()}),
            (std::array{100.0, 0.0, 100.0 / 3}));
        QCOMPARE(session.wrongAnswers(0), QStringList());
        QCOMPARE(session.wrongAnswers(1), QStringList({QString(), u"y"_s}));
        QCOMPARE(session.nthWrongAnswer(1, 1), u"y"_s);
        QCOMPARE(session.nthWrongAnswer(1, 2), QString());
        QVERIFY(session.startRound());
        QCOMPARE(Round(session), u"q1"_s);
        session.recordAnswer(0, u"x"_s);
        session.recordAnswer(0, u"x"_s);
        QVERIFY(session.startRound());
        QCOMPARE(Round(session), u"q1"_s); // Wrong twice, asked again once.
        session.recheckAll();
        QVERIFY(!session.startRound()); // Wrong before, but not asked in this round.
    }

    void flagDecisions()
    {
        const struct
        {
            bool flagged;
            int right, wrong;
            QList<int> limits; // flag, unflag, unasked
            int decision;
        } rows[] = {
            {false, 3, 0, {100, 0, -1}, 3}, // always right
            {true, 3, 0, {100, 0, -1}, 1}, // always right, flagged already
            {true, 0, 2, {100, 0, -1}, 2}, // never right
            {false, 0, 2, {100, 0, -1}, 0}, // never right, not flagged
            {true, 1, 1, {100, 0, -1}, 1}, // between the limits
            {false, 2, 1, {67, -1, -1}, 3}, // two of three are 67 percent
            {false, 2, 1, {68, -1, -1}, 0}, // two of three are not 68 percent
            {false, 1, 1, {50, 50, -1}, 3}, // flagging wins where both apply
            {true, 0, 3, {-1, -1, -1}, 1}, // limits off
            {false, 0, 0, {100, 0, 1}, 3}, // not asked becomes flagged
            {true, 0, 0, {100, 0, 0}, 2}, // not asked becomes not flagged
            {true, 0, 0, {100, 0, -1}, 1}, // not asked stays
        };
        for (const auto &row : rows) {
            TestSession run(Words(1, row.flagged ? "1" : ""));
            for (int i = 0; i < row.right + row.wrong; ++i) {
                run.session.recordAnswer(0, i < row.right ? u"a0"_s : u"x"_s);
            }
            const auto unasked = row.limits[2] < 0 ? std::nullopt : std::optional(FlagState(row.limits[2]));
            QCOMPARE(int(run.session.flagDecision(0, {row.limits[0], row.limits[1], unasked})), row.decision);
        }
    }

    void applyingFlags()
    {
        QuizSettings settings = InListOrder();
        settings.showLanguage = QuizDirection::FromLanguage2;
        TestSession run(Words(3), settings);
        run.session.recordAnswer(1, u"q1"_s);
        const quint64 before = run.test.document.ChangeCounter();
        QCOMPARE(run.session.applyFlags({FlagLimits::Off, 0}), 0);
        QCOMPARE(run.test.document.ChangeCounter(), before);
        QCOMPARE(run.session.applyFlags({100, 0}), 1);
        QCOMPARE(run.Entries(), u"q0|a0,q1|a1||2,q2|a2"_s);
    }

    void acceptedAnswers()
    {
        const struct
        {
            QString term, answer;
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
            const QString before = u"hund|%1|n|12,katt|cat"_s.arg(row.term);
            TestSession run(before);
            CQuizSession &session = run.session;
            session.recordAnswer(0, row.answer);
            session.recordAnswer(1, u"x"_s);
            QCOMPARE(session.acceptAnswer(0, row.answer), !row.changed.isEmpty());
            QCOMPARE(run.test.document.UndoCount(), row.changed.isEmpty() ? 0 : 1);
            if (!row.changed.isEmpty()) {
                QCOMPARE(run.Entries(), u"hund|%1|n|12,katt|cat"_s.arg(row.changed));
                QCOMPARE(session.mistakes(), std::vector<int>{1});
                session.takeBackAcceptedAnswer();
                QCOMPARE(run.Entries(), before);
                QCOMPARE(session.mistakes(), (std::vector<int>{0, 1}));
                QVERIFY(session.acceptAnswer(0, row.answer));
                session.recordAnswer(1, row.answer);
                QVERIFY(!session.acceptedAnswer()); // The next answer: it stays.
            }
            run.settings.allowChanges = false;
            QVERIFY(!session.mayAccept(1, u"x"_s));
        }
    }

    void oneStepForUndo()
    {
        TestSession run(Words(3));
        CQuizSession &session = run.session;
        session.changeEntry(0, u"q0"_s, u" a0 "_s, {}); // As it is.
        QCOMPARE(run.test.document.UndoCount(), 0);
        session.recordAnswer(1, u"new"_s);
        session.changeEntry(0, u"Q"_s, u"A"_s, u"n"_s);
        QVERIFY(session.acceptAnswer(1, u"new"_s));
        QCOMPARE(session.applyFlags({100, 0}), 1);
        QCOMPARE(run.Entries(), u"Q|A|n,q1|a1 * new||1,q2|a2"_s);
        run.test.document.Undo();
        QVERIFY(!run.test.document.IsModified());
        // Something came in between: a step of its own.
        session.changeEntry(2, u"Q"_s, u"A"_s, {});
        QCOMPARE(run.test.document.UndoCount(), 1);
        QCOMPARE(run.Entries(), u"q0|a0,q1|a1,Q|A"_s);
    }

    void questions()
    {
        TestSession run(Words(1));
        CQuizSession &session = run.session;
        const QString standard = u"What is %word?"_s;
        const auto adapt = [](CWordList &list) { list.SetAdaptQuestion(0, true); };
        run.test.document.Change(adapt); // There is none of its own yet.
        QCOMPARE(session.questionText(0, standard), u"What is q0?"_s);
        run.test.document.Change([&](CWordList &list) {
            list.SetProperties({.questionTemplate1 = u"%word (%from, %to)"_s, .questionTemplate2 = u"other"_s});
        });
        QCOMPARE(session.questionText(0, standard), u"What is q0?"_s);
        run.test.document.Change(adapt);
        QCOMPARE(session.questionText(0, standard), u"q0 (Svenska, Engelska)"_s);
    }

    void answersOfOtherWords()
    {
        TestSession run(u"a|x * y,b|y [z],c|z"_s);
        CQuizSession &session = run.session;
        const auto other = [&](int position, const char *answer) {
            return session.otherWordOf(position, QString::fromLatin1(answer)).value_or(-1);
        };
        QCOMPARE(other(2, "y"), 0);
        QCOMPARE(other(0, "y"), 1); // Without its comment.
        QCOMPARE(other(1, "y"), 0);
        QCOMPARE(other(2, "z"), -1);
        session.changeEntry(0, u"a"_s, u"x"_s, {});
        session.recheckAll();
        QCOMPARE(other(1, "y"), -1);
    }
};

QTEST_APPLESS_MAIN(QuizSessionTest)
#include "quiz_session_test.moc"
