// SPDX-License-Identifier: MIT
#include "model/word_entry.h"
#include "support/lists.h"

class WordEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alternatives()
    {
        CWordEntry entry = MakeEntry(u"hund [djur]*vovve*|dog"_s);
        QCOMPARE(entry.GetText(0), u"hund [djur] * vovve"_s);
        QCOMPARE(entry.AlternativeCount(0), 1);
        QCOMPARE(entry.GetAlternative(0, 0, false), u"hund [djur]"_s);
        QCOMPARE(entry.GetAlternative(0, 0, true), u"hund"_s);
        QCOMPARE(entry.GetAlternative(0, 2, false), QString());
        QCOMPARE(entry.GetCleanTerm(0), u"hund * vovve"_s);
        QCOMPARE(entry.AlternativeCount(1), 0);
        QCOMPARE(entry.GetAlternative(1, 0, false), u"dog"_s);

        entry.SetTerm(u" [ ] "_s, 0);
        QCOMPARE(entry.GetText(0) + entry.GetAlternative(0, 0, false), QString());
        QCOMPARE(entry.AlternativeCount(0), 0);
        entry.SetNote(u" a\n b "_s);
        QCOMPARE(entry.GetNote(), u"a b"_s);
    }

    void hasAlternative()
    {
        const CWordEntry entry = MakeEntry(u"hund [djur]|a * b"_s);
        QVERIFY(entry.HasAlternative(u"HUND [djur]"_s, 0, true));
        QVERIFY(!entry.HasAlternative(u"HUND [djur]"_s, 0, false));
        QVERIFY(!entry.HasAlternative(u"hund"_s, 0, true) && entry.HasAlternative(u"b"_s, 1, false));
        // The whole term is compared only where it has one alternative.
        QVERIFY(!entry.HasAlternative(u"a * b"_s, 1, false));
        QVERIFY(CWordEntry().HasAlternative(QString(), 0, false));
        QVERIFY(entry.SharesAlternative(MakeEntry(u"|x * b"_s), 1, false));
        QVERIFY(!entry.SharesAlternative(MakeEntry(u"|x * B"_s), 1, false));
        QVERIFY(entry.SharesAlternative(MakeEntry(u"hund [djur]|"_s), 0, false));
        QVERIFY(!entry.SharesAlternative(MakeEntry(u"hund|"_s), 0, false)); // Comments count.
    }

    void swapping()
    {
        CWordEntry entry = MakeEntry(u"a * b|c|d*e|1"_s);
        entry.SwapFields(true, true, 0, 2);
        QCOMPARE(Describe(entry), u"d * e|c|a * b|1"_s);
        entry.SwapFields(true, true, 0, 1);
        QCOMPARE(Describe(entry), u"c|d * e|a * b|2"_s);
        QVERIFY(entry.AlternativeCount(0) == 0 && entry.AlternativeCount(1) == 1);
        entry.SwapFields(false, true, 0, 1);
        QCOMPARE(Describe(entry), u"c|d * e|a * b|1"_s);

        CWordEntry other = MakeEntry(u"x * y|e|m|2"_s);
        entry.SwapFieldWith(other, 0);
        QCOMPARE(Describe(entry) + u' ' + Describe(other), u"x * y|d * e|a * b c|e|m|12"_s);
        QVERIFY(entry.AlternativeCount(0) == 1 && other.AlternativeCount(0) == 0);
        entry.SwapFieldWith(other, 2);
        QCOMPARE(entry.GetNote(), u"m"_s);
    }

    void indicesOutOfRange()
    {
        CWordEntry entry = MakeEntry(u"a|b|n|12"_s);
        entry.SetTerm(u"x"_s, 2);
        entry.SetFlag(-1, false);
        entry.SwapFields(true, true, 0, 3);
        QCOMPARE(Describe(entry), u"a|b|n|12"_s);
        QCOMPARE(entry.GetText(2), QString());
        QCOMPARE(entry.GetAlternative(5, 0, true), QString());
        QVERIFY(!entry.GetFlag(2));
    }
};

QTEST_APPLESS_MAIN(WordEntryTest)
#include "word_entry_test.moc"
