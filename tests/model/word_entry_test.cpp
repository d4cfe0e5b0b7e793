// SPDX-License-Identifier: MIT
#include "model/word_entry.h"
#include "support/lists.h"

#include <QTest>

class WordEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alternatives();
    void hasAlternative();
    void flagsCycle();
    void swappingFields();
    void swappingWithAnotherEntry();
    void indicesOutOfRange();
};

namespace {

QStringList Alternatives(const CWordEntry &entry, int index)
{
    QStringList result;
    for (int k = 0; k <= entry.AlternativeCount(index); ++k) {
        result.append(entry.GetAlternative(index, k, false));
    }
    return result;
}

}

void WordEntryTest::alternatives()
{
    CWordEntry entry = MakeEntry(QStringLiteral("hund [djur]*vovve*|dog"));
    QCOMPARE(entry.GetText(0), QStringLiteral("hund [djur] * vovve"));
    QCOMPARE(entry.AlternativeCount(0), 1);
    QCOMPARE(entry.GetAlternative(0, 0, false), QStringLiteral("hund [djur]"));
    QCOMPARE(entry.GetAlternative(0, 0, true), QStringLiteral("hund"));
    QCOMPARE(entry.GetAlternative(0, 2, false), QString());
    QCOMPARE(entry.GetCleanTerm(0), QStringLiteral("hund * vovve"));
    QCOMPARE(entry.AlternativeCount(1), 0);
    QCOMPARE(entry.GetAlternative(1, 0, false), QStringLiteral("dog"));

    entry.SetTerm(QStringLiteral(" [ ] "), 0);
    QCOMPARE(entry.GetText(0), QString());
    QCOMPARE(Alternatives(entry, 0), QStringList({QString()}));
    entry.SetNote(QStringLiteral(" a\n b "));
    QCOMPARE(entry.GetNote(), QStringLiteral("a b"));
}

void WordEntryTest::hasAlternative()
{
    const CWordEntry entry = MakeEntry(QStringLiteral("hund [djur]|a * b"));
    QVERIFY(entry.HasAlternative(QStringLiteral("HUND [djur]"), 0, true));
    QVERIFY(!entry.HasAlternative(QStringLiteral("HUND [djur]"), 0, false));
    QVERIFY(!entry.HasAlternative(QStringLiteral("hund"), 0, true));
    QVERIFY(entry.HasAlternative(QStringLiteral("b"), 1, false));
    // The whole term is compared only where it has one alternative.
    QVERIFY(!entry.HasAlternative(QStringLiteral("a * b"), 1, false));
    QVERIFY(CWordEntry().HasAlternative(QString(), 0, false));
    QVERIFY(entry.SharesAlternative(MakeEntry(QStringLiteral("|x * b")), 1, false));
    QVERIFY(!entry.SharesAlternative(MakeEntry(QStringLiteral("|x * B")), 1, false));
}

void WordEntryTest::flagsCycle()
{
    CWordEntry entry = MakeEntry(QStringLiteral("a|b"));
    QStringList flags;
    for (int i = 0; i < 4; ++i) {
        entry.CycleFlags();
        flags.append(Describe(entry).section(u'|', 3));
    }
    QCOMPARE(flags.join(u','), QStringLiteral("1,2,12,"));
}

void WordEntryTest::swappingFields()
{
    CWordEntry entry = MakeEntry(QStringLiteral("a * b|c|d*e|1"));
    entry.SwapFields(true, true, 0, 2);
    QCOMPARE(Describe(entry), QStringLiteral("d * e|c|a * b|1"));
    QCOMPARE(entry.AlternativeCount(0), 1);
    entry.SwapFields(true, true, 0, 1);
    QCOMPARE(Describe(entry), QStringLiteral("c|d * e|a * b|2"));
    QCOMPARE(entry.AlternativeCount(0), 0);
    entry.SwapFields(false, true, 0, 1);
    QCOMPARE(Describe(entry), QStringLiteral("c|d * e|a * b|1"));
}

void WordEntryTest::swappingWithAnotherEntry()
{
    CWordEntry a = MakeEntry(QStringLiteral("a * b|c|n|1"));
    CWordEntry b = MakeEntry(QStringLiteral("d|e|m|2"));
    a.SwapFieldWith(b, 0);
    QCOMPARE(Describe(a), QStringLiteral("d|c|n"));
    QCOMPARE(Describe(b), QStringLiteral("a * b|e|m|12"));
    QCOMPARE(b.AlternativeCount(0), 1);
    QCOMPARE(a.AlternativeCount(0), 0);
    a.SwapFieldWith(b, 2);
    QCOMPARE(a.GetNote(), QStringLiteral("m"));
}

void WordEntryTest::indicesOutOfRange()
{
    CWordEntry entry = MakeEntry(QStringLiteral("a|b|n|12"));
    entry.SetTerm(QStringLiteral("x"), 2);
    entry.SetFlag(-1, false);
    entry.SwapFields(true, true, 0, 3);
    QCOMPARE(Describe(entry), QStringLiteral("a|b|n|12"));
    QCOMPARE(entry.GetText(2), QString());
    QCOMPARE(entry.GetAlternative(5, 0, true), QString());
    QVERIFY(!entry.GetFlag(2));
}

QTEST_APPLESS_MAIN(WordEntryTest)
#include "word_entry_test.moc"
