// SPDX-License-Identifier: MIT
#include "model/term_syntax.h"
#include "platform/random.h"
#include "support/lists.h"

#include <QTest>

namespace {

/// The rules word by word and as slow as they read, to compare with.
QString SlowRemoveEmptyComments(QString text)
{
    for (qsizetype position = text.size(); position > 0;) {
        const qsizetype opener = text.lastIndexOf(u'[', position - 1);
        if (opener < 0) {
            break;
        }
        const qsizetype closer = text.indexOf(u']', opener);
        if (closer > 0) {
            const QString between = text.mid(opener + 1, closer - opener - 1);
            if (between.count(u' ') == between.size()) {
                text.remove(opener, closer - opener + 1);
            }
        }
        position = opener;
    }
    return text;
}

QString SlowRemoveComments(QString text)
{
    for (;;) {
        const qsizetype opener = text.lastIndexOf(u'[');
        const qsizetype closer = opener < 0 ? -1 : text.indexOf(u']', opener);
        if (closer < 0) {
            return text;
        }
        text.remove(opener, closer - opener + 1);
    }
}

}

class TermSyntaxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalForm_data();
    void normalForm();
    void comments_data();
    void comments();
    void agreesWithTheSlowRules();
    void hugeTermsTakeNoQuadraticTime();
    void tokens();
    void corrections_data();
    void corrections();
};

void TermSyntaxTest::normalForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("normal");
    QTest::newRow("separator without blanks") << "hund*vovve"
                                              << "hund * vovve";
    QTest::newRow("empty alternative between") << "a * * b"
                                               << "a * b";
    QTest::newRow("empty alternative at the end") << "a *"
                                                  << "a";
    QTest::newRow("empty comment as an alternative") << "a * [] * b"
                                                     << "a * b";
    QTest::newRow("comment of blanks") << "x [  ]"
                                       << "x";
    QTest::newRow("comments emptied from within") << "x [[ ] [] ]"
                                                  << "x";
    QTest::newRow("comment is kept") << "dog  [animal]"
                                     << "dog [animal]";
    QTest::newRow("runs of blanks") << "  a   b  "
                                    << "a b";
    QTest::newRow("only separators") << "** *"
                                     << "";
    QTest::newRow("only a blank") << " "
                                  << "";
    QTest::newRow("tab and line break") << "a\t\r\nb"
                                        << "a b";
    QTest::newRow("delete character") << "a\u007F"
                                      << "a";
    QTest::newRow("no-break space is no blank") << "\u00A0a"
                                                << "\u00A0a";
    QTest::newRow("control above 127 stays") << "a\u0085b"
                                             << "a\u0085b";
    QTest::newRow("separator inside a comment splits") << "a [b*c] d"
                                                       << "a [b * c] d";
}

void TermSyntaxTest::normalForm()
{
    QFETCH(QString, text);
    QFETCH(QString, normal);
    QCOMPARE(NormalizeTerm(text), normal);
    QCOMPARE(NormalizeTerm(normal), normal);
}

void TermSyntaxTest::comments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stripped");
    QTest::newRow("in the middle") << "a [x] b"
                                   << "a b";
    QTest::newRow("several alternatives") << "a [x] * [y] b"
                                          << "a * b";
    QTest::newRow("unmatched opener keeps those before it") << "a [x] b [y"
                                                            << "a [x] b [y";
    QTest::newRow("comments do not nest") << "[a [b] c] d"
                                          << "d";
    QTest::newRow("closer alone stays") << "a ] b"
                                        << "a ] b";
    QTest::newRow("alternative that was all comment") << "a * [b]"
                                                      << "a";
}

void TermSyntaxTest::comments()
{
    QFETCH(QString, text);
    QFETCH(QString, stripped);
    QCOMPARE(StripComments(text), stripped);
}

void TermSyntaxTest::agreesWithTheSlowRules()
{
    CRandom random(3);
    for (int i = 0; i < 20000; ++i) {
        const QString text = RandomText(random, u"[[[]]]  ab*", 12);
        QString emptied = text;
        RemoveEmptyComments(emptied);
        QVERIFY2(emptied == SlowRemoveEmptyComments(text), qPrintable(text));
        QVERIFY2(StripComments(text) == NormalizeTerm(SlowRemoveComments(text)), qPrintable(text));
    }
}

void TermSyntaxTest::hugeTermsTakeNoQuadraticTime()
{
    // Each of these would take minutes if every removal moved the rest of the text.
    constexpr int Repeats = 400000;
    QCOMPARE(NormalizeTerm(QStringLiteral("[ ]").repeated(Repeats) + u'x'), QStringLiteral("x"));
    QCOMPARE(StripComments(QStringLiteral("[a]").repeated(Repeats) + u'x'), QStringLiteral("x"));
    QCOMPARE(NormalizeTerm(QStringLiteral("[").repeated(Repeats) + QStringLiteral("]").repeated(Repeats)),
        QString());
    QCOMPARE(NormalizeTerm(QStringLiteral(" *").repeated(Repeats)), QString());
    QCOMPARE(NormalizeTerm(QStringLiteral("  a").repeated(Repeats)).size(), 2 * Repeats - 1);
}

void TermSyntaxTest::tokens()
{
    QStringView source = u"1 0 rest";
    QStringView token;
    QVERIFY(NextToken(source, token, u' '));
    QCOMPARE(token, u"1");
    QCOMPARE(source, u"0 rest");
    source = u"last";
    QVERIFY(!NextToken(source, token, u' '));
    QCOMPARE(token, u"last");
    QVERIFY(source.isEmpty());
}

void TermSyntaxTest::corrections_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("suggestion"); // Empty: nothing to correct.
    QTest::newRow("comma outside brackets") << "hus, hem (plural)"
                                            << "hus * hem [plural]";
    QTest::newRow("comma inside brackets stays") << "a (b, c)"
                                                 << "a [b, c]";
    QTest::newRow("separator closes the brackets") << "a (b * c, d"
                                                   << "a [b * c * d";
    QTest::newRow("stray closer lowers nothing") << "a), b"
                                                 << "a] * b";
    QTest::newRow("right syntax") << "a * b [c, d]"
                                  << "";
}

void TermSyntaxTest::corrections()
{
    QFETCH(QString, text);
    QFETCH(QString, suggestion);
    const std::optional<QString> result = SuggestTermCorrection(text);
    QCOMPARE(result.has_value(), !suggestion.isEmpty());
    QCOMPARE(result.value_or(QString()), suggestion);
}

QTEST_APPLESS_MAIN(TermSyntaxTest)
#include "term_syntax_test.moc"
