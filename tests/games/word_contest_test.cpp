// SPDX-License-Identifier: MIT
#include "games/contest_setup.h"
#include "games/text_numbers.h"
#include "games/word_contest_form.h"
#include "support/test_form.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Next = CWordByWordForm::Next;

namespace {

struct Contest
{
    CRandom random{1};
    QuizChallengeSettings quizChallenge;
    FallingWordSettings fallingWord;
    std::shared_ptr<CQuizSession> session;
    CWordContestForm form;

    Contest(TestDocument &test, const QuizSettings &settings, const QStringList &players)
        : session(std::make_shared<CQuizSession>(test.document, settings, random, std::span<const int>())),
          form({session, settings, {quizChallenge, fallingWord}, test.texts, random, SteadyClock}, players)
    {
    }

    QString scores() const
    {
        QStringList scores;
        for (const ContestPlayer &player : form.players()) {
            scores.append(u"%1/%2"_s.arg(player.points).arg(player.answers));
        }
        return scores.join(u' ');
    }
};

}

class WordContestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeContests_data()
    {
        QTest::addColumn<int>("requiz");
        QTest::addColumn<QString>("players");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("turns");
        QTest::addColumn<QString>("scores");

        // A step is an answer, "-" to skip, or "@" until the time is up; a turn is a player and the word.
        QTest::newRow("one word per turn") << 0 << "AB"
                                           << "x 0 -"
                                           << "Aa Bb Ac over"
                                           << "1/1 0/1";
        QTest::newRow("a missed word goes to each player once") << 2 << "ABC"
                                                                << "0 @ 0 y z"
                                                                << "Aa Ba Ca Ab Bc over"
                                                                << "1/2 1/2 0/1";
        QTest::newRow("until one knows it") << 2 << "ABC"
                                            << "0 x y 0 0 z"
                                            << "Aa Ba Cb Ac Bc Cc over"
                                            << "0/2 1/2 2/2";
        QTest::newRow("skipped, it goes to nobody") << 2 << "AB"
                                                    << "0 - 0 0 z"
                                                    << "Aa Ba Ab Bb Ac over"
                                                    << "1/3 0/1";
        QTest::newRow("a round of what was missed") << 1 << "AB"
                                                    << "@ y 0 x z"
                                                    << "Aa Bb Ac Ba Ac over"
                                                    << "1/3 2/2";
    }

    void wholeContests()
    {
        QFETCH(int, requiz);
        QFETCH(QString, players);
        QFETCH(QString, script);
        TestDocument test(QStringList{u"a|x"_s, u"b|y"_s, u"c|z"_s});
        const QuizSettings settings = InOrder(Requiz(requiz), 1);
        Contest contest(test, settings, players.split(QString(), Qt::SkipEmptyParts));
        CWordContestForm &form = contest.form;
        QStringList turns;
        auto next = Next::SameWord;
        for (const QString &step : script.split(u' ')) {
            QVERIFY(next != Next::Over && form.isHandOver());
            form.begin();
            const QString asked = form.question();
            turns.append(form.players()[size_t(form.playerOnTurn())].name + asked.section(u'"', 1, 1));
            if (step == u'-') {
                next = form.skip();
                continue;
            }
            QVERIFY(step != u'@' || form.timePassed(form.timeAllowed()));
            next = form.advance((step == u'@' ? form.timeOut() : form.answer(step)).verdict);
        }
        turns.append(next == Next::Over ? u"over"_s : QString());
        QTEST(turns.join(u' '), "turns");
        QTEST(contest.scores(), "scores");
    }

    void clock()
    {
        TestDocument test(QStringList{u"hund|dog"_s});
        QuizSettings settings = InOrder(Requiz::None, 3);
        Contest contest(test, settings, {u"Anna"_s, u"Bo"_s});
        CWordContestForm &form = contest.form;
        QVERIFY(!form.timePassed(1h)); // Nobody has begun.
        QVERIFY(!form.question().contains(u"hund"_s));
        QCOMPARE(form.turnText(), u"Anna, det är din tur!"_s);
        form.begin();
        QVERIFY(form.question().contains(u"hund"_s));
        QVERIFY(!form.timePassed(28001ms));
        QCOMPARE(form.timeLeftText(), u"2 sekunder kvar"_s);
        QVERIFY(!form.timePassed(1998ms));
        QCOMPARE(form.timeLeftText(), u"1 sekund kvar"_s);
        QVERIFY(form.timePassed(1ms));
        auto outcome = form.timeOut();
        QCOMPARE(outcome.feedback->number, Text::AnswerAfterSkip);
        QCOMPARE(outcome.feedback->text, u"Tiden är ute.\r\n\r\nRätt svar är:\r\n\r\ndog"_s);
        QVERIFY(!form.timePassed(1h)); // The feedback is being read.
        form.advance(outcome.verdict);

        settings.showAnswer = false;
        form.begin();
        QVERIFY(form.timePassed(30s)); // Each turn has its own time.
        QCOMPARE(form.timeOut().feedback->number, Text::TimeIsUp);
        QCOMPARE(contest.session->record(0).answers, QStringList(2, QString()));
    }

    void entryChanges()
    {
        TestDocument test(QStringList{u"a|x"_s, u"b|y"_s});
        const QuizSettings settings = InOrder(Requiz::None, 1);
        Contest contest(test, settings, {u"A"_s, u"B"_s});
        CWordContestForm &form = contest.form;
        form.begin();
        form.advance(form.answer(u" 0 "_s).verdict);
        QCOMPARE(form.currentEntry(), 0); // The word to come is not given away.
        contest.session->changeEntry(0, u"a"_s, u"0"_s, {});
        form.entriesChanged();
        QCOMPARE(contest.session->totalRight(), 1);
        QCOMPARE(contest.scores(), u"0/1 0/0"_s);
        form.begin();
        QCOMPARE(form.currentEntry(), 1);
    }

    void standing()
    {
        const CTexts texts;
        const auto name = [](char letter) { return QString(QLatin1Char(letter)); };
        const auto standing = contestStanding({{name('A'), 0, 0}, {name('B'), 3, 5}, {name('C'), 3, 4},
            {name('D'), 0, 2}, {name('E'), 3, 4}, {name('F'), 2, 2}});
        QString order;
        for (const ContestPlace &row : standing) {
            order += QString::number(row.place) + row.player.name + u' ';
        }
        QCOMPARE(order, u"1C 1E 3B 4F 5A 5D "_s);
        QCOMPARE(contestOutcome(standing, texts), u"Oavgjort mellan C och E."_s);
        const std::vector<ContestPlayer> same = {{name('A')}, {name('B')}, {name('C')}};
        QCOMPARE(contestOutcome(contestStanding(same), texts), u"Oavgjort mellan A, B och C."_s);
        QCOMPARE(
            contestOutcome(contestStanding({{name('A'), 1, 9}, {name('B'), 2, 9}}), texts), u"Vinnare: B"_s);
        QCOMPARE((ContestPlayer{name('A'), 1, 8}.percent()), 13);
    }

    void setup()
    {
        using Name = CContestSetup::Name;
        QuizChallengeSettings settings;
        settings.players = u"  Anna \n\nANNA\nBo\n"_s + QString(41, u'x');
        settings.time = 5;
        CContestSetup setup(settings);
        QCOMPARE(setup.players(), (QStringList{u"Anna"_s, u"Bo"_s}));
        QVERIFY(setup.check(u" anna"_s) == Name::Taken);
        QVERIFY(setup.check(u"  "_s) == Name::Empty);
        QVERIFY(setup.check(u"Anna\n"_s) == Name::Taken); // From the clipboard.
        QVERIFY(setup.check(QString(41, u'y')) == Name::TooLong);
        QVERIFY(setup.check(u"😀"_s.repeated(40)) == Name::Free); // Forty, though eighty code units.
        QVERIFY(!setup.move(0, -1) && !setup.move(1, 1) && setup.move(1, -1));
        setup.remove(1);
        QVERIFY(!setup.mayStart());
        for (int player = 2; player <= 12; ++player) {
            QVERIFY(setup.add(u" %1\n"_s.arg(player)) && setup.mayStart());
        }
        QVERIFY(setup.check(u"13"_s) == Name::OneTooMany && !setup.add(u"13"_s));
        setup.setTime(2);
        setup.store(settings);
        QCOMPARE(settings.players, u"Bo\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12"_s);
        QCOMPARE(settings.time, 3);
    }
};

QTEST_APPLESS_MAIN(WordContestTest)
#include "word_contest_test.moc"
