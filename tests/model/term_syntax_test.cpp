// SPDX-License-Identifier: MIT
#include "model/term_syntax.h"
#include "support/lists.h"

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

/// A text and what is to become of it.
struct Row
{
    QString text;
    QString expected;
};

}

class TermSyntaxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalForm()
    {
        const Row rows[] = {
            {u"hund*vovve"_s, u"hund * vovve"_s}, // separator without blanks
            {u"a * * b"_s, u"a * b"_s}, // empty alternatives
            {u"a *"_s, u"a"_s}, {u"** *"_s, {}}, {u" "_s, {}}, {u"a * [] * b"_s, u"a * b"_s}, // empty comments
            {u"x [  ]"_s, u"x"_s}, {u"x [[ ] [] ]"_s, u"x"_s},
            {u"dog  [animal]"_s, u"dog [animal]"_s}, // a comment is kept
            {u"  a   b  "_s, u"a b"_s}, {u"a\t\r\nb"_s, u"a b"_s}, // control characters
            {u"a\u007F"_s, u"a"_s}, {u"\u00A0a"_s, u"\u00A0a"_s}, // other white space stays
            {u"a\u0085b"_s, u"a\u0085b"_s},
            {u"a [b*c] d"_s, u"a [b * c] d"_s}, // a separator inside a comment splits
        };
        for (const auto &[text, expected] : rows) {
            QCOMPARE(NormalizeTerm(text), expected);
            QCOMPARE(NormalizeTerm(expected), expected);
        }
    }

    void comments()
    {
        const Row rows[] = {
            {u"a [x] b"_s, u"a b"_s}, {u"a [x] * [y] b"_s, u"a * b"_s},
            {u"a [x] b [y"_s, u"a [x] b [y"_s}, // an unmatched opener keeps those before it
            {u"[a [b] c] d"_s, u"d"_s}, // comments do not nest
            {u"a ] b"_s, u"a ] b"_s}, {u"a * [b]"_s, u"a"_s}, // an alternative that was all comment
        };
        for (const auto &[text, expected] : rows) {
            QCOMPARE(StripComments(text), expected);
        }
    }

    void agreesWithTheSlowRules()
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

    void hugeTermsTakeNoQuadraticTime()
    {
        // Each of these would take minutes if every removal moved the rest of the text.
        constexpr int Repeats = 400000;
        QCOMPARE(NormalizeTerm(u"[ ]"_s.repeated(Repeats) + u'x'), u"x"_s);
        QCOMPARE(StripComments(u"[a]"_s.repeated(Repeats) + u'x'), u"x"_s);
        QCOMPARE(NormalizeTerm(u"["_s.repeated(Repeats) + u"]"_s.repeated(Repeats)), QString());
        QCOMPARE(NormalizeTerm(u" *"_s.repeated(Repeats)), QString());
        QCOMPARE(NormalizeTerm(u"  a"_s.repeated(Repeats)).size(), 2 * Repeats - 1);
    }

    void corrections()
    {
        const Row rows[] = {
            {u"hus, hem (plural)"_s, u"hus * hem [plural]"_s},
            {u"a (b, c)"_s, u"a [b, c]"_s}, // a comma inside brackets stays
            {u"a (b * c, d"_s, u"a [b * c * d"_s}, // a separator closes the brackets
            {u"a), b"_s, u"a] * b"_s}, // a stray closer lowers nothing
            {u"a * b [c, d]"_s, {}}, // nothing to correct
        };
        for (const auto &[text, expected] : rows) {
            const std::optional<QString> result = SuggestTermCorrection(text);
            QCOMPARE(result.has_value(), !expected.isEmpty());
            QCOMPARE(result.value_or(QString()), expected);
        }
    }
};

QTEST_APPLESS_MAIN(TermSyntaxTest)
#include "term_syntax_test.moc"
