// SPDX-License-Identifier: MIT
#include "model/word_list.h"
#include "platform/collation.h"
#include "support/lists.h"

#include <QTest>

#include <algorithm>

class WordListSortTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void orders_data();
    void orders();
    void agreesWithTheRuleForPairs();
    void shortLists();
    void shuffling();
};

void WordListSortTest::orders_data()
{
    QTest::addColumn<QString>("entries");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("options"); // a ascending, g group flagged, l by length
    QTest::addColumn<QString>("sorted");
    QTest::newRow("Swedish letters") << "ö,ä,å,z,Z1,a" << 0 << "a"
                                     << "a,z,Z1,å,ä,ö";
    QTest::newRow("equal but for case falls to term 2") << "Hus|b,hus|a" << 0 << "a"
                                                        << "hus|a,Hus|b";
    QTest::newRow("key 1: then term 1, then note") << "b|x,a|x|m,a|x|l" << 1 << "a"
                                                   << "a|x|l,a|x|m,b|x";
    QTest::newRow("key 2: then term 1") << "b|x|n,a|y|n,c|z" << 2 << "ag"
                                        << "c|z,a|y|n,b|x|n";
    QTest::newRow("descending") << "a,c,b" << 0 << ""
                                << "c,b,a";
    QTest::newRow("flagged first") << "a,b|||1,c|||2,d|||1" << 0 << "ag"
                                   << "b|||1,d|||1,a,c|||2";
    QTest::newRow("flagged last when descending") << "a,b|||1,c|||2,d|||1" << 0 << "g"
                                                  << "c|||2,a,d|||1,b|||1";
    QTest::newRow("flags of language 2 for key 1") << "x|a,x|b||1,x|c||2" << 1 << "ag"
                                                   << "x|c||2,x|a,x|b||1";
    QTest::newRow("no groups by note") << "b|||1,a" << 2 << "ag"
                                       << "a,b|||1";
    QTest::newRow("shortest first") << "ccc,b,aa,a" << 0 << "al"
                                    << "a,b,aa,ccc";
    QTest::newRow("longest first") << "ccc,b,aa,a" << 0 << "l"
                                   << "ccc,aa,b,a";
    QTest::newRow("groups before length") << "a,bbb|||1" << 0 << "agl"
                                          << "bbb|||1,a";
}

void WordListSortTest::orders()
{
    QFETCH(QString, entries);
    QFETCH(int, key);
    QFETCH(QString, options);
    QFETCH(QString, sorted);
    CWordList list = MakeList(entries.split(u','));
    CRandom random(1);
    list.Sort(key, {options.contains(u'a'), options.contains(u'g'), options.contains(u'l')}, random);
    QCOMPARE(Describe(list).join(u','), sorted);
    QVERIFY(!list.IsSaved());
}

void WordListSortTest::agreesWithTheRuleForPairs()
{
    const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
    CRandom random(5);
    for (int round = 0; round < 96; ++round) {
        const int key = round % 3;
        const SortOptions options = {round % 2 == 0, round % 4 < 2, round % 8 < 4};
        QStringList entries;
        for (int i = 0; i < 60; ++i) {
            entries.append(RandomText(random, u"aAåb", 2) + u'|' + RandomText(random, u"aAb", 2) + u'|'
                + RandomText(random, u"aé", 1) + u'|' + RandomText(random, u"12", 2));
        }
        CWordList list = MakeList(entries);
        list.Sort(key, options, random);

        const int order[] = {key, key == 0 ? 1 : 0, key == 2 ? 1 : 2};
        const auto before = [&](const CWordEntry &a, const CWordEntry &b) {
            if (options.groupFlagged && key < 2 && a.GetFlag(key) != b.GetFlag(key)) {
                return a.GetFlag(key) == options.ascending;
            }
            const qsizetype lengths[] = {a.GetField(key).size(), b.GetField(key).size()};
            if (options.byLength && lengths[0] != lengths[1]) {
                return (lengths[0] < lengths[1]) == options.ascending;
            }
            for (const int field : order) {
                const int difference = collator.Compare(a.GetField(field), b.GetField(field));
                if (difference != 0) {
                    return (difference < 0) == options.ascending;
                }
            }
            return false;
        };
        for (int i = 0; i + 1 < list.Count(); ++i) {
            QVERIFY(!before(list.Entry(i + 1), list.Entry(i)));
        }
        QStringList kept = Describe(list);
        QStringList given = Describe(MakeList(entries));
        kept.sort();
        given.sort();
        QCOMPARE(kept, given);
    }
}

void WordListSortTest::shortLists()
{
    CRandom random(1);
    CWordList list = MakeList({QStringLiteral("a")});
    list.Sort(0, {}, random);
    list.Sort(ShuffleKey, {}, random);
    QVERIFY(list.IsSaved());
}

void WordListSortTest::shuffling()
{
    QStringList entries;
    for (int i = 0; i < 50; ++i) {
        entries.append(QString::number(i));
    }
    CWordList list = MakeList(entries);
    CWordList same = list;
    CRandom random(9);
    CRandom sameRandom(9);
    list.Sort(ShuffleKey, {}, random);
    same.Sort(ShuffleKey, {}, sameRandom);
    QCOMPARE(Describe(list), Describe(same)); // The random source alone decides.
    QVERIFY(Describe(list) != entries);
    QVERIFY(!list.IsSaved());
    QStringList sorted = Describe(list);
    sorted.sort();
    entries.sort();
    QCOMPARE(sorted, entries);
}

QTEST_APPLESS_MAIN(WordListSortTest)
#include "word_list_sort_test.moc"
