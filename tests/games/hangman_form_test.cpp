// SPDX-License-Identifier: MIT
#include "games/hangman_form.h"
#include "support/test_form.h"

#include <QTest>

class HangmanFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void wholeQuiz();
    void nothingToGuess();
};

void HangmanFormTest::words_data()
{
    QTest::addColumn<QString>("term");
    QTest::addColumn<bool>("ignoreCase");
    QTest::addColumn<QString>("guesses"); // With a bar between them.
    QTest::addColumn<QString>("shown"); // The word at first and after each guess.
    QTest::addColumn<QString>("recorded"); // What the last guess recorded, in quotes.

    QTest::newRow("letter by letter") << "hund" << false << "d|u|h|n"
                                      << "----|---d|-u-d|hu-d|hund"
                                      << "'hund'";
    QTest::newRow("all at once, in any order") << "annan" << false << "n a"
                                               << "-----|annan"
                                               << "'annan'";
    QTest::newRow("a miss among several") << "hund" << false << "hxn"
                                          << "----|h-n-"
                                          << "''";
    QTest::newRow("a miss with the last letters") << "ab" << false << "abc"
                                                  << "--|ab"
                                                  << "''";
    QTest::newRow("no letters guessed") << "ab" << false << "1, -||a"
                                        << "--|--|--|a-"
                                        << "";
    QTest::newRow("comments are not played") << "hus [neutrum]" << false << "s"
                                             << "---|--s"
                                             << "";
    QTest::newRow("what is no letter is shown") << "a*b, c-d 7" << false << "abcd"
                                                << "- * -, --- 7|a * b, c-d 7"
                                                << "'a * b, c-d 7'";
    QTest::newRow("case counts") << "Aa" << false << "a|A"
                                 << "--|-a|Aa"
                                 << "'Aa'";
    QTest::newRow("case missed") << "Ab" << false << "B"
                                 << "--|--"
                                 << "''";
    QTest::newRow("case ignored") << "ÅSa" << true << "å|A|s"
                                  << "---|Å--|Å-a|ÅSa"
                                  << "'ÅSa'";
    QTest::newRow("no letters at all") << "123" << false << ""
                                       << "123|123"
                                       << "'123'";
    QTest::newRow("a miss where there are none") << "123" << false << "a"
                                                 << "123|123"
                                                 << "''";
    QTest::newRow("outside the first plane") << "𝒜字b" << false << "字|𝒜"
                                             << "---|-字-|𝒜字-"
                                             << "";
    QTest::newRow("marks stay with their letters") << "e\u0301x" << false << "x"
                                                   << "-\u0301-|-\u0301x"
                                                   << "";
}

void HangmanFormTest::words()
{
    QFETCH(QString, term);
    QFETCH(bool, ignoreCase);
    QFETCH(QString, guesses);
    QFETCH(QString, shown);
    QFETCH(QString, recorded);
    TestDocument test(QStringList{QStringLiteral("x|") + term});
    QuizSettings settings = InOrder(Requiz::None, 2);
    settings.ignoreCase = ignoreCase;
    TestForm<CHangmanForm> quiz(test, settings);
    CHangmanForm &form = quiz.form;
    form.startWord();
    QStringList steps = {form.maskedWord()};
    bool isOver = false;
    for (const QString &guess : guesses.split(u'|')) {
        QVERIFY(!isOver);
        const auto outcome = form.guess(guess);
        isOver = outcome.has_value();
        steps += form.maskedWord();
        if (outcome) {
            const bool isMiss = recorded == QStringLiteral("''");
            QCOMPARE(outcome->verdict, isMiss ? AnswerVerdict::Wrong : AnswerVerdict::Right);
            QCOMPARE(outcome->feedback.has_value(), isMiss);
            QCOMPARE(quiz.session->totalRight(), isMiss ? 0 : 1);
        }
    }
    QCOMPARE(steps.join(u'|'), shown);
    const QStringList answers = quiz.session->record(0).answers;
    QCOMPARE(isOver ? u'\'' + answers.join(u'|') + u'\'' : QString(), recorded);
}

void HangmanFormTest::wholeQuiz()
{
    TestDocument test({QStringLiteral("a|xy z"), QStringLiteral("b|v")});
    const QuizSettings settings = InOrder(Requiz::AtOnce, 1);
    TestForm<CHangmanForm> quiz(test, settings);
    CHangmanForm &form = quiz.form;
    using Next = CWordByWordForm::Next;
    form.startWord();
    QCOMPARE(form.triedLetters(), QString());
    form.guess(QStringLiteral("yy5"));
    QCOMPARE(form.spelledWord(), QStringLiteral("streck, y, mellanslag, streck"));
    const auto miss = form.guess(QStringLiteral("zq"));
    QVERIFY(miss && miss->feedback->number == 63003 && form.advance(miss->verdict) == Next::SameWord);
    form.startWord(); // Hidden again, and known is what was tried.
    QCOMPARE(form.maskedWord(), QStringLiteral("-- -"));
    QCOMPARE(form.triedLetters(), QStringLiteral("Provade bokstäver: y, z, q (fel)"));
    quiz.session->changeEntry(form.currentEntry(), QStringLiteral("a"), QStringLiteral("qo"), {});
    form.entriesChanged();
    form.startWord();
    QCOMPARE(
        form.maskedWord() + form.triedLetters(), QStringLiteral("--Provade bokstäver: y (fel), z (fel), q"));
    const auto right = form.guess(QStringLiteral("qo"));
    QVERIFY(right && form.advance(right->verdict) == Next::OtherWord);
    form.startWord();
    QCOMPARE(form.maskedWord() + form.triedLetters(), QStringLiteral("-"));
    QVERIFY(form.advance(form.guess(QStringLiteral("v"))->verdict) == Next::Over);
    QCOMPARE(form.rightProgress().text, QStringLiteral("2 rätt av 3."));
}

void HangmanFormTest::nothingToGuess()
{
    TestDocument test({QStringLiteral("a|[x] "), QStringLiteral("b|"), QStringLiteral("c|y")});
    const QuizSettings settings = InOrder(Requiz::AtOnce, 1);
    TestForm<CHangmanForm> quiz(test, settings, {}, QuizAnswers::AreSpelt);
    QCOMPARE(quiz.session->wordCount(), 1);
    QCOMPARE(quiz.session->unanswerableCount(), 2);
    // A change that leaves nothing to guess: the word is left as it is.
    quiz.session->changeEntry(2, QStringLiteral("c"), QStringLiteral("[y]"), {});
    quiz.form.startWord();
    const auto outcome = quiz.form.guess({});
    QVERIFY(outcome && quiz.form.advance(outcome->verdict) == CWordByWordForm::Next::Over);
}

QTEST_APPLESS_MAIN(HangmanFormTest)
#include "hangman_form_test.moc"
