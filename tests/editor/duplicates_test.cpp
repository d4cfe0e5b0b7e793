// SPDX-License-Identifier: MIT
#include "editor/duplicates.h"
#include "support/test_editor_view.h"

#include <QTest>

#include <set>

namespace {

struct Editor
{
    explicit Editor(const QStringList &entries) : test(entries) { }

    /// What the question names next: "language entry other", counted as it shows them.
    void Find(std::initializer_list<PromptAnswer> answers)
    {
        test.prompt.answers = answers;
        test.prompt.numbers.clear();
        test.prompt.texts.clear();
        duplicates.Find();
    }

    TestDocument test;
    CTestEditorView view{test.document};
    CDuplicates duplicates{view, test.document, test.settings, test.texts, test.prompt};
};

QStringList List(const char *entries)
{
    return QString::fromUtf8(entries).split(u',');
}

}

class DuplicatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walkingThroughAllPairs();
    void goingOnWhereItEnded();
    void makingOneEntry();
    void mergingAll();
};

void DuplicatesTest::walkingThroughAllPairs()
{
    using enum PromptAnswer;
    CRandom random(5);
    for (int round = 0; round < 200; ++round) {
        QStringList entries;
        for (int i = random.Next() % 6; i >= 0; --i) {
            entries.append(RandomText(random, u"ab*", 3) + u'|' + RandomText(random, u"ab*", 3));
        }
        Editor run(entries);
        // The slow, obvious way: each entry with each later one, language by language.
        QStringList expected;
        const CWordList &list = run.test.document.List();
        for (const int language : {0, 1}) {
            for (int a = 0; a < list.Count(); ++a) {
                for (int b = a + 1; b < list.Count(); ++b) {
                    if (!list.Entry(b).GetText(language).isEmpty()
                        && list.Entry(a).SharesAlternative(list.Entry(b), language, false)) {
                        expected.append(run.test.texts.Fill(Text::SelectDuplicates,
                            {list.GetLanguage(language), QString::number(a + 1), QString::number(b + 1),
                                list.Entry(a).GetText(language), list.Entry(b).GetText(language)}));
                    }
                }
            }
        }
        run.test.prompt.answers = QList<PromptAnswer>(expected.size(), No);
        run.duplicates.Find();
        QCOMPARE(
            run.test.prompt.numbers.last(), expected.isEmpty() ? Text::NoDuplicates : Text::AllDuplicatesSeen);
        run.test.prompt.texts.removeLast();
        QCOMPARE(run.test.prompt.texts, expected);
        QVERIFY(run.view.selected.empty());
    }
}

void DuplicatesTest::goingOnWhereItEnded()
{
    using enum PromptAnswer;
    Editor run(List("hus*hem|house,hem|home,x|house,y|house"));
    run.Find({Yes});
    QCOMPARE(run.test.prompt.texts.first(),
        QStringLiteral(
            "En kopia hittades på Svenska, glosa nummer 1 och nummer 2 har minst ett ord gemensamt:\r\n\r\n"
            "hus * hem\r\n\r\nhem\r\n\r\nVill du markera dessa glosor?"));
    QCOMPARE(run.view.selected, (std::vector<int>{0, 1}));
    QCOMPARE(run.view.shown, 1);
    // The same pair once more, since it is still there; another stop leaves the search there.
    run.Find({No, No, Cancel});
    QVERIFY(run.test.prompt.texts.at(0).contains(QStringLiteral("nummer 1 och nummer 2")));
    QVERIFY(run.test.prompt.texts.at(1).contains(QStringLiteral("nummer 1 och nummer 3")));
    QVERIFY(run.test.prompt.texts.at(2).contains(QStringLiteral("nummer 1 och nummer 4")));
    // Gone when it is no pair any more; what lies behind the list's end is no place to go on from.
    run.test.document.Change([](CWordList &list) { list.DeleteEntries(std::array{2, 3}); });
    run.Find({Yes});
    QVERIFY(run.test.prompt.texts.first().contains(QStringLiteral("nummer 1 och nummer 2")));
    run.test.document.ReplaceList(MakeList({QStringLiteral("a|b")}));
    run.Find({});
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NoDuplicates});
}

void DuplicatesTest::makingOneEntry()
{
    Editor run(List("a|1,b|2,c|3"));
    run.view.selected = {1};
    run.duplicates.MakeOne();
    run.view.selected = {};
    run.duplicates.MakeOne();
    QCOMPARE(run.test.document.UndoCount(), 0);
    run.view.selected = {0, 2};
    run.duplicates.MakeOne();
    QCOMPARE(Describe(run.test.document.List()), List("a * c|1 * 3,b|2"));
    QCOMPARE(run.view.selected, std::vector<int>{0});
    QCOMPARE(run.test.document.UndoCount(), 1);
}

void DuplicatesTest::mergingAll()
{
    const auto merge = [](int count, int undoSize, QList<PromptAnswer> answers) {
        QStringList entries = {QStringLiteral("same|x")};
        for (int i = 1; i < count; ++i) {
            entries.append(
                QStringLiteral("%1|y%2").arg(i == 1 ? QStringLiteral("same") : QString::number(i)).arg(i));
        }
        Editor run(entries);
        run.test.settings.undoSize = undoSize;
        run.test.prompt.answers = std::move(answers);
        if (run.duplicates.MayMergeAll()) {
            run.duplicates.MergeAll();
        }
        return std::pair(run.test.prompt.numbers, count - run.test.document.List().Count());
    };
    using enum PromptAnswer;
    QCOMPARE(merge(399, 10, {}), std::pair(QList<int>{Text::EntriesMerged}, 1));
    QCOMPARE(merge(400, 10, {No}), std::pair(QList<int>{Text::ReallyMergeAll}, 0));
    QCOMPARE(merge(3, 0, {Yes}), std::pair(QList<int>{Text::ReallyMergeAll, Text::EntriesMerged}, 1));
    QCOMPARE(merge(1, 10, {}), std::pair(QList<int>{Text::NoDuplicates}, 0));
}

QTEST_GUILESS_MAIN(DuplicatesTest)
#include "duplicates_test.moc"
