// SPDX-License-Identifier: MIT
#include "games/contest_setup.h"
#include "games/text_numbers.h"
#include "games/word_contest_form.h"
#include "support/test_form.h"

#include <QTest>

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
            scores.append(QStringLiteral("%1/%2").arg(player.points).arg(player.answers));
        }
        return scores.join(u' ');
    }
};

}

class WordContestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeContests_data();
    void wholeContests();
    void clock();
    void entryChanges();
    void standing();
    void setup();
};

void WordContestTest::wholeContests_data()
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

void WordContestTest::wholeContests()
{
    QFETCH(int, requiz);
    QFETCH(QString, players);
    QFETCH(QString, script);
    TestDocument test(QStringList{QStringLiteral("a|x"), QStringLiteral("b|y"), QStringLiteral("c|z")});
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
    turns.append(next == Next::Over ? QStringLiteral("over") : QString());
    QTEST(turns.join(u' '), "turns");
    QTEST(contest.scores(), "scores");
}

void WordContestTest::clock()
{
    TestDocument test(QStringList{QStringLiteral("hund|dog")});
    QuizSettings settings = InOrder(Requiz::None, 3);
    Contest contest(test, settings, {QStringLiteral("Anna"), QStringLiteral("Bo")});
    CWordContestForm &form = contest.form;
    QVERIFY(!form.timePassed(1h)); // Nobody has begun.
    QVERIFY(!form.question().contains(QStringLiteral("hund")));
    QCOMPARE(form.turnText(), QStringLiteral("Anna, det är din tur!"));
    form.begin();
    QVERIFY(form.question().contains(QStringLiteral("hund")));
    QVERIFY(!form.timePassed(28001ms));
    QCOMPARE(form.timeLeftText(), QStringLiteral("2 sekunder kvar"));
    QVERIFY(!form.timePassed(1998ms));
    QCOMPARE(form.timeLeftText(), QStringLiteral("1 sekund kvar"));
    QVERIFY(form.timePassed(1ms));
    auto outcome = form.timeOut();
    QCOMPARE(outcome.feedback->number, Text::AnswerAfterSkip);
    QCOMPARE(outcome.feedback->text, QStringLiteral("Tiden är ute.\r\n\r\nRätt svar är:\r\n\r\ndog"));
    QVERIFY(!form.timePassed(1h)); // The feedback is being read.
    form.advance(outcome.verdict);

    settings.showAnswer = false;
    form.begin();
    QVERIFY(form.timePassed(30s)); // Each turn has its own time.
    QCOMPARE(form.timeOut().feedback->number, Text::TimeIsUp);
    QCOMPARE(contest.session->record(0).answers, QStringList(2, QString()));
}

void WordContestTest::entryChanges()
{
    TestDocument test(QStringList{QStringLiteral("a|x"), QStringLiteral("b|y")});
    const QuizSettings settings = InOrder(Requiz::None, 1);
    Contest contest(test, settings, {QStringLiteral("A"), QStringLiteral("B")});
    CWordContestForm &form = contest.form;
    form.begin();
    form.advance(form.answer(QStringLiteral(" 0 ")).verdict);
    QCOMPARE(form.currentEntry(), 0); // The word to come is not given away.
    contest.session->changeEntry(0, QStringLiteral("a"), QStringLiteral("0"), {});
    form.entriesChanged();
    QCOMPARE(contest.session->totalRight(), 1);
    QCOMPARE(contest.scores(), QStringLiteral("0/1 0/0"));
    form.begin();
    QCOMPARE(form.currentEntry(), 1);
}

void WordContestTest::standing()
{
    const CTexts texts;
    const auto name = [](char letter) { return QString(QLatin1Char(letter)); };
    const auto standing = contestStanding({{name('A'), 0, 0}, {name('B'), 3, 5}, {name('C'), 3, 4},
        {name('D'), 0, 2}, {name('E'), 3, 4}, {name('F'), 2, 2}});
    QString order;
    for (const ContestPlace &row : standing) {
        order += QString::number(row.place) + row.player.name + u' ';
    }
    QCOMPARE(order, QStringLiteral("1C 1E 3B 4F 5A 5D "));
    QCOMPARE(contestOutcome(standing, texts), QStringLiteral("Oavgjort mellan C och E."));
    const std::vector<ContestPlayer> same = {{name('A')}, {name('B')}, {name('C')}};
    QCOMPARE(contestOutcome(contestStanding(same), texts), QStringLiteral("Oavgjort mellan A, B och C."));
    QCOMPARE(contestOutcome(contestStanding({{name('A'), 1, 9}, {name('B'), 2, 9}}), texts),
        QStringLiteral("Vinnare: B"));
    QCOMPARE((ContestPlayer{name('A'), 1, 8}.percent()), 13);
}

void WordContestTest::setup()
{
    using Name = CContestSetup::Name;
    QuizChallengeSettings settings;
    settings.players = QStringLiteral("  Anna \n\nANNA\nBo\n") + QString(41, u'x');
    settings.time = 5;
    CContestSetup setup(settings);
    QCOMPARE(setup.players(), (QStringList{QStringLiteral("Anna"), QStringLiteral("Bo")}));
    QVERIFY(setup.check(QStringLiteral(" anna")) == Name::Taken);
    QVERIFY(setup.check(QStringLiteral("  ")) == Name::Empty);
    QVERIFY(setup.check(QString(41, u'y')) == Name::TooLong);
    QVERIFY(setup.check(QStringLiteral("😀").repeated(40)) == Name::Free); // Forty, though eighty code units.
    QVERIFY(!setup.move(0, -1) && !setup.move(1, 1) && setup.move(1, -1));
    setup.remove(1);
    QVERIFY(!setup.mayStart());
    for (int player = 2; player <= 12; ++player) {
        QVERIFY(setup.add(QStringLiteral(" %1 ").arg(player)) && setup.mayStart());
    }
    QVERIFY(setup.check(QStringLiteral("13")) == Name::OneTooMany && !setup.add(QStringLiteral("13")));
    setup.setTime(2);
    setup.store(settings);
    QCOMPARE(settings.players, QStringLiteral("Bo\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12"));
    QCOMPARE(settings.time, 3);
}

QTEST_APPLESS_MAIN(WordContestTest)
#include "word_contest_test.moc"
