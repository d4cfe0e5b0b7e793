// SPDX-License-Identifier: MIT
#include "quiz/answer_difference.h"
#include "quiz/difference_text.h"
#include "resources/texts.h"

#include <QTest>

using namespace Qt::StringLiterals;

class AnswerDifferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void differences_data()
    {
        QTest::addColumn<QString>("term");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("options"); // i ignore case, 1 or 2 character check
        QTest::addColumn<QString>("parts"); // +missing, -surplus, typed>expected, same or typed/expected
        QTest::addColumn<QString>("slip"); // A letter for each.
        const auto row = [](const char *name, const char *term, const char *answer, const char *options,
                             const char *parts, const char *slip) {
            QTest::newRow(name) << QString::fromUtf8(term) << QString::fromUtf8(answer)
                                << QString::fromUtf8(options) << QString::fromUtf8(parts)
                                << QString::fromUtf8(slip);
        };
        row("a letter missing", "house", "hose", "", "ho|+u|se", "O");
        row("a letter too much", "house", "houuse", "", "hou|-u|se", "O");
        row("a letter changed", "house", "hause", "", "h|a>o|use", "O");
        row("a digit is no letter", "mp3", "mp4", "", "mp|4>3", "");
        row("the fewest steps", "sitting", "kittens", "", "k>s|itt|e>i|n|s>g", "");
        row("one more and one less", "abcd", "bcde", "", "+a|bcd|-e", "");
        row("all else", "dog", "cat", "", "cat>dog", "W");
        row("letter case", "Hund", "hUND", "", "hUND>Hund", "L");
        row("letter case and punctuation", "Don't", "dont", "", "d>D|on|+'|t", "LP");
        row("å is a letter", "får", "far", "", "f|a>å|r", "O");
        row("ü is an accent", "über", "uber", "", "u>ü|ber", "A");
        row("an apostrophe that looks the same", "don't", "don’t", "", "don|’>'|t", "S");
        row("a blank that looks the same", "to be", "to\u00A0be", "", "to|\u00A0> |be", "S");
        row("two neighbours exchanged", "horse", "hrose", "", "h|ro>or|se", "X");
        row("accents", "été", "ete", "", "e>é|t|e>é", "A");
        row("a combining mark belongs to its letter", "e\u0301n", "en", "", "e>e\u0301|n", "A");
        row("an emoji of several code points is one", "a👩‍🚀b", "ab", "", "a|+👩‍🚀|b", "P");
        row("punctuation", "to-be, or", "to be or", "", "to| >-|be|+,| or", "P");
        row("only digits left are no words", "!", "?", "", "?>!", "W");
        row("the nearest of several", "cat * house * horse", "housse", "", "hous|-s|e", "O");
        row("the first of those as near", "bat * cat", "rat", "", "r>b|at", "O");
        row("a named slip is nearest", "H * hund", "HUND", "", "HUND>hund", "L");
        row("the whole term", "cat * dog", "cat dog", "", "cat |+* |dog", "P");
        row("the comment left out", "hus [n]", "huss", "", "hus|-s", "O");
        row("the comment typed", "hus [n]", "hus m", "", "hus |m>n", "O");
        row("what does not count is the same", "to-be or Not", "Tobe or noot", "i1",
            "Tobe or no/to-be or No|-o|t", "O");
        row("also between steps", "fast, cars!", "¡last bars", "1", "¡/|l>f|ast /ast, |b>c|ars/ars!", "");
        row("only its case counts", "Hund!", "hUND", "1", "hUND>Hund|/!", "L");
        row("case ignored", "Hund", "HUNT", "i", "HUN/Hun|T>d", "O");
        row("nothing left to compare", "to-be", "!!", "1", "!!>to-be", "W");
        row("a mark that does not count stays with its letter", "e\u0301ne", "enn", "1", "en/e\u0301n|n>e",
            "O");
        row("looks the same and is not", "e\u0301n", "én", "", "é>e\u0301|n", "S");
        row("looks the same and counts as without its mark", "én", "e\u0301n", "1", "e\u0301>é|n", "A");
        row("parts that make one character", "\u0e19\u0e33x", "\u0e19-\u0e33", "1",
            "\u0e19-\u0e33/\u0e19\u0e33|+x", "O");
    }

    void differences()
    {
        QFETCH(QString, term);
        QFETCH(QString, answer);
        QFETCH(QString, options);
        QFETCH(QString, parts);
        QFETCH(QString, slip);
        const CheckingOptions checking = {options.contains(u'i'),
            options.contains(u'1') ? CharacterCheck::OnlyLetters : CharacterCheck::AllCharacters};
        const AnswerDifference difference = answerDifference(CWordEntry(term), 0, answer, checking);
        QStringList found;
        for (const DifferencePart &part : difference.parts) {
            using enum DifferencePart::Kind;
            found.append(part.kind == Same
                    ? (part.typed == part.expected ? part.typed : part.typed + u'/' + part.expected)
                    : part.kind == Missing ? u'+' + part.expected
                    : part.kind == Surplus ? u'-' + part.typed
                                           : part.typed + u'>' + part.expected);
        }
        QCOMPARE(found.join(u'|'), parts);
        QString slips;
        for (int bit = 0; bit < 7; ++bit) {
            if (difference.slips.testFlag(Slip(1 << bit))) {
                slips += u"LAPSOXW"_s.at(bit);
            }
        }
        QCOMPARE(slips, slip);
    }

    void shown()
    {
        const CTexts texts;
        const AnswerDifference markup = answerDifference(CWordEntry(u"<b> & co"_s), 0, u"<i>  & co"_s, {});
        QCOMPARE(differenceAsHtml(markup),
            u"&lt;<s>i</s>&gt;<s>\u00A0</s>\u00A0&amp;\u00A0co → &lt;<u>b</u>&gt;\u00A0&amp;\u00A0co"_s);
        QCOMPARE(differenceInWords(markup, texts),
            u"\"<i>  & co\", rätt är \"<b> & co\": ändra \"i\" till \"b\", ta bort \" \"."_s);
        const AnswerDifference letter = answerDifference(CWordEntry(u"%s1"_s), 0, u"%1"_s, {});
        QCOMPARE(differenceInWords(letter, texts), u"\"%1\", rätt är \"%s1\": lägg till \"s\"."_s);
        const AnswerDifference ignored = answerDifference(CWordEntry(u"to-be"_s), 0, u"Tobbe!"_s,
            {.ignoreCase = true, .characterCheck = CharacterCheck::OnlyLetters});
        QCOMPARE(differenceAsHtml(ignored), u"Tob<s>b</s>e! → to-be"_s);
        // What was typed doesn't turn what is right.
        const AnswerDifference turned = answerDifference(CWordEntry(u"a"_s), 0, u"a\u202E"_s, {});
        QCOMPARE(differenceAsHtml(turned), u"\u2068a<s>\u202E</s>\u2069 → a"_s);
        QCOMPARE(differenceInWords(ignored, texts), u"\"Tobbe!\", rätt är \"to-be\": ta bort \"b\"."_s);
        QCOMPARE(slipNames(Slip::LetterCase | Slip::PunctuationOrBlanks, texts),
            u"Stora och små bokstäver; Skiljetecken eller mellanslag"_s);
        const AnswerDifference other = answerDifference(CWordEntry(u"dog"_s), 0, u"cat"_s, {});
        QCOMPARE(differenceInWords(other, texts) + u' ' + slipNames(other.slips, texts),
            u"\"cat\", rätt är \"dog\". Annat ord"_s);
    }

    void longTexts()
    {
        // Too long to be compared letter by letter: what is between the common ends is one change.
        const QString middle(20000, u'x');
        const QString other(20001, u'y');
        const QString words = u"word "_s.repeated(6000);
        const AnswerDifference difference =
            answerDifference(CWordEntry(words + middle + u'b'), 0, words + other + u'b', {});
        QCOMPARE(difference.parts.size(), 3);
        QCOMPARE(difference.parts.at(1), (DifferencePart{DifferencePart::Kind::Changed, other, middle}));
        const QString html = differenceAsHtml(difference);
        QVERIFY(html.size() < 400 && html.startsWith(u"word\u00A0word"_s) && html.contains(u"word…word"_s));
        // So many steps that nobody reads them, although they are found at once.
        const AnswerDifference steps = answerDifference(
            CWordEntry(u"a-"_s.repeated(100000)), 0, u"!"_s, {.characterCheck = CharacterCheck::OnlyLetters});
        QVERIFY(differenceAsHtml(steps).size() < 300);
    }
};

QTEST_APPLESS_MAIN(AnswerDifferenceTest)
#include "answer_difference_test.moc"
