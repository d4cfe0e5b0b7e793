// SPDX-License-Identifier: MIT
#include "games/hangman_form.h"
#include "support/test_form.h"

class HangmanFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words()
    {
        const struct
        {
            QString term;
            bool ignoreCase;
            QString guesses; // With a bar between them.
            QString shown; // The word at first and after each guess.
            QString recorded; // What the last guess recorded, in quotes.
        } rows[] = {
            {u"hund"_s, false, u"d|u|h|n"_s, u"----|---d|-u-d|hu-d|hund"_s, u"'hund'"_s},
            {u"annan"_s, false, u"n a"_s, u"-----|annan"_s, u"'annan'"_s}, // all at once, in any order
            {u"hund"_s, false, u"hxn"_s, u"----|h-n-"_s, u"''"_s}, // a miss among several
            {u"ab"_s, false, u"abc"_s, u"--|ab"_s, u"''"_s}, // a miss with the last letters
            {u"ab"_s, false, u"1, -||a"_s, u"--|--|--|a-"_s, {}}, // no letters guessed
            {u"hus [neutrum]"_s, false, u"s"_s, u"---|--s"_s, {}}, // comments are not played
            {u"a*b, c-d 7"_s, false, u"abcd"_s, u"- * -, --- 7|a * b, c-d 7"_s, u"'a * b, c-d 7'"_s},
            {u"Aa"_s, false, u"a|A"_s, u"--|-a|Aa"_s, u"'Aa'"_s}, // case counts
            {u"Ab"_s, false, u"B"_s, u"--|--"_s, u"''"_s}, // case missed
            {u"ÅSa"_s, true, u"å|A|s"_s, u"---|Å--|Å-a|ÅSa"_s, u"'ÅSa'"_s}, // case ignored
            {u"123"_s, false, {}, u"123|123"_s, u"'123'"_s}, // no letters at all
            {u"123"_s, false, u"a"_s, u"123|123"_s, u"''"_s}, // a miss where there are none
            {u"𝒜字b"_s, false, u"字|𝒜"_s, u"---|-字-|𝒜字-"_s, {}}, // outside the first plane
            {u"e\u0301x"_s, false, u"x"_s, u"-\u0301-|-\u0301x"_s, {}}, // marks stay with their letters
        };
        for (const auto &row : rows) {
            TestDocument test(QStringList{u"x|"_s + row.term});
            QuizSettings settings = InOrder(Requiz::None, 2);
            settings.ignoreCase = row.ignoreCase;
            TestForm<CHangmanForm> quiz(test, settings);
            CHangmanForm &form = quiz.form;
            form.startWord();
            QStringList steps = {form.maskedWord()};
            bool isOver = false;
            for (const QString &guess : row.guesses.split(u'|')) {
                QVERIFY(!isOver);
                const auto outcome = form.guess(guess);
                isOver = outcome.has_value();
                steps += form.maskedWord();
                if (outcome) {
                    const bool isMiss = row.recorded == u"''"_s;
                    QCOMPARE(outcome->verdict, isMiss ? AnswerVerdict::Wrong : AnswerVerdict::Right);
                    QCOMPARE(outcome->feedback.has_value(), isMiss);
                    QCOMPARE(quiz.session->totalRight(), isMiss ? 0 : 1);
                }
            }
            QCOMPARE(steps.join(u'|'), row.shown);
            const QStringList answers = quiz.session->record(0).answers;
            QCOMPARE(isOver ? u'\'' + answers.join(u'|') + u'\'' : QString(), row.recorded);
        }
    }

    void wholeQuiz()
    {
        TestDocument test({u"a|xy z"_s, u"b|v"_s});
        const QuizSettings settings = InOrder(Requiz::AtOnce);
        TestForm<CHangmanForm> quiz(test, settings);
        CHangmanForm &form = quiz.form;
        using Next = CWordByWordForm::Next;
        form.startWord();
        QCOMPARE(form.triedLetters(), QString());
        form.guess(u"yy5"_s);
        QCOMPARE(form.spelledWord(), u"streck, y, mellanslag, streck"_s);
        const auto miss = form.guess(u"zq"_s);
        QVERIFY(miss && miss->feedback->number == 63003 && form.advance(miss->verdict) == Next::SameWord);
        QCOMPARE(form.shownAnswer()->difference, u"q (fel)"_s); // Not that nothing was answered.
        form.startWord(); // Hidden again, and known is what was tried.
        QCOMPARE(form.maskedWord(), u"-- -"_s);
        QCOMPARE(form.triedLetters(), u"Provade bokstäver: y, z, q (fel)"_s);
        quiz.session->changeEntry(form.currentEntry(), u"a"_s, u"qo"_s, {});
        form.entriesChanged();
        form.startWord();
        QCOMPARE(form.maskedWord() + form.triedLetters(), u"--Provade bokstäver: y (fel), z (fel), q"_s);
        const auto right = form.guess(u"qo"_s);
        QVERIFY(right && form.advance(right->verdict) == Next::OtherWord);
        form.startWord();
        QCOMPARE(form.maskedWord() + form.triedLetters(), u"-"_s);
        QVERIFY(form.advance(form.guess(u"v"_s)->verdict) == Next::Over);
        QCOMPARE(form.rightProgress().text, u"2 rätt av 3."_s);
    }

    void nothingToGuess()
    {
        TestDocument test({u"a|[x] "_s, u"b|"_s, u"c|y"_s});
        const QuizSettings settings = InOrder(Requiz::AtOnce);
        TestForm<CHangmanForm> quiz(test, settings, {}, QuizAnswers::AreSpelt);
        QCOMPARE(quiz.session->wordCount(), 1);
        QCOMPARE(quiz.session->unanswerableCount(), 2);
        // A change that leaves nothing to guess: the word is left as it is.
        quiz.session->changeEntry(2, u"c"_s, u"[y]"_s, {});
        quiz.form.startWord();
        const auto outcome = quiz.form.guess({});
        QVERIFY(outcome && quiz.form.advance(outcome->verdict) == CWordByWordForm::Next::Over);
    }
};

QTEST_APPLESS_MAIN(HangmanFormTest)
#include "hangman_form_test.moc"
