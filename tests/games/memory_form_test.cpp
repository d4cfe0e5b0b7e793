// SPDX-License-Identifier: MIT
#include "games/memory_form.h"
#include "support/test_form.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Event = CMemoryForm::Event;
using Side = CMemoryForm::Side;

namespace {

/// The card whose text begins so: with a capital letter it is a question.
int Card(const CMemoryForm &form, QChar text)
{
    const Side side = text.isUpper() ? Side::Question : Side::Answer;
    for (int card = 0; card < form.cardCount(); ++card) {
        if (form.side(card) == side && form.text(card).startsWith(text) && !form.isSolved(card)) {
            return card;
        }
    }
    return -1;
}

/// Turns cards by their texts, with a pause after "." that lets cards turn back, and returns a letter for what
/// became of each.
QString Play(CMemoryForm &form, const char *script)
{
    QString events;
    for (const QChar step : QString::fromLatin1(script)) {
        const Event event =
            step == u'.' ? form.timePassed(CMemoryForm::TurnedTime) : form.turn(Card(form, step));
        events += u"-cpnmbo"_s.at(int(event));
    }
    return events;
}

/// The answers recorded, by words.
QString Answers(const CQuizSession &session)
{
    QStringList words;
    for (int position = 0; position < session.wordCount(); ++position) {
        words.append(session.record(position).answers.join(u'+'));
    }
    return words.join(u' ');
}

}

class MemoryFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boards()
    {
        QCOMPARE(memoryBoards(1), (std::vector{1}));
        QCOMPARE(memoryBoards(10), (std::vector{10}));
        QCOMPARE(memoryBoards(11), (std::vector{6, 5}));
        QCOMPARE(memoryBoards(23), (std::vector{8, 8, 7}));
    }

    void judging_data()
    {
        QTest::addColumn<QString>("entries");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("events");
        QTest::addColumn<QString>("answers");

        QTest::newRow("partner unknown") << "A|x,B|y,C|z"
                                         << "Ay.Cx."
                                         << "cnccnc"
                                         << "  ";
        QTest::newRow("partner seen") << "A|x,B|y,C|z"
                                      << "Bx.Ay.Ax"
                                      << "cnccmccp"
                                      << "y+x  ";
        QTest::newRow("partner of the answer seen") << "A|x,B|y,C|z"
                                                    << "Az.xB."
                                                    << "cnccmc"
                                                    << " x ";
        QTest::newRow("the partner of the second card was seen, not that of the first") << "A|x,B|y,C|z"
                                                                                        << "Bz.Ay."
                                                                                        << "cnccnc"
                                                                                        << "  ";
        QTest::newRow("two of a kind") << "A|x,B|y,C|z"
                                       << "Bx.AC."
                                       << "cnccnc"
                                       << "  ";
        QTest::newRow("equal answers, either will do") << "A|x,B|x"
                                                       << "AxBx"
                                                       << "cpcp"
                                                       << "x x";
        QTest::newRow("an answer that is one of several is no mistake") << "A|x * y,B|y"
                                                                        << "Bx.Ay.By"
                                                                        << "cnccnccp"
                                                                        << " y";
    }

    void judging()
    {
        QFETCH(QString, entries);
        QFETCH(QString, script);
        TestDocument test(entries.split(u','));
        const QuizSettings settings = InOrder(Requiz::AtOnce, 1);
        TestForm<CMemoryForm> run(test, settings);
        QTEST(Play(run.form, script.toLatin1()), "events");
        QTEST(Answers(*run.session), "answers");
    }

    void turningBack()
    {
        TestDocument test(QStringList{u"A|x"_s, u"B|y"_s});
        const QuizSettings settings = InOrder(Requiz::None, 1);
        TestForm<CMemoryForm> run(test, settings);
        CMemoryForm &form = run.form;
        QCOMPARE(Play(form, "AAy"), u"c-n"_s); // A card that is up isn't turned again.
        QVERIFY(form.timePassed(1499ms) == Event::Nothing && form.isUp(Card(form, u'A')));
        QVERIFY(form.timePassed(1ms) == Event::Changed && !form.isUp(Card(form, u'A')));
        QCOMPARE(Play(form, "AyA"), u"cnc"_s); // The next click closes them, whatever it hits;
        QVERIFY(!form.isUp(Card(form, u'A')) && !form.isUp(Card(form, u'y')));
        QCOMPARE(Play(form, "AyBy"), u"cncp"_s); // another card it turns at once.
        QCOMPARE(form.moves(), 4);
        QCOMPARE(form.wordProgress()->text, u"1 av 2 par hittade."_s);
    }

    void entryChanges()
    {
        TestDocument test(QStringList{u"A|x"_s, u"B|x"_s});
        const QuizSettings settings = InOrder(Requiz::None, 1);
        // The same seed deals the same board.
        int question = -1;
        int otherAnswer = -1;
        for (int card = 0; card < 4; ++card) {
            TestForm<CMemoryForm> probe(test, settings);
            probe.form.turn(card);
            const bool asks = probe.form.side(card) == Side::Question;
            if (asks && probe.form.currentEntry() == 0) {
                question = card;
            } else if (!asks && probe.form.currentEntry() == 1) {
                otherAnswer = card;
            }
        }
        TestForm<CMemoryForm> run(test, settings);
        CMemoryForm &form = run.form;
        form.turn(question);
        QVERIFY(form.turn(otherAnswer) == Event::Pair);
        run.session->changeEntry(1, u"B"_s, u"y"_s, {});
        form.entriesChanged();
        QVERIFY(!form.isSolved(question) && !form.isSolved(otherAnswer)); // Else nothing would fit the rest.
        QCOMPARE(Play(form, "AxBy."), u"cpcpo"_s);
    }

    void learning()
    {
        TestDocument test(QStringList{u"A|x"_s, u"B|y"_s});
        QuizSettings settings = InOrder(Requiz::None, 1);
        settings.learning = true;
        TestForm<CMemoryForm> run(test, settings);
        CMemoryForm &form = run.form;
        QVERIFY(form.waits() && form.isUp(0) && form.isUp(3));
        QVERIFY(form.turn(0) == Event::Nothing && form.timePassed(2999ms) == Event::Nothing);
        QVERIFY(form.timePassed(1ms) == Event::Changed && !form.isUp(0) && !form.waits());
        QCOMPARE(Play(form, "Ay"), u"cn"_s); // What was shown there was not turned by the player.
    }

    void wholeGame()
    {
        QStringList entries;
        for (int word = 0; word < 23; ++word) {
            entries.append(u"%1|%2"_s.arg(QChar(u'A' + word)).arg(QChar(u'a' + word)));
        }
        TestDocument test(entries);
        QuizSettings settings = InOrder(Requiz::AfterRound, 1);
        settings.order = QuizOrder::Random;
        TestForm<CMemoryForm> run(test, settings);
        CMemoryForm &form = run.form;
        // One mistake: the partner is seen, and then another answer turned.
        const int question = form.side(0) == Side::Question ? 0 : Card(form, form.text(0).at(0).toUpper());
        const int partner = Card(form, form.text(question).at(0).toLower());
        int other = 0;
        while (form.side(other) == Side::Question || other == partner) {
            ++other;
        }
        for (const int card : {partner, other, question, other}) {
            form.turn(card);
        }
        QVERIFY(form.isMistake(question) && form.isMistake(other));
        form.timePassed(CMemoryForm::TurnedTime);
        QList<int> boards;
        auto event = Event::NewBoard;
        while (event == Event::NewBoard) {
            boards.append(form.cardCount());
            for (int card = 0; card < form.cardCount(); ++card) {
                if (form.side(card) == Side::Question) {
                    form.turn(card);
                    QVERIFY(form.turn(Card(form, form.text(card).at(0).toLower())) == Event::Pair);
                }
            }
            event = form.timePassed(CMemoryForm::TurnedTime);
        }
        QVERIFY(event == Event::Over);
        QCOMPARE(boards, (QList<int>{16, 16, 14, 2}));
        QCOMPARE(run.session->totalWrong(), 1);
        QCOMPARE(run.session->totalRight(), 24);
    }
};

QTEST_APPLESS_MAIN(MemoryFormTest)
#include "memory_form_test.moc"
