// SPDX-License-Identifier: MIT
#include "editor/dictionary_search.h"
#include "editor/finding.h"
#include "editor/mark_in_sight.h"
#include "support/test_editor_view.h"

#include <QTest>

using namespace std::chrono_literals;

namespace {

struct Editor
{
    explicit Editor(const QStringList &entries) : test(entries) { }

    /// Where it goes on from an entry: "entry column start end", or nothing.
    QString Next(int from)
    {
        view.match = {};
        view.selected = from < 0 ? std::vector<int>() : std::vector<int>{from};
        finding.FindNext(false);
        const TextMatch &match = view.match;
        return match.IsFound()
            ? QStringLiteral("%1 %2 %3 %4").arg(match.entry).arg(match.column).arg(match.start).arg(match.end)
            : QString();
    }

    TestDocument test;
    CTestEditorView view{test.document};
    FindSettings &settings = test.allSettings.find;
    CFinding finding{view, test.document, settings, test.texts, test.prompt};
    std::chrono::milliseconds now{0};
    CDictionarySearch dictionary{test.document, finding, test.texts, [this] { return now; }};
};

QStringList List(const char *entries)
{
    return QString::fromUtf8(entries).split(u',');
}

}

class FindingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextOne();
    void allOfThem();
    void theDictionaryWaitsForAPause();
    void theDictionaryFollowsTheList();
    void marksAreInSight_data();
    void marksAreInSight();
};

void FindingTest::nextOne()
{
    Editor run(List("Hund|dog||1,katt|cat|hund,hus|house,hund|hound||2"));
    run.finding.SetText(QStringLiteral("hund"));
    run.settings.searchDown = false; // Counts in an advanced search alone.
    run.settings.language = 0;
    run.settings.flag1 = 1;
    QCOMPARE(run.Next(-1), QStringLiteral("0 0 0 3"));
    QCOMPARE(run.Next(0), QStringLiteral("1 2 0 3"));
    QCOMPARE(run.Next(3), QStringLiteral("0 0 0 3"));
    run.settings.matchCase = true;
    QCOMPARE(run.Next(3), QStringLiteral("1 2 0 3"));
    run.settings.advancedSearch = true;
    QCOMPARE(run.Next(3), QString());
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NothingFound});
    run.settings.flag1 = 2;
    QCOMPARE(run.Next(3), QStringLiteral("3 0 0 3")); // The only one.
    run.settings.flag1 = 0;
    run.settings.matchCase = false;
    QCOMPARE(run.Next(3), QStringLiteral("0 0 0 3"));
    QCOMPARE(run.Next(0), QStringLiteral("3 0 0 3"));
    // Flags alone are something to look for too.
    run.finding.SetText({});
    run.settings.flag2 = 1;
    QVERIFY(run.finding.HasAim());
    QCOMPARE(run.Next(-1), QStringLiteral("3 0 0 -1"));
    run.settings.advancedSearch = false;
    QVERIFY(!run.finding.HasAim());
}

void FindingTest::allOfThem()
{
    Editor run(List("a b|x,c|ab,b|c"));
    run.finding.SetText(QStringLiteral("b"));
    run.settings.wholeWord = true;
    run.finding.FindAll();
    QCOMPARE(run.view.selected, (std::vector<int>{0, 2}));
    run.finding.SetText(QStringLiteral("?c"));
    run.settings.wildcard = true;
    run.finding.FindAll();
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NothingFound});
    QCOMPARE(run.view.selected, (std::vector<int>{0, 2}));
}

void FindingTest::theDictionaryWaitsForAPause()
{
    Editor run(List("hund|dog,katt|cat|hunden"));
    run.settings.dictionary = true;
    for (int key = 0; key < 5; ++key) {
        run.dictionary.Typed();
        run.now += 749ms;
        QVERIFY(!run.dictionary.IsDue());
    }
    QCOMPARE(run.dictionary.Wait(), std::optional(1ms));
    run.now += 1ms;
    QVERIFY(run.dictionary.IsDue());
    run.finding.SetText(QStringLiteral("hund"));
    run.dictionary.SearchNow();
    QVERIFY(!run.dictionary.Wait());
    CFindResults &results = run.dictionary.Results();
    QCOMPARE(results.Entries(), (std::vector<int>{0, 1}));
    QCOMPARE(results.index(1, 2).data().toString(), QStringLiteral("hunden"));
    QCOMPARE(results.MatchIn(1, 2), (TextMatch{1, 2, 0, 3}));
    QVERIFY(!results.MatchIn(1, 0).IsFound());
    QCOMPARE(results.FirstMatchIn(1), (TextMatch{1, 2, 0, 3}));
    run.settings.advancedSearch = true;
    run.settings.language = 2;
    run.dictionary.SearchNow();
    QCOMPARE(results.Entries(), std::vector<int>{1});
    run.finding.SetText({});
    run.dictionary.SearchNow();
    QCOMPARE(results.rowCount(), 0);
}

void FindingTest::theDictionaryFollowsTheList()
{
    QStringList entries;
    for (int i = 0; i < 10000; ++i) {
        entries.append(QStringLiteral("a%1|b").arg(i));
    }
    Editor run(entries);
    run.settings.dictionary = true;
    run.finding.SetText(QStringLiteral("a"));
    // A clock on which each look takes long: a long search gives way now and then.
    CDictionarySearch slow(run.test.document, run.finding, run.test.texts, [&run] { return run.now += 6ms; });
    slow.SearchNow();
    QCOMPARE(slow.Wait(), std::optional(0ms));
    int pieces = 1;
    for (; slow.Wait(); ++pieces) {
        slow.Work();
    }
    QCOMPARE(pieces, 3);
    QCOMPARE(slow.Results().rowCount(), 10000);
    QCOMPARE(slow.Results().Entries().back(), 9999);
    // What was typed goes on waiting when the list changes.
    run.dictionary.Typed();
    run.test.document.Change([](CWordList &list) { list.DeleteEntries(std::array{0}); });
    run.dictionary.ListChanged();
    QCOMPARE(run.dictionary.Results().rowCount(), 9999);
    QVERIFY(run.dictionary.Wait());
    run.settings.dictionary = false;
    run.dictionary.SearchNow();
    QCOMPARE(run.dictionary.Results().rowCount(), 0);
    QCOMPARE(run.dictionary.Results().headerData(0, Qt::Horizontal).toString(), QStringLiteral("Svenska"));
}

void FindingTest::marksAreInSight_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("marked");
    QTest::newRow("all fits") << "abcdefghijklmnopqrstuvwxyz1234" << 28 << 2 << "abcdefghijklmnopqrstuvwxyz1234"
                              << "34";
    QTest::newRow("the end is cut") << "abcdefghijklmnopqrstuvwxyz123456789" << 2 << 3
                                    << "abcdefghijklmnopqrstuvwxyz123…"
                                    << "cde";
    QTest::newRow("the start is cut") << "abcdefghijklmnopqrstuvwxyz123456789" << 32 << 3 << "…uvwxyz123456789"
                                      << "789";
    const auto times = [](int count, const char *part) { return QString::fromUtf8(part).repeated(count); };
    QTest::newRow("both are") << QString(times(50, "x") + times(1, "MARK") + times(50, "y")) << 50 << 4
                              << "…xxxxxxxxxxxxMARKyyyyyyyyyyyy…"
                              << "MARK";
    QTest::newRow("no character in two")
        << QString(times(37, "x") + times(1, "\U0001F600") + times(11, "y") + times(1, "MARK")) << 50 << 4
        << "…\U0001F600yyyyyyyyyyyMARK"
        << "MARK";
    QTest::newRow("longer than the line")
        << QString(times(5, "y") + times(60, "m")) << 5 << 60
        << QString(times(5, "y") + times(24, "m") + times(1, "…")) << QString(times(24, "m") + times(1, "…"));
    QTest::newRow("far beyond what is ever shown")
        << QString(times(100000, "x") + times(1, "MARK")) << 100000 << 4 << "…xxxxxxxxxxxxMARK"
        << "MARK";
}

void FindingTest::marksAreInSight()
{
    QFETCH(QString, text);
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(QString, line);
    QFETCH(QString, marked);
    const MarkedText shown =
        WithMarkInSight({text, start, length}, [](const QString &part) { return part.size() <= 30; });
    QCOMPARE(shown.text, line);
    QCOMPARE(shown.text.sliced(shown.start, shown.length), marked);
}

QTEST_GUILESS_MAIN(FindingTest)
#include "finding_test.moc"
