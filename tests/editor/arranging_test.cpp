// SPDX-License-Identifier: MIT
#include "editor/arranging.h"
#include "editor/list_steps.h"
#include "support/test_editor_view.h"

#include <QTest>

namespace {

struct Editor
{
    explicit Editor(const QStringList &entries) : test(entries) { }

    QString Entries() const { return Describe(test.document.List()).join(u' '); }

    TestDocument test;
    CTestEditorView view{test.document};
    ArrangeSettings &settings = test.allSettings.arrange;
    CRandom random{1};
    CArranging arranging{view, test.document, settings, random};
};

QStringList List(const char *entries)
{
    return QString::fromUtf8(entries).split(u' ');
}

}

class ArrangingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sorting();
    void turningTheOrder();
    void flags();
    void movingRows();
    void movingFields();
    void draggingRows_data();
    void draggingRows();
    void steps();
};

void ArrangingTest::sorting()
{
    Editor run(List("b|1 c|3 a|2"));
    run.view.SetInsertionPoint(1);
    run.view.selected = {0, 2};
    run.settings.descending = false;
    run.arranging.Sort(0);
    QCOMPARE(run.Entries(), QStringLiteral("a|2 b|1 c|3"));
    QCOMPARE(run.view.selectedRow, 1); // The new-entry row, which stays where it was.
    QVERIFY(run.view.selected.empty());
    run.arranging.Sort(0);
    QCOMPARE(run.test.document.UndoCount(), 1); // Sorted already.
    run.settings.descending = true;
    run.arranging.Sort(1);
    QCOMPARE(run.Entries(), QStringLiteral("c|3 a|2 b|1"));
}

void ArrangingTest::turningTheOrder()
{
    Editor run(List("b|1 c|3 a|2"));
    const auto order = [&] {
        const auto &current = run.arranging.Order().Current();
        return !current ? 0 : current->options.ascending ? current->field + 1 : -current->field - 1;
    };
    const auto change = [&](const std::function<void(CWordList &)> &made) { run.test.document.Change(made); };
    QCOMPARE(order(), 0);
    QVERIFY(!run.arranging.SortOrTurn(0)); // By the option as it is.
    QCOMPARE(run.Entries(), QStringLiteral("c|3 b|1 a|2"));
    QCOMPARE(order(), -1);
    QVERIFY(run.arranging.SortOrTurn(0));
    QCOMPARE(run.Entries(), QStringLiteral("a|2 b|1 c|3"));
    QVERIFY(!run.settings.descending);
    QCOMPARE(order(), 1);
    QVERIFY(!run.arranging.SortOrTurn(1)); // Another field keeps the option.
    QCOMPARE(order(), 2);
    run.settings.descending = true;
    QVERIFY(!run.arranging.SortOrTurn(1)); // The menu says it already.
    QCOMPARE(run.Entries(), QStringLiteral("c|3 a|2 b|1"));

    // What leaves each entry in its place keeps the order.
    change([](CWordList &list) { list.SetEntryField(QStringLiteral("x"), 0, 0, false); });
    change([](CWordList &list) { list.DeleteEntries(std::array{1}); });
    change([](CWordList &list) { list.SetAuthor(QStringLiteral("x")); });
    QCOMPARE(order(), -2);
    change([](CWordList &list) { list.SetFlags(1, std::array{0}, FlagMode::Set); });
    QCOMPARE(order(), 0); // Flagged entries would come last.
    run.test.document.Undo();
    QVERIFY(!run.arranging.SortOrTurn(1));
    change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("d|2")), {.position = 1}); });
    QCOMPARE(order(), -2);
    change([](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("d|2"))); });
    QCOMPARE(order(), 0);
    run.settings.byLength = true;
    QVERIFY(!run.arranging.SortOrTurn(1));
    run.settings.byLength = false;
    QVERIFY(!run.arranging.SortOrTurn(1)); // Other options are another order.
    run.test.document.OnNewDocument();
    QCOMPARE(order(), 0);
}

void ArrangingTest::flags()
{
    Editor run(List("a|1||1 b|2 c|3"));
    run.view.selected = {0, 1};
    run.view.cursorField = 2;
    run.arranging.SetFlags(FlagMode::Set); // Notes have none.
    QCOMPARE(run.test.document.UndoCount(), 0);
    run.view.cursorField = 0;
    run.arranging.SetFlags(FlagMode::Toggle);
    QCOMPARE(run.Entries(), QStringLiteral("a|1 b|2||1 c|3"));
    run.view.cursorField = 1;
    run.arranging.SetFlags(FlagMode::Set);
    run.arranging.SetFlags(FlagMode::Set); // Set already.
    QCOMPARE(run.Entries(), QStringLiteral("a|1||2 b|2||12 c|3"));
    QCOMPARE(run.test.document.UndoCount(), 2);
    run.arranging.ToggleFlag(2, 1);
    QCOMPARE(run.Entries(), QStringLiteral("a|1||2 b|2||12 c|3||2"));
}

void ArrangingTest::movingRows()
{
    Editor run(List("a|1||1 b|2||2 c|3 d|4"));
    const auto move = [&](std::vector<int> selected, bool up, MovedPart part, bool goesOn = false) {
        run.view.selected = std::move(selected);
        run.arranging.MoveRows(up, part, goesOn);
        return run.Entries();
    };
    using enum MovedPart;
    QCOMPARE(move({}, true, Entry), run.Entries());
    // The whole block stays where it is when a part of it can't go on.
    QCOMPARE(move({0, 2}, true, Entry), QStringLiteral("a|1||1 b|2||2 c|3 d|4"));
    QCOMPARE(move({1, 3}, false, Entry), QStringLiteral("a|1||1 b|2||2 c|3 d|4"));
    QCOMPARE(run.test.document.UndoCount(), 0);
    QCOMPARE(move({1, 2}, false, Entry), QStringLiteral("a|1||1 d|4 b|2||2 c|3"));
    QCOMPARE(run.view.selected, (std::vector<int>{2, 3}));
    // One column takes its flag along; the others stay.
    run.view.cursorField = 1;
    QCOMPARE(move({2}, true, Field), QStringLiteral("a|1||1 d|2||2 b|4 c|3"));
    QCOMPARE(run.view.selected, std::vector<int>{1});
    QCOMPARE(run.test.document.UndoCount(), 2);
    // A held key makes one step, but none with what another command did.
    QCOMPARE(move({3}, true, Entry, true), QStringLiteral("a|1||1 d|2||2 c|3 b|4"));
    QCOMPARE(move({2}, true, Entry, true), QStringLiteral("a|1||1 c|3 d|2||2 b|4"));
    QCOMPARE(run.test.document.UndoCount(), 2);
    run.test.document.Change([](CWordList &list) { list.SetAuthor(QStringLiteral("x")); });
    QCOMPARE(move({1}, true, Entry, true), QStringLiteral("c|3 a|1||1 d|2||2 b|4"));
    QCOMPARE(run.test.document.UndoCount(), 4);
}

void ArrangingTest::movingFields()
{
    Editor run(List("a|1|n|1 b|2|m|12"));
    run.view.selected = {0, 1};
    run.arranging.MoveFields(1);
    QCOMPARE(run.Entries(), QStringLiteral("1|a|n|2 2|b|m|12"));
    QCOMPARE(run.view.cursorField, 1);
    run.view.lastField = 1; // Notes are hidden.
    run.arranging.MoveFields(1);
    QCOMPARE(run.test.document.UndoCount(), 1);
    run.view.lastField = 2;
    run.view.selected = {0};
    run.arranging.MoveFields(1);
    QCOMPARE(run.Entries(), QStringLiteral("1|n|a|2 2|b|m|12")); // The flag stays with the language.
    QCOMPARE(run.view.cursorField, 2);
    run.arranging.MoveFields(1);
    run.view.cursorField = 0;
    run.arranging.MoveFields(-1);
    QCOMPARE(run.test.document.UndoCount(), 2);
}

void ArrangingTest::draggingRows_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<int>("row"); // Of a b [new] c d.
    QTest::addColumn<QString>("entries");
    QTest::addColumn<int>("point");
    QTest::addColumn<int>("first"); // Selected afterwards.
    QTest::newRow("down") << "0" << 4 << "b c a d" << 1 << 2;
    QTest::newRow("up to the start") << "1 3" << 0 << "b d a c" << 3 << 0;
    QTest::newRow("behind the last") << "0 2" << 5 << "b d a c" << 1 << 2;
    QTest::newRow("above the new row") << "3" << 2 << "a b d c" << 3 << 2;
    QTest::newRow("below the new row") << "3" << 3 << "a b d c" << 2 << 2;
    QTest::newRow("past the new row alone") << "1" << 3 << "a b c d" << 1 << 1;
    QTest::newRow("into itself") << "2 3" << 4 << "a b c d" << 2 << 2;
    QTest::newRow("together") << "0 3" << 1 << "a d b c" << 3 << 0;
    QTest::newRow("nothing") << "" << 1 << "a b c d" << 2 << -1;
}

void ArrangingTest::draggingRows()
{
    QFETCH(QString, selected);
    QFETCH(int, row);
    QFETCH(QString, entries);
    QFETCH(int, point);
    QFETCH(int, first);
    Editor run(List("a b c d"));
    run.view.SetInsertionPoint(2);
    for (const QString &entry : selected.split(u' ', Qt::SkipEmptyParts)) {
        run.view.selected.push_back(entry.toInt());
    }
    const size_t count = run.view.selected.size();
    run.arranging.MoveTo(row);
    QCOMPARE(run.Entries(), entries);
    QCOMPARE(run.view.InsertionPoint(), point);
    QCOMPARE(run.view.selected.size(), count);
    QCOMPARE(run.view.FirstSelectedEntry(), first);
    QCOMPARE(run.test.document.UndoCount(), entries == QStringLiteral("a b c d") ? 0 : 1);
}

void ArrangingTest::steps()
{
    Editor run(List("a|1 b|2"));
    const auto stepped = [&](int from, int step) {
        run.view.selectedRow = from;
        StepSelection(run.view, step);
        return run.view.selectedRow;
    };
    QCOMPARE(stepped(-1, 1), 0);
    QCOMPARE(stepped(1, 1), 2);
    QCOMPARE(stepped(2, 1), 0);
    QCOMPARE(stepped(0, -1), 2);
    QCOMPARE(stepped(-1, -1), 2);
    PlaceInsertionPoint(run.view); // Without a cursor it stays.
    QCOMPARE(run.view.InsertionPoint(), 0);
    run.view.cursorRow = 2;
    PlaceInsertionPoint(run.view);
    QCOMPARE(run.view.InsertionPoint(), 2);
}

QTEST_GUILESS_MAIN(ArrangingTest)
#include "arranging_test.moc"
