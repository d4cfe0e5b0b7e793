// SPDX-License-Identifier: MIT
#include "model/word_list.h"
#include "platform/collation.h"
#include "support/lists.h"

class WordListSortTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void orders()
    {
        const struct
        {
            const char *entries;
            int key;
            QString options; // a ascending, g group flagged, l by length
            const char *sorted;
        } rows[] = {
            {"ö,ä,å,z,Z1,a", 0, u"a"_s, "a,z,Z1,å,ä,ö"},
            {"Hus|b,hus|a", 0, u"a"_s, "hus|a,Hus|b"}, // equal but for case: by term 2
            {"b|x,a|x|m,a|x|l", 1, u"a"_s, "a|x|l,a|x|m,b|x"}, // by term 1, then by the note
            {"b|x|n,a|y|n,c|z", 2, u"ag"_s, "c|z,a|y|n,b|x|n"}, {"a,c,b", 0, {}, "c,b,a"},
            {"a,b|||1,c|||2,d|||1", 0, u"ag"_s, "b|||1,d|||1,a,c|||2"}, // flagged first
            {"a,b|||1,c|||2,d|||1", 0, u"g"_s, "c|||2,a,d|||1,b|||1"},
            {"x|a,x|b||1,x|c||2", 1, u"ag"_s, "x|c||2,x|a,x|b||1"},
            {"b|||1,a", 2, u"ag"_s, "a,b|||1"}, // no groups by note
            {"ccc,b,aa,a", 0, u"al"_s, "a,b,aa,ccc"}, {"ccc,b,aa,a", 0, u"l"_s, "ccc,aa,b,a"},
            {"a,bbb|||1", 0, u"agl"_s, "bbb|||1,a"}, // groups before length
        };
        for (const auto &[entries, key, options, sorted] : rows) {
            CWordList list = MakeList(entries);
            CRandom random(1);
            list.Sort(key, {options.contains(u'a'), options.contains(u'g'), options.contains(u'l')}, random);
            QCOMPARE(Joined(list), QString::fromUtf8(sorted));
            QVERIFY(!list.IsSaved());
        }
    }

    void agreesWithTheRuleForPairs()
    {
        const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
        CRandom random(5);
        for (int round = 0; round < 96; ++round) {
            const int key = round % 3;
            const SortOptions options = {round % 2 == 0, round % 4 < 2, round % 8 < 4};
            CWordList list;
            for (int i = 0; i < 60; ++i) {
                // Where it differs, from the first letter on or behind a long beginning, and what script it is.
                const QString start = round % 16 < 8 ? u"som alla"_s : QString();
                list.Insert(
                    CWordEntry(start + RandomText(random, u"aAåbzωж語", 3), RandomText(random, u"aAb", 2),
                        RandomText(random, u"aé", 1), random.Next() % 2 == 0, random.Next() % 2 == 0));
            }
            list.Sort(key, options, random);
            const auto compare = [&](const CWordEntry &a, const CWordEntry &b) {
                if (options.groupFlagged && key < 2 && a.GetFlag(key) != b.GetFlag(key)) {
                    return a.GetFlag(key) ? -1 : 1;
                }
                int order = options.byLength ? int(a.GetField(key).size() - b.GetField(key).size()) : 0;
                for (const int field : {key, key == 0 ? 1 : 0, key == 2 ? 1 : 2}) {
                    order = order != 0 ? order : collator.Compare(a.GetField(field), b.GetField(field));
                }
                return order;
            };
            for (int i = 0; i + 1 < list.Count(); ++i) {
                const int order = compare(list.Entry(i), list.Entry(i + 1));
                QVERIFY(options.ascending ? order <= 0 : order >= 0);
            }
        }
    }

    void shuffling()
    {
        CWordList list = MakeList("a,b,c,d,e,f,g,h");
        CRandom random(9);
        list.Sort(ShuffleKey, {}, random);
        QVERIFY(Joined(list) != u"a,b,c,d,e,f,g,h"_s && !list.IsSaved());
        list.Sort(0, {}, random);
        QCOMPARE(Joined(list), u"a,b,c,d,e,f,g,h"_s);
        CWordList one = MakeList("a");
        one.Sort(0, {}, random);
        one.Sort(ShuffleKey, {}, random);
        QVERIFY(one.IsSaved());
    }
};

QTEST_APPLESS_MAIN(WordListSortTest)
#include "word_list_sort_test.moc"
