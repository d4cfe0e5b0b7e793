// SPDX-License-Identifier: MIT
#include "quiz/answer_check.h"
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
};

QTEST_APPLESS_MAIN(AnswerCheckTest)
#include "answer_check_test.moc"
