// SPDX-License-Identifier: MIT
#include "model/duplicate_search.h"
#include "support/lists.h"

#include <numeric>

namespace {

QStringList RandomEntries(CRandom &random)
{
    QStringList entries;
    for (int count = random.Next() % 9; count > 0; --count) {
        const auto term = [&] {
            QStringList words;
            for (int k = random.Next() % 3; k >= 0; --k) {
                words.append(RandomText(random, u"abcdB", 1) + RandomText(random, u"xy", 1));
            }
            return words.join(u'*');
        };
        entries.append(
            term() + u'|' + term() + u'|' + RandomText(random, u"mn", 3) + u'|' + RandomText(random, u"12", 2));
    }
    return entries;
}

/// All pairs that share an alternative, by comparing each entry with each.
std::vector<DuplicatePair> AllPairs(const CWordList &list)
{
    std::vector<DuplicatePair> pairs;
    for (const int language : {0, 1}) {
        for (int a = 0; a < list.Count(); ++a) {
            for (int b = a + 1; b < list.Count(); ++b) {
                if (!list.Entry(b).GetText(language).isEmpty()
                    && list.Entry(a).SharesAlternative(list.Entry(b), language, false)) {
                    pairs.push_back({language, a, b});
                }
            }
        }
    }
    return pairs;
}

}

class DuplicatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatAllPairsFind()
    {
        CRandom random(21);
        for (int round = 0; round < 500; ++round) {
            const CWordList list = MakeList(RandomEntries(random));
            const CDuplicateSearch search(list);
            const std::vector<DuplicatePair> pairs = AllPairs(list);
            if (pairs.empty()) {
                QVERIFY(!search.FindNext());
                continue;
            }
            // From every position: the pair at or after it, and behind the last one the first again.
            for (const int language : {0, 1, 2}) {
                for (int entry = 0; entry <= list.Count(); ++entry) {
                    for (int other = 0; other <= list.Count(); ++other) {
                        const DuplicatePair from = {language, entry, other};
                        const auto expected = std::ranges::lower_bound(pairs, from);
                        QVERIFY(search.FindNext(from) == (expected == pairs.end() ? pairs.front() : *expected));
                    }
                }
            }
        }
    }

    void mergesIntoTheFirst()
    {
        CWordList list = MakeList("x|y,hus|house|djur|12,hem|||1,hus * bostad|home|djur; tamt|12,z|z|jur|12");
        QCOMPARE(list.MergeEntries(std::vector<int>{1, 2, 3, 4, 77}), 3);
        QCOMPARE(Joined(list), u"x|y,hus * hem * bostad * z|house * home * z|djur; tamt; jur|1"_s);
        QVERIFY(!list.IsSaved());
        list.SetSaved(true);
        QCOMPARE(list.MergeAll() + list.MergeEntries(std::vector<int>{1}) + list.MergeEntries({}), 0);
        QVERIFY(list.IsSaved());
        list = MakeList("a * b|c|n|1");
        list.InsertAll(CWordList(list), InsertOptions::AtEnd); // Both places share one entry.
        QCOMPARE(list.MergeEntries(std::vector<int>{0, 1}), 1);
        QCOMPARE(Joined(list), u"a * b|c|n|1"_s);
    }

    void mergingAgreesWithAllPairs()
    {
        CRandom random(4);
        for (int round = 0; round < 500; ++round) {
            const CWordList before = MakeList(RandomEntries(random));
            // Groups by spreading the lowest number along all pairs until nothing changes.
            std::vector<int> group(size_t(before.Count()));
            std::iota(group.begin(), group.end(), 0);
            const std::vector<DuplicatePair> pairs = AllPairs(before);
            for (bool changed = true; changed;) {
                changed = false;
                for (const DuplicatePair &pair : pairs) {
                    int &a = group[size_t(pair.entry)];
                    int &b = group[size_t(pair.other)];
                    changed = changed || a != b;
                    a = b = std::min(a, b);
                }
            }
            CWordList expected;
            for (int root = 0; root < before.Count(); ++root) {
                CWordList members;
                for (int index = 0; index < before.Count(); ++index) {
                    if (group[size_t(index)] == root) {
                        members.Insert(before.Entry(index));
                    }
                }
                if (members.Count() > 0) {
                    std::vector<int> all(size_t(members.Count()));
                    std::iota(all.begin(), all.end(), 0);
                    members.MergeEntries(all);
                    expected.Insert(members.Entry(0));
                }
            }
            CWordList merged = before;
            QCOMPARE(merged.MergeAll(), before.Count() - expected.Count());
            QCOMPARE(Joined(merged), Joined(expected));
            QCOMPARE(merged.IsSaved(), merged.Count() == before.Count());
            // What is left shares nothing.
            QVERIFY(AllPairs(merged).empty());
        }
    }

    void longTermsTakeNoQuadraticTime()
    {
        constexpr int Count = 100000;
        const auto term = [](int first) {
            QStringList words;
            for (int number = first; number < first + Count; ++number) {
                words.append(QString::number(number));
            }
            return words.join(u'*');
        };
        const CWordEntry entry(term(0));
        QVERIFY(!entry.SharesAlternative(CWordEntry(term(Count)), 0, false));
        QVERIFY(entry.SharesAlternative(CWordEntry(term(Count - 1)), 0, false));
        CWordList list;
        for (int number = 0; number < Count; ++number) {
            list.Insert(CWordEntry(QString::number(-number - 1)));
        }
        int similar = NoEntry;
        QVERIFY(!list.FindSimilar(entry, similar, NoEntry, 0));
        list.Insert(CWordEntry(u"x * 77"_s));
        QVERIFY(list.FindSimilar(entry, similar, NoEntry, 0) && similar == Count);
    }
};

QTEST_APPLESS_MAIN(DuplicatesTest)
#include "duplicates_test.moc"
