// SPDX-License-Identifier: MIT
#include "model/word_list.h"
#include "support/lists.h"

#include <QTest>

#include <limits>

class WordListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertiesClearTheSavedMark();
    void templatesAndAdaptMarks();
    void resetKeepsNames();
    void inserting();
    void similarEntries();
    void insertedAmongSorted();
    void replacing();
    void settingOneField();
    void deleting();
    void moving();
    void swappingColumns();
    void flags();
    void whatChangesNothingLeavesTheSavedMark();
    void indicesOutOfRange();
    void copiesAreIndependent();
};

void WordListTest::propertiesClearTheSavedMark()
{
    CWordList list;
    list.SetAuthor(QString());
    list.SetLanguage(0, QString());
    list.DeleteAll();
    QVERIFY(list.IsSaved());
    list.SetComments(QStringLiteral("x"));
    QVERIFY(!list.IsSaved());
    list.SetSaved(true);
    list.SetComments(QStringLiteral("x"));
    QVERIFY(list.IsSaved());
}

void WordListTest::templatesAndAdaptMarks()
{
    CWordList list;
    list.SetProperties({.language1 = QStringLiteral("Svenska"),
        .adaptQuestion1 = true,
        .adaptQuestion2 = true,
        .questionTemplate1 = QStringLiteral("%word?"),
        .questionTemplate2 = QString()});
    QVERIFY(list.GetAdaptQuestion(0));
    QVERIFY(!list.GetAdaptQuestion(1)); // An empty template wins over its mark, even where it was empty before.
    list.SetProperties({.adaptQuestion1 = true});
    QCOMPARE(list.GetLanguage(0), QStringLiteral("Svenska"));
    QCOMPARE(list.GetQuestionTemplate(0), QStringLiteral("%word?"));
    list.SetQuestionTemplate(0, {});
    QVERIFY(!list.GetAdaptQuestion(0));
}

void WordListTest::resetKeepsNames()
{
    CWordList list = MakeList({QStringLiteral("a|b")});
    list.SetProperties({.language1 = QStringLiteral("L1"),
        .author = QStringLiteral("A"),
        .comments = QStringLiteral("C"),
        .adaptQuestion1 = true,
        .questionTemplate1 = QStringLiteral("T")});
    list.Reset();
    QCOMPARE(list.Count(), 0);
    QCOMPARE(list.GetLanguage(0) + list.GetAuthor() + list.GetComments() + list.GetQuestionTemplate(0),
        QStringLiteral("L1A"));
    QVERIFY(!list.GetAdaptQuestion(0));
    QVERIFY(list.IsSaved());
}

void WordListTest::inserting()
{
    CWordList list = MakeList({QStringLiteral("a|1"), QStringLiteral("b|2")});
    int index = -1;
    list.Insert(MakeEntry(QStringLiteral("c|3")), {.position = 1}, &index);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("a|1,c|3,b|2"));
    QCOMPARE(index, 2); // The last entry, wherever the new one went.
    QVERIFY(!list.IsSaved());
    list.Insert(MakeEntry(QStringLiteral("d|4")), {.position = 99});
    QCOMPARE(list.Entry(3).GetText(0), QStringLiteral("d"));
    QCOMPARE(list.Entry(-1).GetText(0) + list.Entry(4).GetText(0), QString());
}

void WordListTest::similarEntries()
{
    const QStringList start = {QStringLiteral("x|y"), QStringLiteral("hund * vovve|dog")};
    CWordList list = MakeList(start);
    const auto insert = [&](const char *entry, int position) {
        CWordList copy = list;
        return copy.Insert(MakeEntry(QString::fromUtf8(entry)), {.checkSimilar = true, .position = position});
    };
    QCOMPARE(insert("vovve|puppy", InsertOptions::AtEnd), 1);
    QCOMPARE(insert("vovve|puppy", 1), 2); // The similar entry moved down.
    QCOMPARE(insert("vovve|puppy|a note", InsertOptions::AtEnd), -1);
    QCOMPARE(insert("Vovve|puppy", InsertOptions::AtEnd), -1);
    QCOMPARE(insert("katt|dog", InsertOptions::AtEnd), 1);
    int similar = -1;
    QVERIFY(!list.FindSimilar(MakeEntry(QStringLiteral("katt|dog")), similar, -1, 0));
    QVERIFY(list.FindSimilar(MakeEntry(QStringLiteral("katt|dog")), similar, -1, 1));
    QVERIFY(!list.FindSimilar(MakeEntry(QStringLiteral("katt|dog")), similar, 1, 1));
}

void WordListTest::insertedAmongSorted()
{
    CWordList list = MakeList({QStringLiteral("b|1"), QStringLiteral("d|2||1")});
    int index = -1;
    const InsertOptions sorted = {.checkSimilar = true, .sortAfter = true, .sort = {.groupFlagged = false}};
    QCOMPARE(list.Insert(MakeEntry(QStringLiteral("c|3")), sorted, &index), -1);
    QCOMPARE(index, 1);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("b|1,c|3,d|2||1"));
    // A similar entry stops the sorting.
    QCOMPARE(list.Insert(MakeEntry(QStringLiteral("a|3")), sorted, &index), 1);
    QCOMPARE(index, 3);
    QCOMPARE(list.Entry(3).GetText(0), QStringLiteral("a"));
}

void WordListTest::replacing()
{
    CWordList list = MakeList({QStringLiteral("a|b|n"), QStringLiteral("c|d")});
    const auto replace = [&](int index, const char *entry, bool check) {
        const QStringList parts = QString::fromUtf8(entry).split(u'|');
        return list.ReplaceEntry(index, parts.value(0), parts.value(1), parts.value(2), check);
    };
    QCOMPARE(replace(0, "a|b|n", true), -1);
    QVERIFY(list.IsSaved());
    QCOMPARE(replace(0, "a|d|", true), 1);
    QVERIFY(!list.IsSaved());
    list.SetSaved(true);
    QCOMPARE(replace(0, "a|d|", true), 1); // Reported also when nothing changes.
    QVERIFY(list.IsSaved());
    list.ReplaceEntry(0, list.Entry(0).GetText(1), list.Entry(0).GetText(0), QString(), false);
    QCOMPARE(Describe(list.Entry(0)), QStringLiteral("d|a"));
    list.ReplaceEntry(0, list.Entry(0).GetText(1), list.Entry(0).GetText(0), QString(), false);
    QCOMPARE(replace(7, "a|d|", true), -1);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("a|d,c|d"));
}

void WordListTest::settingOneField()
{
    CWordList list = MakeList({QStringLiteral("a|b|n|1"), QStringLiteral("c|d"), QStringLiteral("e|f|n")});
    QCOMPARE(list.SetEntryField(QStringLiteral("c"), 0, 0, true), 1);
    // Only entries without a note can be reported, and only for the language of the field.
    QCOMPARE(list.SetEntryField(QStringLiteral("e"), 0, 0, true), -1);
    QCOMPARE(list.SetEntryField(QStringLiteral("c"), 1, 0, true), -1);
    list.SetEntryField(QStringLiteral(" new  note "), 7, 0, true);
    QCOMPARE(Describe(list.Entry(0)), QStringLiteral("e|c|new note|1"));
    list.SetSaved(true);
    list.SetEntryField(QStringLiteral("e"), 0, 0, false);
    QVERIFY(list.IsSaved());
}

void WordListTest::deleting()
{
    CWordList list = MakeList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
        QStringLiteral("d"), QStringLiteral("e")});
    list.DeleteEntries(std::vector<int>{-1, 1, 3, 9});
    QCOMPARE(Describe(list).join(u','), QStringLiteral("a,c,e"));
    QVERIFY(!list.IsSaved());
}

void WordListTest::moving()
{
    const QStringList start = {
        QStringLiteral("a|1||1"), QStringLiteral("b|2"), QStringLiteral("c|3"), QStringLiteral("d|4")};
    CWordList list = MakeList(start);
    list.MoveEntries(std::vector<int>{2, 3}, true);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("a|1||1,c|3,d|4,b|2"));
    list.MoveEntries(std::vector<int>{1, 2}, false);
    QCOMPARE(Describe(list), start);
    list.MoveEntries(std::vector<int>{0}, false, 0);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("b|1,a|2||1,c|3,d|4"));
    list.MoveEntries(std::vector<int>{0, 3}, true);
    list.MoveEntries(std::vector<int>{3}, false);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("b|1,a|2||1,d|4,c|3"));
}

void WordListTest::swappingColumns()
{
    CWordList list = MakeList({QStringLiteral("a * x|b|n|1"), QStringLiteral("c|d")});
    list.SwapInEntries(std::vector<int>{0, 5}, true, true, 0, 1);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("b|a * x|n|2,c|d"));
    QVERIFY(!list.IsSaved());
}

void WordListTest::flags()
{
    CWordList list = MakeList({QStringLiteral("a|||1"), QStringLiteral("b|||12"), QStringLiteral("c")});
    QCOMPARE(list.CountFlagged(0), 2);
    QCOMPARE(list.CountFlagged(1), 1);
    QCOMPARE(list.CountFlagged(2), 3);
    list.SetFlags(0, std::vector<int>{0, 1, 9}, FlagMode::Set);
    list.SetFlags(1, std::vector<int>{0, 2}, FlagMode::Clear);
    QVERIFY(list.IsSaved());
    list.SetFlags(0, std::vector<int>{0, 2}, FlagMode::Toggle);
    QVERIFY(!list.IsSaved());
    list.SetFlags(0, std::vector<int>{1}, FlagMode::Cycle);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("a,b,c|||1"));
}

void WordListTest::whatChangesNothingLeavesTheSavedMark()
{
    CWordList list = MakeList({QStringLiteral("a * b|c|a note|1"), QStringLiteral("d|d")});
    list.SetEntryField(QStringLiteral("  a   note "), 2, 0, false);
    list.SetEntryField(QStringLiteral("a*b"), 0, 0, false);
    list.ReplaceEntry(0, QStringLiteral("a* b"), QStringLiteral("c*"), QStringLiteral("a\nnote"), false);
    list.SwapInEntries(std::vector<int>{1}, true, true, 0, 1);
    list.SwapInEntries(std::vector<int>{0}, true, true, 1, 3);
    list.SetAdaptQuestion(0, true);
    list.SetProperties({.adaptQuestion1 = true, .questionTemplate1 = QString()});
    QVERIFY(list.IsSaved());
    QVERIFY(!list.GetAdaptQuestion(0));
    list.SetProperties({.adaptQuestion1 = true, .questionTemplate1 = QStringLiteral("t")});
    list.SetSaved(true);
    list.SetProperties({.language1 = QString()});
    QVERIFY(list.IsSaved() && list.GetAdaptQuestion(0)); // Saying nothing of a mark leaves it.
}

void WordListTest::indicesOutOfRange()
{
    constexpr int Low = std::numeric_limits<int>::min();
    constexpr int High = std::numeric_limits<int>::max();
    const QStringList start = {QStringLiteral("a|1"), QStringLiteral("b|2||2"), QStringLiteral("c|3")};
    CWordList list = MakeList(start);
    const std::vector<int> none = {High, Low, -1, 3};
    for (const int number : {Low, -1, 2, 3, High}) {
        list.SetLanguage(number, QStringLiteral("x"));
        list.SetQuestionTemplate(number, QStringLiteral("x"));
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
    QVERIFY(!list.FindNext({.text = QStringLiteral("a"), .column = High}, High, true).IsFound());
    QCOMPARE(list.SetEntryField(QStringLiteral("x"), Low, 0, true), -1);
    QCOMPARE(list.ReplaceEntry(High, {}, {}, {}, true), -1);

    // The order of a selection and what it repeats don't matter; over several blocks of entries, too.
    CWordList longList;
    for (int i = 0; i < 2000; ++i) {
        longList.Insert(CWordEntry(QString::number(i)));
    }
    longList.DeleteEntries(std::vector<int>{1500, 3, 700, 3, -1, 1500, 2000, 0});
    QCOMPARE(longList.Count(), 1996);
    QCOMPARE(longList.Entry(0).GetText(0) + longList.Entry(1995).GetText(0), QStringLiteral("11999"));
    list.MoveEntries(std::vector<int>{2, 1, 2}, true);
    list.SetFlags(0, std::vector<int>{1, 0, 1}, FlagMode::Toggle);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("b|2||12,c|3||1,a|1"));
    QCOMPARE(list.MergeEntries(std::vector<int>{2, 0, 2, 0}), 1);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("c|3||1,a * b|1 * 2"));
}

void WordListTest::copiesAreIndependent()
{
    CWordList list = MakeList({QStringLiteral("a|b"), QStringLiteral("c|d")});
    CWordList copy = list;
    QVERIFY(copy.IsSaved());
    QCOMPARE(&copy.Entry(0), &list.Entry(0)); // Shared until one of them changes it.
    copy.SetEntryField(QStringLiteral("x"), 0, 0, false);
    copy.MoveEntries(std::vector<int>{1}, true, 1);
    list.SetFlags(0, std::vector<int>{1}, FlagMode::Set);
    QCOMPARE(Describe(list).join(u','), QStringLiteral("a|b,c|d||1"));
    QCOMPARE(Describe(copy).join(u','), QStringLiteral("x|d,c|b"));
    list = copy;
    list.DeleteAll();
    QCOMPARE(copy.Count(), 2);
}

QTEST_APPLESS_MAIN(WordListTest)
#include "word_list_test.moc"
