// SPDX-License-Identifier: MIT
#include "quiz/answer_check.h"
#include "quiz/answer_difference.h"
#include "quiz/difference_text.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"
#include "support/lists.h"

class AnswerCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verdicts()
    {
        using enum AnswerVerdict;
        const struct
        {
            QString term, typed;
            QString options; // i ignore case, 1 or 2 character check
            AnswerVerdict verdict;
        } rows[] = {
            {{}, {}, {}, Wrong}, // empty answer, empty term
            {u"a"_s, u"a"_s, {}, Right}, // equal
            {u"a*b*c"_s, u"c"_s, {}, RightOneOfSeveral}, // the last of several
            {u"a*b"_s, u"c"_s, {}, Wrong}, // none of several
            {u"a*b"_s, u"a * b"_s, {}, Right}, // the whole stored term
            {u"hus [n]"_s, u"hus"_s, {}, Right}, // comment left out
            {u"hus [n]"_s, u"hus n"_s, {}, Right}, // comment without brackets
            {u"hus [n]"_s, u"hus [n]"_s, {}, Right}, // comment in full
            {u"hus [n]"_s, u"HUS [N]"_s, u"i"_s, Right}, // comment with brackets, case ignored
            {u"hus [n] * hem"_s, u"hus"_s, {}, RightOneOfSeveral}, // comment in one of several
            {u"hus [n] * hem"_s, u"hus * hem"_s, {}, Right}, // whole term without comments
            {u"hus [n]"_s, u"hus [m]"_s, {}, Wrong}, // another comment
            {u"a ] b [ c"_s, u"a  b  c"_s, {}, Right}, // reversed brackets
            {u"a ] b [ c"_s, u"a b c"_s, {}, Wrong}, // reversed brackets as stored
            {u"Hus"_s, u"hus"_s, {}, Wrong}, // case counts
            {u"ÅÄÖ É"_s, u"åäö é"_s, u"i"_s, Right}, // case ignored
            {u"É"_s, u"e"_s, u"i"_s, Wrong}, // case ignored, accents count
            {u"to-be!"_s, u"to be"_s, u"1"_s, Right}, // letters only
            {u"To be"_s, u"tobe"_s, u"1"_s, Wrong}, // letters only keep case
            {u"to-be"_s, u"to be"_s, u"2"_s, Wrong}, // letters and spaces: hyphen joins
            {u"to be"_s, u"to\t be1"_s, u"2"_s, Right}, // letters and spaces: tab goes
            {u"be"_s, u"be "_s, u"2"_s, Wrong}, // letters and spaces: no trimming
            {{}, u"12"_s, u"1"_s, Right}, // digits match an empty term
            {u"1984"_s, u"42"_s, u"1"_s, Right}, // digits match digits
            {u"L'Été [m]"_s, u"lété"_s, u"1i"_s, Right}, // letters only and case ignored
            {u"hus [n]"_s, u"husN"_s, u"1"_s, Wrong}, // comment must match when typed
            {u"é"_s, u"e\u0301"_s, {}, Wrong}, // no Unicode normalisation
        };
        for (const auto &row : rows) {
            const CheckingOptions checking = {row.options.contains(u'i'),
                row.options.contains(u'1')       ? CharacterCheck::OnlyLetters
                    : row.options.contains(u'2') ? CharacterCheck::LettersAndSpaces
                                                 : CharacterCheck::AllCharacters};
            QCOMPARE(checkAnswer(CWordEntry(row.term), 0, row.typed, checking), row.verdict);
        }
    }

    void languages()
    {
        const CWordEntry entry = MakeEntry(u"hund [djur]|dog * %note|n"_s);
        QCOMPARE(checkAnswer(entry, 1, u"dog"_s, {}), AnswerVerdict::RightOneOfSeveral);
        QCOMPARE(checkAnswer(entry, 0, u"dog"_s, {}), AnswerVerdict::Wrong);
        const QuizQuestion question = {entry, 1, {u"Svenska"_s, u"Engelska"_s}};
        // In a fixed order: what one variable brings in is expanded by those after it, never by those before.
        QCOMPARE(expandEntryVariables(u"%word|%answer|%note|%from|%to|%useranswer"_s, question),
            u"dog * n|hund [djur]|n|Engelska|Svenska|%useranswer"_s);
    }

    void feedback()
    {
        using enum AnswerVerdict;
        const struct
        {
            AnswerVerdict verdict;
            QString typed;
            bool showAnswer, showIfOneCorrect;
            QString text; // Empty: none.
        } rows[] = {
            {Right, u"a"_s, true, true, {}}, // right
            // One of several, shown.
            {RightOneOfSeveral, u"a"_s, false, true, u"Rätt svar! Alla rätta svar är:\r\n\r\na * b"_s},
            {RightOneOfSeveral, u"a"_s, true, false, {}}, // one of several, not shown
            {Wrong, u"%word"_s, true, false,
                u"Fel. Rätt svar är:\r\n\r\na * b\r\n\r\nDu svarade:\r\n\r\n%word"_s}, // wrong
            {Wrong, {}, true, false, u"Rätt svar är:\r\n\r\na * b"_s}, // wrong and empty
            {Wrong, u"x"_s, false, true, {}}, // wrong, not shown
        };
        for (const auto &row : rows) {
            QuizSettings settings;
            settings.showAnswer = row.showAnswer;
            settings.showAnswerIfOneCorrect = row.showIfOneCorrect;
            const CTexts texts;
            const CWordEntry entry = MakeEntry(u"q|a*b"_s);
            const auto result = feedbackText(texts, settings, row.verdict, {entry, 0, {}}, row.typed);
            QCOMPARE(result ? result->text : QString(), row.text);
        }
    }

    void differences()
    {
        const struct
        {
            QString term, answer;
            QString options; // i ignore case, 1 character check
            QString parts; // +missing, -surplus, typed>expected, same or typed/expected
            QString slips; // A letter for each.
        } rows[] = {
            {u"house"_s, u"hose"_s, {}, u"ho|+u|se"_s, u"O"_s}, // a letter missing
            {u"house"_s, u"houuse"_s, {}, u"hou|-u|se"_s, u"O"_s}, // a letter too much
            {u"house"_s, u"hause"_s, {}, u"h|a>o|use"_s, u"O"_s}, // a letter changed
            {u"mp3"_s, u"mp4"_s, {}, u"mp|4>3"_s, {}}, // a digit is no letter
            {u"sitting"_s, u"kittens"_s, {}, u"k>s|itt|e>i|n|s>g"_s, {}}, // the fewest steps
            {u"abcd"_s, u"bcde"_s, {}, u"+a|bcd|-e"_s, {}}, // one more and one less
            {u"dog"_s, u"cat"_s, {}, u"cat>dog"_s, u"W"_s}, // all else
            {u"Hund"_s, u"hUND"_s, {}, u"hUND>Hund"_s, u"L"_s}, // letter case
            {u"Don't"_s, u"dont"_s, {}, u"d>D|on|+'|t"_s, u"LP"_s}, // letter case and punctuation
            {u"får"_s, u"far"_s, {}, u"f|a>å|r"_s, u"O"_s}, // å is a letter
            {u"über"_s, u"uber"_s, {}, u"u>ü|ber"_s, u"A"_s}, // ü is an accent
            {u"don't"_s, u"don’t"_s, {}, u"don|’>'|t"_s, u"S"_s}, // an apostrophe that looks the same
            {u"to be"_s, u"to\u00A0be"_s, {}, u"to|\u00A0> |be"_s, u"S"_s}, // a blank that looks the same
            {u"horse"_s, u"hrose"_s, {}, u"h|ro>or|se"_s, u"X"_s}, // two neighbours exchanged
            {u"été"_s, u"ete"_s, {}, u"e>é|t|e>é"_s, u"A"_s}, // accents
            {u"e\u0301n"_s, u"en"_s, {}, u"e>e\u0301|n"_s, u"A"_s}, // a combining mark belongs to its letter
            // An emoji of several code points is one.
            {u"a👩‍🚀b"_s, u"ab"_s, {}, u"a|+👩‍🚀|b"_s, u"P"_s},
            {u"to-be, or"_s, u"to be or"_s, {}, u"to| >-|be|+,| or"_s, u"P"_s}, // punctuation
            {u"!"_s, u"?"_s, {}, u"?>!"_s, u"W"_s}, // only digits left are no words
            {u"cat * house * horse"_s, u"housse"_s, {}, u"hous|-s|e"_s, u"O"_s}, // the nearest of several
            {u"bat * cat"_s, u"rat"_s, {}, u"r>b|at"_s, u"O"_s}, // the first of those as near
            {u"H * hund"_s, u"HUND"_s, {}, u"HUND>hund"_s, u"L"_s}, // a named slip is nearest
            {u"cat * dog"_s, u"cat dog"_s, {}, u"cat |+* |dog"_s, u"P"_s}, // the whole term
            {u"hus [n]"_s, u"huss"_s, {}, u"hus|-s"_s, u"O"_s}, // the comment left out
            {u"hus [n]"_s, u"hus m"_s, {}, u"hus |m>n"_s, u"O"_s}, // the comment typed
            // What does not count is the same.
            {u"to-be or Not"_s, u"Tobe or noot"_s, u"i1"_s, u"Tobe or no/to-be or No|-o|t"_s, u"O"_s},
            // Also between steps.
            {u"fast, cars!"_s, u"¡last bars"_s, u"1"_s, u"¡/|l>f|ast /ast, |b>c|ars/ars!"_s, {}},
            {u"Hund!"_s, u"hUND"_s, u"1"_s, u"hUND>Hund|/!"_s, u"L"_s}, // only its case counts
            {u"Hund"_s, u"HUNT"_s, u"i"_s, u"HUN/Hun|T>d"_s, u"O"_s}, // case ignored
            {u"to-be"_s, u"!!"_s, u"1"_s, u"!!>to-be"_s, u"W"_s}, // nothing left to compare
            // A mark that does not count stays with its letter.
            {u"e\u0301ne"_s, u"enn"_s, u"1"_s, u"en/e\u0301n|n>e"_s, u"O"_s},
            {u"e\u0301n"_s, u"én"_s, {}, u"é>e\u0301|n"_s, u"S"_s}, // looks the same and is not
            // Looks the same and counts as without its mark.
            {u"én"_s, u"e\u0301n"_s, u"1"_s, u"e\u0301>é|n"_s, u"A"_s},
            // Parts that make one character.
            {u"\u0e19\u0e33x"_s, u"\u0e19-\u0e33"_s, u"1"_s, u"\u0e19-\u0e33/\u0e19\u0e33|+x"_s, u"O"_s},
        };
        for (const auto &row : rows) {
            const CheckingOptions checking = {row.options.contains(u'i'),
                row.options.contains(u'1') ? CharacterCheck::OnlyLetters : CharacterCheck::AllCharacters};
            const AnswerDifference difference = answerDifference(CWordEntry(row.term), 0, row.answer, checking);
            QStringList found;
            for (const DifferencePart &part : difference.parts) {
                using enum DifferencePart::Kind;
                found.append(part.kind == Same
                        ? (part.typed == part.expected ? part.typed : part.typed + u'/' + part.expected)
                        : part.kind == Missing ? u'+' + part.expected
                        : part.kind == Surplus ? u'-' + part.typed
                                               : part.typed + u'>' + part.expected);
            }
            QCOMPARE(found.join(u'|'), row.parts);
            QString slips;
            for (int bit = 0; bit < 7; ++bit) {
                if (difference.slips.testFlag(Slip(1 << bit))) {
                    slips += u"LAPSOXW"_s.at(bit);
                }
            }
            QCOMPARE(slips, row.slips);
        }
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

QTEST_APPLESS_MAIN(AnswerCheckTest)
#include "answer_check_test.moc"
