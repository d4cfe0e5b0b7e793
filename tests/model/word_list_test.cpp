// SPDX-License-Identifier: MIT
#include "model/word_list.h"
#include "support/lists.h"

#include <limits>

class WordListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties()
    {
        CWordList list = MakeList("a|b");
        list.SetProperties({.language1 = u"L1"_s,
            .author = u"A"_s,
            .comments = u"C"_s,
            .adaptQuestion1 = true,
            .adaptQuestion2 = true,
            .questionTemplate1 = u"%word?"_s,
            .questionTemplate2 = QString()});
        QVERIFY(!list.IsSaved() && list.GetAdaptQuestion(0));
        // An empty template wins over its mark, even where it was empty before.
        QVERIFY(!list.GetAdaptQuestion(1));
        list.SetProperties({.adaptQuestion1 = true});
        QCOMPARE(list.GetLanguage(0) + list.GetQuestionTemplate(0), u"L1%word?"_s);
        list.Reset();
        QCOMPARE(list.Count(), 0);
        QCOMPARE(list.GetLanguage(0) + list.GetAuthor() + list.GetComments() + list.GetQuestionTemplate(0),
            u"L1A"_s);
        QVERIFY(list.IsSaved() && !list.GetAdaptQuestion(0));
        list.SetProperties({.adaptQuestion1 = true, .questionTemplate1 = u"t"_s});
        list.SetQuestionTemplate(0, {});
        QVERIFY(!list.GetAdaptQuestion(0));
    }

    void inserting()
    {
        CWordList list = MakeList("a|1,b|2");
        int index = -1;
        list.Insert(MakeEntry(u"c|3"_s), {.position = 1}, &index);
        QCOMPARE(index, 2); // The last entry, wherever the new one went.
        QVERIFY(!list.IsSaved());
        list.Insert(MakeEntry(u"d|4"_s), {.position = 99});
        QCOMPARE(Joined(list), u"a|1,c|3,b|2,d|4"_s);

        list = MakeList("b|1,d|2||1");
        const InsertOptions sorted = {.checkSimilar = true, .sortAfter = true, .sort = {.groupFlagged = false}};
        QCOMPARE(list.Insert(MakeEntry(u"c|3"_s), sorted, &index), NoEntry);
        QCOMPARE(index, 1);
        QCOMPARE(list.Insert(MakeEntry(u"a|3"_s), sorted, &index), 1); // A similar entry stops the sorting.
        QCOMPARE(index, 3);
        QCOMPARE(Joined(list), u"b|1,c|3,d|2||1,a|3"_s);
    }

    void similarEntries()
    {
        const CWordList list = MakeList("x|y,hund * vovve|dog");
        const auto insert = [&](const char *entry, int position) {
            CWordList copy = list;
            return copy.Insert(
                MakeEntry(QString::fromUtf8(entry)), {.checkSimilar = true, .position = position});
        };
        QCOMPARE(insert("vovve|puppy", InsertOptions::AtEnd), 1);
        QCOMPARE(insert("vovve|puppy", 1), 2); // The similar entry moved down.
        QCOMPARE(insert("vovve|puppy|a note", InsertOptions::AtEnd), NoEntry);
        QCOMPARE(insert("Vovve|puppy", InsertOptions::AtEnd), NoEntry);
        QCOMPARE(insert("katt|dog", InsertOptions::AtEnd), 1);
        int similar = NoEntry;
        const CWordEntry entry = MakeEntry(u"katt|dog"_s);
        QVERIFY(!list.FindSimilar(entry, similar, NoEntry, 0));
        QVERIFY(list.FindSimilar(entry, similar, NoEntry, 1) && !list.FindSimilar(entry, similar, 1, 1));
    }

    void replacing()
    {
        CWordList list = MakeList("a|b|n,c|d");
        const auto replace = [&](int index, const char *entry) {
            const QStringList parts = QString::fromUtf8(entry).split(u'|');
            return list.ReplaceEntry(index, parts.value(0), parts.value(1), parts.value(2), true);
        };
        QCOMPARE(replace(0, "a|b|n"), NoEntry);
        QVERIFY(list.IsSaved());
        QCOMPARE(replace(0, "a|d|"), 1);
        QVERIFY(!list.IsSaved());
        list.SetSaved(true);
        QCOMPARE(replace(0, "a|d|"), 1); // Reported also when nothing changes.
        QVERIFY(list.IsSaved());
        list.ReplaceEntry(0, list.Entry(0).GetText(1), list.Entry(0).GetText(0), QString(), false);
        QCOMPARE(replace(7, "a|d|"), NoEntry);
        QCOMPARE(Joined(list), u"d|a,c|d"_s);
    }

    void settingOneField()
    {
        CWordList list = MakeList("a|b|n|1,c|d,e|f|n");
        QCOMPARE(list.SetEntryField(u"c"_s, 0, 0, true), 1);
        // Only entries without a note can be reported, and only for the language of the field.
        QCOMPARE(list.SetEntryField(u"e"_s, 0, 0, true), NoEntry);
        QCOMPARE(list.SetEntryField(u"c"_s, 1, 0, true), NoEntry);
        list.SetEntryField(u" new  note "_s, 7, 0, true);
        QCOMPARE(Describe(list.Entry(0)), u"e|c|new note|1"_s);
    }

    void deletingMovingAndSwapping()
    {
        using Entries = std::vector<int>;
        CWordList list = MakeList("a,b,c,d,e");
        list.DeleteEntries(Entries{-1, 1, 3, 9});
        QCOMPARE(Joined(list), u"a,c,e"_s);
        QVERIFY(!list.IsSaved());

        list = MakeList("a|1||1,b|2,c|3,d|4");
        list.MoveEntries(Entries{2, 3}, true);
        QCOMPARE(Joined(list), u"a|1||1,c|3,d|4,b|2"_s);
        list.MoveEntries(Entries{1, 2}, false);
        QCOMPARE(Joined(list), u"a|1||1,b|2,c|3,d|4"_s);
        list.MoveEntries(Entries{0}, false, 0);
        QCOMPARE(Joined(list), u"b|1,a|2||1,c|3,d|4"_s);
        list.MoveEntries(Entries{0, 3}, true);
        list.MoveEntries(Entries{3}, false);
        QCOMPARE(Joined(list), u"b|1,a|2||1,d|4,c|3"_s);

        list = MakeList("a * x|b|n|1,c|d");
        list.SwapInEntries(Entries{0, 5}, true, true, 0, 1);
        QCOMPARE(Joined(list), u"b|a * x|n|2,c|d"_s);
        QVERIFY(!list.IsSaved());
    }

    void flags()
    {
        CWordList list = MakeList("a|||1,b|||12,c");
        QCOMPARE(list.CountFlagged(0), 2);
        QCOMPARE(list.CountFlagged(1), 1);
        QCOMPARE(list.CountFlagged(2), 3);
        list.SetFlags(0, std::vector<int>{0, 1, 9}, FlagMode::Set);
        list.SetFlags(1, std::vector<int>{0, 2}, FlagMode::Clear);
        QVERIFY(list.IsSaved());
        list.SetFlags(0, std::vector<int>{0, 2}, FlagMode::Toggle);
        QVERIFY(!list.IsSaved());
        QCOMPARE(Joined(list), u"a,b|||12,c|||1"_s);
        QStringList cycled;
        for (int i = 0; i < 4; ++i) {
            list.SetFlags(0, std::vector<int>{1}, FlagMode::Cycle);
            cycled.append(Describe(list.Entry(1)));
        }
        QCOMPARE(cycled.join(u' '), u"b b|||1 b|||2 b|||12"_s);
    }

    void whatChangesNothingLeavesTheSavedMark()
    {
        CWordList list = MakeList("a * b|c|a note|1,d|d");
        list.SetEntryField(u"  a   note "_s, 2, 0, false);
        list.SetEntryField(u"a*b"_s, 0, 0, false);
        list.ReplaceEntry(0, u"a* b"_s, u"c*"_s, u"a\nnote"_s, false);
        list.SwapInEntries(std::vector<int>{1}, true, true, 0, 1);
        list.SwapInEntries(std::vector<int>{0}, true, true, 1, 3);
        list.SetAdaptQuestion(0, true);
        list.SetProperties({.adaptQuestion1 = true, .questionTemplate1 = QString()});
        list.SetAuthor({});
        list.SetEntryField(u"d"_s, 0, 1, false);
        QVERIFY(list.IsSaved() && !list.GetAdaptQuestion(0));
        list.SetProperties({.adaptQuestion1 = true, .questionTemplate1 = u"t"_s});
        list.SetSaved(true);
        list.SetProperties({.language1 = QString()});
        QVERIFY(list.IsSaved() && list.GetAdaptQuestion(0)); // Saying nothing of a mark leaves it.
    }

    void indicesOutOfRange()
    {
        constexpr int Low = std::numeric_limits<int>::min();
        constexpr int High = std::numeric_limits<int>::max();
        const QStringList start = {u"a|1"_s, u"b|2||2"_s, u"c|3"_s};
        CWordList list = MakeList(start);
        const std::vector<int> none = {High, Low, -1, 3};
        for (const int number : {Low, -1, 2, 3, High}) {
            list.SetLanguage(number, u"x"_s);
            list.SetQuestionTemplate(number, u"x"_s);
            list.SetAdaptQuestion(number, true);
            list.SetFlags(number, std::vector<int>{0}, FlagMode::Set);
            list.SetFlags(number, std::vector<int>{1}, FlagMode::Toggle);
            list.SwapInEntries(std::vector<int>{0}, true, true, 0, number == 2 ? 3 : number);
            QCOMPARE(list.GetLanguage(number) + list.GetQuestionTemplate(number) + list.GetAuthor(), QString());
            QVERIFY(!list.GetAdaptQuestion(number));
        }
        list.MoveEntries(none, true);
        list.MoveEntries(none, false);
        list.MoveEntries(std::vector<int>{0}, false, High);
        list.DeleteEntries(none);
        list.SwapInEntries(none, true, true, 0, 1);
        list.SetFlags(0, none, FlagMode::Toggle);
        QCOMPARE(list.MergeEntries(none), 0);
        QVERIFY(list.IsSaved());
        QCOMPARE(Describe(list), start);
        QVERIFY(!list.FindNext({.text = u"a"_s, .column = High}, High, true).IsFound());
        QCOMPARE(list.SetEntryField(u"x"_s, Low, 0, true), NoEntry);
        QCOMPARE(list.ReplaceEntry(High, {}, {}, {}, true), NoEntry);

        // The order of a selection and what it repeats don't matter; over several blocks of entries, too.
        CWordList longList;
        for (int i = 0; i < 2000; ++i) {
            longList.Insert(CWordEntry(QString::number(i)));
        }
        longList.DeleteEntries(std::vector<int>{1500, 3, 700, 3, -1, 1500, 2000, 0});
        QCOMPARE(longList.Count(), 1996);
        QCOMPARE(longList.Entry(0).GetText(0) + longList.Entry(1995).GetText(0), u"11999"_s);
        list.MoveEntries(std::vector<int>{2, 1, 2}, true);
        list.SetFlags(0, std::vector<int>{1, 0, 1}, FlagMode::Toggle);
        QCOMPARE(Joined(list), u"b|2||12,c|3||1,a|1"_s);
        QCOMPARE(list.MergeEntries(std::vector<int>{2, 0, 2, 0}), 1);
        QCOMPARE(Joined(list), u"c|3||1,a * b|1 * 2"_s);
    }

    void alternativesOfEntries()
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

    void swappingFields()
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

    void indicesOfFields()
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

QTEST_APPLESS_MAIN(WordListTest)
#include "word_list_test.moc"
