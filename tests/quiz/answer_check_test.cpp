// SPDX-License-Identifier: MIT
#include "quiz/answer_check.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"
#include "support/lists.h"

#include <QTest>

Q_DECLARE_METATYPE(AnswerVerdict)

class AnswerCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verdicts_data();
    void verdicts();
    void answerColumns();
    void variables();
    void feedback_data();
    void feedback();
};

void AnswerCheckTest::verdicts_data()
{
    QTest::addColumn<QString>("term");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("options"); // i ignore case, 1 or 2 character check
    QTest::addColumn<AnswerVerdict>("verdict");
    using enum AnswerVerdict;
    QTest::newRow("empty answer, empty term") << ""
                                              << ""
                                              << "" << Wrong;
    QTest::newRow("equal") << "a"
                           << "a"
                           << "" << Right;
    QTest::newRow("the last of several") << "a*b*c"
                                         << "c"
                                         << "" << RightOneOfSeveral;
    QTest::newRow("none of several") << "a*b"
                                     << "c"
                                     << "" << Wrong;
    QTest::newRow("the whole stored term") << "a*b"
                                           << "a * b"
                                           << "" << Right;
    QTest::newRow("comment left out") << "hus [n]"
                                      << "hus"
                                      << "" << Right;
    QTest::newRow("comment without brackets") << "hus [n]"
                                              << "hus n"
                                              << "" << Right;
    QTest::newRow("comment in full") << "hus [n]"
                                     << "hus [n]"
                                     << "" << Right;
    QTest::newRow("comment with brackets, case ignored") << "hus [n]"
                                                         << "HUS [N]"
                                                         << "i" << Right;
    QTest::newRow("comment in one of several") << "hus [n] * hem"
                                               << "hus"
                                               << "" << RightOneOfSeveral;
    QTest::newRow("whole term without comments") << "hus [n] * hem"
                                                 << "hus * hem"
                                                 << "" << Right;
    QTest::newRow("another comment") << "hus [n]"
                                     << "hus [m]"
                                     << "" << Wrong;
    QTest::newRow("reversed brackets") << "a ] b [ c"
                                       << "a  b  c"
                                       << "" << Right;
    QTest::newRow("reversed brackets as stored") << "a ] b [ c"
                                                 << "a b c"
                                                 << "" << Wrong;
    QTest::newRow("case counts") << "Hus"
                                 << "hus"
                                 << "" << Wrong;
    QTest::newRow("case ignored") << "ÅÄÖ É"
                                  << "åäö é"
                                  << "i" << Right;
    QTest::newRow("case ignored, accents count") << "É"
                                                 << "e"
                                                 << "i" << Wrong;
    QTest::newRow("letters only") << "to-be!"
                                  << "to be"
                                  << "1" << Right;
    QTest::newRow("letters only keep case") << "To be"
                                            << "tobe"
                                            << "1" << Wrong;
    QTest::newRow("letters and spaces: hyphen joins") << "to-be"
                                                      << "to be"
                                                      << "2" << Wrong;
    QTest::newRow("letters and spaces: tab goes") << "to be"
                                                  << "to\t be1"
                                                  << "2" << Right;
    QTest::newRow("letters and spaces: no trimming") << "be"
                                                     << "be "
                                                     << "2" << Wrong;
    QTest::newRow("digits match an empty term") << ""
                                                << "12"
                                                << "1" << Right;
    QTest::newRow("digits match digits") << "1984"
                                         << "42"
                                         << "1" << Right;
    QTest::newRow("letters only and case ignored") << "L'Été [m]"
                                                   << "lété"
                                                   << "1i" << Right;
    QTest::newRow("comment must match when typed") << "hus [n]"
                                                   << "husN"
                                                   << "1" << Wrong;
    QTest::newRow("no Unicode normalisation") << "é"
                                              << "e\u0301"
                                              << "" << Wrong;
}

void AnswerCheckTest::verdicts()
{
    QFETCH(QString, term);
    QFETCH(QString, typed);
    QFETCH(QString, options);
    QFETCH(AnswerVerdict, verdict);
    const CheckingOptions checking = {options.contains(u'i'),
        options.contains(u'1')       ? CharacterCheck::OnlyLetters
            : options.contains(u'2') ? CharacterCheck::LettersAndSpaces
                                     : CharacterCheck::AllCharacters};
    QCOMPARE(checkAnswer(CWordEntry(term), 0, typed, checking), verdict);
}

void AnswerCheckTest::answerColumns()
{
    const CWordEntry entry = MakeEntry(QStringLiteral("hund|dog"));
    QCOMPARE(checkAnswer(entry, 1, QStringLiteral("dog"), {}), AnswerVerdict::Right);
    QCOMPARE(checkAnswer(entry, 0, QStringLiteral("dog"), {}), AnswerVerdict::Wrong);
}

void AnswerCheckTest::variables()
{
    const CWordEntry entry = MakeEntry(QStringLiteral("hund [djur]|dog * %note|n"));
    const QuizQuestion question = {entry, 1, {QStringLiteral("Svenska"), QStringLiteral("Engelska")}};
    // In a fixed order: what one variable brings in is expanded by those after it, never by those before.
    QCOMPARE(expandEntryVariables(QStringLiteral("%word|%answer|%note|%from|%to|%useranswer"), question),
        QStringLiteral("dog * n|hund [djur]|n|Engelska|Svenska|%useranswer"));
}

void AnswerCheckTest::feedback_data()
{
    QTest::addColumn<AnswerVerdict>("verdict");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("showAnswer");
    QTest::addColumn<bool>("showIfOneCorrect");
    QTest::addColumn<QString>("text"); // Empty: none.
    using enum AnswerVerdict;
    QTest::newRow("right") << Right << "a" << true << true << "";
    QTest::newRow("one of several, shown")
        << RightOneOfSeveral << "a" << false << true << "Rätt svar! Alla rätta svar är:\r\n\r\na * b";
    QTest::newRow("one of several, not shown") << RightOneOfSeveral << "a" << true << false << "";
    QTest::newRow("wrong") << Wrong << "%word" << true << false
                           << "Fel. Rätt svar är:\r\n\r\na * b\r\n\r\nDu svarade:\r\n\r\n%word";
    QTest::newRow("wrong and empty") << Wrong << "" << true << false << "Rätt svar är:\r\n\r\na * b";
    QTest::newRow("wrong, not shown") << Wrong << "x" << false << true << "";
}

void AnswerCheckTest::feedback()
{
    QFETCH(AnswerVerdict, verdict);
    QFETCH(QString, typed);
    QFETCH(bool, showAnswer);
    QFETCH(bool, showIfOneCorrect);
    QFETCH(QString, text);
    QuizSettings settings;
    settings.showAnswer = showAnswer;
    settings.showAnswerIfOneCorrect = showIfOneCorrect;
    const CTexts texts;
    const CWordEntry entry = MakeEntry(QStringLiteral("q|a*b"));
    const auto result = feedbackText(texts, settings, verdict, {entry, 0, {}}, typed);
    QCOMPARE(result ? result->text : QString(), text);
}

QTEST_APPLESS_MAIN(AnswerCheckTest)
#include "answer_check_test.moc"
