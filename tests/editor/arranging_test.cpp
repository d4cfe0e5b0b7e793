// SPDX-License-Identifier: MIT
#include "editor/arranging.h"
#include "editor/list_steps.h"
#include "support/test_editor_view.h"

namespace {

struct Editor : TestEditor
{
    using TestEditor::TestEditor;

    ArrangeSettings &settings = test.allSettings.arrange;
    CRandom random{1};
    CArranging arranging{view, test.document, settings, random};
};

}

class ArrangingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sorting()
    {
        Editor run(u"b|1,c|3,a|2"_s);
        run.view.SetInsertionPoint(1);
        run.view.selected = {0, 2};
        run.settings.descending = false;
        run.arranging.Sort(0);
        QCOMPARE(run.Entries(), u"a|2,b|1,c|3"_s);
        QCOMPARE(run.view.selectedRow, 1); // The new-entry row, which stays where it was.
        QVERIFY(run.view.selected.empty());
        run.arranging.Sort(0);
        QCOMPARE(run.test.document.UndoCount(), 1); // Sorted already.
        run.settings.descending = true;
        run.arranging.Sort(1);
        QCOMPARE(run.Entries(), u"c|3,a|2,b|1"_s);
    }

    void turningTheOrder()
    {
        Editor run(u"b|1,c|3,a|2"_s);
        const auto order = [&] {
            const auto &current = run.arranging.Order().Current();
            return !current ? 0 : current->options.ascending ? current->field + 1 : -current->field - 1;
        };
        const auto change = [&](const std::function<void(CWordList &)> &made) {
            run.test.document.Change(made);
        };
        QCOMPARE(order(), 0);
        QVERIFY(!run.arranging.SortOrTurn(0)); // By the option as it is.
        QCOMPARE(run.Entries(), u"c|3,b|1,a|2"_s);
        QCOMPARE(order(), -1);
        QVERIFY(run.arranging.SortOrTurn(0));
        QCOMPARE(run.Entries(), u"a|2,b|1,c|3"_s);
        QVERIFY(!run.settings.descending);
        QCOMPARE(order(), 1);
        QVERIFY(!run.arranging.SortOrTurn(1)); // Another field keeps the option.
        QCOMPARE(order(), 2);
        run.settings.descending = true;
        QVERIFY(!run.arranging.SortOrTurn(1)); // The menu says it already.
        QCOMPARE(run.Entries(), u"c|3,a|2,b|1"_s);

        // What leaves each entry in its place keeps the order.
        change([](CWordList &list) { list.SetEntryField(u"x"_s, 0, 0, false); });
        change([](CWordList &list) { list.DeleteEntries(std::array{1}); });
        change([](CWordList &list) { list.SetAuthor(u"x"_s); });
        QCOMPARE(order(), -2);
        change([](CWordList &list) { list.SetFlags(1, std::array{0}, FlagMode::Set); });
        QCOMPARE(order(), 0); // Flagged entries would come last.
        run.test.document.Undo();
        QVERIFY(!run.arranging.SortOrTurn(1));
        change([](CWordList &list) { list.Insert(MakeEntry(u"d|2"_s), {.position = 1}); });
        QCOMPARE(order(), -2);
        change([](CWordList &list) { list.Insert(MakeEntry(u"d|2"_s)); });
        QCOMPARE(order(), 0);
        run.settings.byLength = true;
        QVERIFY(!run.arranging.SortOrTurn(1));
        run.settings.byLength = false;
        QVERIFY(!run.arranging.SortOrTurn(1)); // Other options are another order.
        run.test.document.OnNewDocument();
        QCOMPARE(order(), 0);
    }

    void flags()
    {
        Editor run(u"a|1||1,b|2,c|3"_s);
        run.view.selected = {0, 1};
        run.view.cursorField = 2;
        run.arranging.SetFlags(FlagMode::Set); // Notes have none.
        QCOMPARE(run.test.document.UndoCount(), 0);
        run.view.cursorField = 0;
        run.arranging.SetFlags(FlagMode::Toggle);
        QCOMPARE(run.Entries(), u"a|1,b|2||1,c|3"_s);
        run.view.cursorField = 1;
        run.arranging.SetFlags(FlagMode::Set);
        run.arranging.SetFlags(FlagMode::Set); // Set already.
        QCOMPARE(run.Entries(), u"a|1||2,b|2||12,c|3"_s);
        QCOMPARE(run.test.document.UndoCount(), 2);
        run.arranging.ToggleFlag(2, 1);
        QCOMPARE(run.Entries(), u"a|1||2,b|2||12,c|3||2"_s);
    }

    void movingRows()
    {
        Editor run(u"a|1||1,b|2||2,c|3,d|4"_s);
        const auto move = [&](std::vector<int> selected, bool up, MovedPart part, bool goesOn = false) {
            run.view.selected = std::move(selected);
            run.arranging.MoveRows(up, part, goesOn);
            return run.Entries();
        };
        using enum MovedPart;
        QCOMPARE(move({}, true, Entry), run.Entries());
        // The whole block stays where it is when a part of it can't go on.
        QCOMPARE(move({0, 2}, true, Entry), u"a|1||1,b|2||2,c|3,d|4"_s);
        QCOMPARE(move({1, 3}, false, Entry), u"a|1||1,b|2||2,c|3,d|4"_s);
        QCOMPARE(run.test.document.UndoCount(), 0);
        QCOMPARE(move({1, 2}, false, Entry), u"a|1||1,d|4,b|2||2,c|3"_s);
        QCOMPARE(run.view.selected, (std::vector<int>{2, 3}));
        // One column takes its flag along; the others stay.
        run.view.cursorField = 1;
        QCOMPARE(move({2}, true, Field), u"a|1||1,d|2||2,b|4,c|3"_s);
        QCOMPARE(run.view.selected, std::vector<int>{1});
        QCOMPARE(run.test.document.UndoCount(), 2);
        // A held key makes one step, but none with what another command did.
        QCOMPARE(move({3}, true, Entry, true), u"a|1||1,d|2||2,c|3,b|4"_s);
        QCOMPARE(move({2}, true, Entry, true), u"a|1||1,c|3,d|2||2,b|4"_s);
        QCOMPARE(run.test.document.UndoCount(), 2);
        run.test.document.Change([](CWordList &list) { list.SetAuthor(u"x"_s); });
        QCOMPARE(move({1}, true, Entry, true), u"c|3,a|1||1,d|2||2,b|4"_s);
        QCOMPARE(run.test.document.UndoCount(), 4);
    }

    void movingFields()
    {
        Editor run(u"a|1|n|1,b|2|m|12"_s);
        run.view.selected = {0, 1};
        run.arranging.MoveFields(1);
        QCOMPARE(run.Entries(), u"1|a|n|2,2|b|m|12"_s);
        QCOMPARE(run.view.cursorField, 1);
        run.view.lastField = 1; // Notes are hidden.
        run.arranging.MoveFields(1);
        QCOMPARE(run.test.document.UndoCount(), 1);
        run.view.lastField = 2;
        run.view.selected = {0};
        run.arranging.MoveFields(1);
        QCOMPARE(run.Entries(), u"1|n|a|2,2|b|m|12"_s); // The flag stays with the language.
        QCOMPARE(run.view.cursorField, 2);
        run.arranging.MoveFields(1);
        run.view.cursorField = 0;
        run.arranging.MoveFields(-1);
        QCOMPARE(run.test.document.UndoCount(), 2);
    }

    void draggingRows()
    {
        const struct
        {
            std::vector<int> selected;
            int row; // Of a b [new] c d.
            QString entries;
            int point;
            int first; // Selected afterwards.
        } rows[] = {
            {{0}, 4, u"b,c,a,d"_s, 1, 2}, // down
            {{1, 3}, 0, u"b,d,a,c"_s, 3, 0}, // up to the start
            {{0, 2}, 5, u"b,d,a,c"_s, 1, 2}, // behind the last
            {{3}, 2, u"a,b,d,c"_s, 3, 2}, // above the new row
            {{3}, 3, u"a,b,d,c"_s, 2, 2}, // below the new row
            {{1}, 3, u"a,b,c,d"_s, 1, 1}, // past the new row alone
            {{2, 3}, 4, u"a,b,c,d"_s, 2, 2}, // into itself
            {{0, 3}, 1, u"a,d,b,c"_s, 3, 0}, // together
            {{}, 1, u"a,b,c,d"_s, 2, -1}, // nothing
        };
        for (const auto &[selected, row, entries, point, first] : rows) {
            Editor run(u"a,b,c,d"_s);
            run.view.SetInsertionPoint(2);
            run.view.selected = selected;
            run.arranging.MoveTo(row);
            QCOMPARE(run.Entries(), entries);
            QCOMPARE(run.view.InsertionPoint(), point);
            QCOMPARE(run.view.selected.size(), selected.size());
            QCOMPARE(run.view.FirstSelectedEntry(), first);
            QCOMPARE(run.test.document.UndoCount(), entries == u"a,b,c,d" ? 0 : 1);
        }
    }

    void steps()
    {
        Editor run(u"a|1,b|2"_s);
        for (const auto &[from, step, to] :
            {std::array{-1, 1, 0}, {1, 1, 2}, {2, 1, 0}, {0, -1, 2}, {-1, -1, 2}}) {
            run.view.selectedRow = from;
            StepSelection(run.view, step);
            QCOMPARE(run.view.selectedRow, to);
        }
        PlaceInsertionPoint(run.view); // Without a cursor it stays.
        QCOMPARE(run.view.InsertionPoint(), 0);
        run.view.cursorRow = 2;
        PlaceInsertionPoint(run.view);
        QCOMPARE(run.view.InsertionPoint(), 2);
    }
};

QTEST_GUILESS_MAIN(ArrangingTest)
#include "arranging_test.moc"
