// SPDX-License-Identifier: MIT
#include "editor/dictionary_search.h"
#include "editor/finding.h"
#include "editor/mark_in_sight.h"
#include "support/test_editor_view.h"

using namespace std::chrono_literals;

namespace {

struct Editor : TestEditor
{
    using TestEditor::TestEditor;

    /// Where it goes on from an entry: "entry column start end", or nothing.
    QString Next(int from)
    {
        view.match = {};
        view.selected = from < 0 ? std::vector<int>() : std::vector<int>{from};
        finding.FindNext(false);
        const TextMatch &match = view.match;
        return match.IsFound()
            ? u"%1 %2 %3 %4"_s.arg(match.entry).arg(match.column).arg(match.start).arg(match.end)
            : QString();
    }

    FindSettings &settings = test.allSettings.find;
    CFinding finding{view, test.document, settings, test.texts, test.prompt};
    std::chrono::milliseconds now{0};
    CDictionarySearch dictionary{test.document, finding, test.texts, [this] { return now; }};
};

}

class FindingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextOne()
    {
        Editor run(u"Hund|dog||1,katt|cat|hund,hus|house,hund|hound||2"_s);
        run.finding.SetText(u"hund"_s);
        run.settings.searchDown = false; // Counts in an advanced search alone.
        run.settings.language = 0;
        run.settings.flag1 = 1;
        QCOMPARE(run.Next(-1), u"0 0 0 3"_s);
        QCOMPARE(run.Next(0), u"1 2 0 3"_s);
        QCOMPARE(run.Next(3), u"0 0 0 3"_s);
        run.settings.matchCase = true;
        QCOMPARE(run.Next(3), u"1 2 0 3"_s);
        run.settings.advancedSearch = true;
        QCOMPARE(run.Next(3), QString());
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NothingFound});
        run.settings.flag1 = 2;
        QCOMPARE(run.Next(3), u"3 0 0 3"_s); // The only one.
        run.settings.flag1 = 0;
        run.settings.matchCase = false;
        QCOMPARE(run.Next(3), u"0 0 0 3"_s);
        QCOMPARE(run.Next(0), u"3 0 0 3"_s);
        // Flags alone are something to look for too.
        run.finding.SetText({});
        run.settings.flag2 = 1;
        QVERIFY(run.finding.HasAim());
        QCOMPARE(run.Next(-1), u"3 0 0 -1"_s);
        run.settings.advancedSearch = false;
        QVERIFY(!run.finding.HasAim());
    }

    void allOfThem()
    {
        Editor run(u"a b|x,c|ab,b|c"_s);
        run.finding.SetText(u"b"_s);
        run.settings.wholeWord = true;
        run.finding.FindAll();
        QCOMPARE(run.view.selected, (std::vector<int>{0, 2}));
        run.finding.SetText(u"?c"_s);
        run.settings.wildcard = true;
        run.finding.FindAll();
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NothingFound});
        QCOMPARE(run.view.selected, (std::vector<int>{0, 2}));
    }

    void theDictionaryWaitsForAPause()
    {
        Editor run(u"hund|dog,katt|cat|hunden"_s);
        run.settings.dictionary = true;
        for (int key = 0; key < 5; ++key) {
            run.dictionary.Typed();
            run.now += 749ms;
            QVERIFY(!run.dictionary.IsDue());
        }
        QCOMPARE(run.dictionary.Wait(), std::optional(1ms));
        run.now += 1ms;
        QVERIFY(run.dictionary.IsDue());
        run.finding.SetText(u"hund"_s);
        run.dictionary.SearchNow();
        QVERIFY(!run.dictionary.Wait());
        CFindResults &results = run.dictionary.Results();
        QCOMPARE(results.Entries(), (std::vector<int>{0, 1}));
        QCOMPARE(results.index(1, 2).data().toString(), u"hunden"_s);
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

    void theDictionaryFollowsTheList()
    {
        Editor run(NumberedEntries(10000));
        run.settings.dictionary = true;
        run.finding.SetText(u"a"_s);
        // A clock on which each look takes long: a long search gives way now and then.
        CDictionarySearch slow(
            run.test.document, run.finding, run.test.texts, [&run] { return run.now += 6ms; });
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
        QCOMPARE(run.dictionary.Results().headerData(0, Qt::Horizontal).toString(), u"Svenska"_s);
    }

    void marksAreInSight()
    {
        const QString x = u"x"_s;
        const struct
        {
            QString text;
            int start, length;
            QString line, marked;
        } rows[] = {
            // All fits.
            {u"abcdefghijklmnopqrstuvwxyz1234"_s, 28, 2, u"abcdefghijklmnopqrstuvwxyz1234"_s, u"34"_s},
            {u"abcdefghijklmnopqrstuvwxyz123456789"_s, 2, 3, u"abcdefghijklmnopqrstuvwxyz123…"_s, u"cde"_s},
            {u"abcdefghijklmnopqrstuvwxyz123456789"_s, 32, 3, u"…uvwxyz123456789"_s, u"789"_s},
            {x.repeated(50) + u"MARK"_s + x.repeated(50), 50, 4, u"…xxxxxxxxxxxxMARKxxxxxxxxxxxx…"_s,
                u"MARK"_s},
            // No character stands in two, a mark may be longer than the line, and far beyond what is ever
            // shown.
            {x.repeated(37) + u"\U0001F600yyyyyyyyyyyMARK"_s, 50, 4, u"…\U0001F600yyyyyyyyyyyMARK"_s,
                u"MARK"_s},
            {u"yyyyy"_s + x.repeated(60), 5, 60, u"yyyyy"_s + x.repeated(24) + u'…', x.repeated(24) + u'…'},
            {x.repeated(100000) + u"MARK"_s, 100000, 4, u"…xxxxxxxxxxxxMARK"_s, u"MARK"_s},
        };
        for (const auto &[text, start, length, line, marked] : rows) {
            const MarkedText shown =
                WithMarkInSight({text, start, length}, [](const QString &part) { return part.size() <= 30; });
            QCOMPARE(shown.text, line);
            QCOMPARE(shown.text.sliced(shown.start, shown.length), marked);
        }
    }
};

QTEST_GUILESS_MAIN(FindingTest)
#include "finding_test.moc"
