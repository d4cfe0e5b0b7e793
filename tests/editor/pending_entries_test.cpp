// SPDX-License-Identifier: MIT
#include "editor/pending_entries.h"
#include "editor/text_numbers.h"
#include "settings/shell_settings.h"
#include "support/test_document.h"

#include <QTest>

namespace {

using Action = EditStep::Action;

/// The editor over a list, without a window: its cell and its fields are set by the test.
struct Editor : IEntryView, IPendingView
{
    explicit Editor(const QStringList &entries = {}) : test(entries) { SetInsertionPoint(int(entries.size())); }

    void SetInsertionPoint(int row) override
    {
        test.document.SetInsertionPoint(row);
        rows.SetEntryCount(test.document.List().Count());
        rows.SetInsertionPoint(test.document.InsertionPoint());
    }
    void PendingChanged() override { }
    void ShowNotes() override { }
    void MarkEntry(int) override { }

    std::optional<OpenEdit> EditedCell() const override { return edit; }
    FieldTexts Fields() const override { return fields; }
    EditStep StoreEdit() override
    {
        const auto ended = std::exchange(edit, std::nullopt);
        return ended ? editing.CellEdited(ended->row, ended->field, ended->text) : EditStep();
    }
    void EmptyFields() override { fields = {}; }
    void PendingKept() override { }
    void Stored(const EditStep &step) override { stored = step; }

    QStringList List() const { return Describe(test.document.List()); }

    TestDocument test;
    CRowModel rows;
    ArrangeSettings arrange;
    std::optional<OpenEdit> edit;
    FieldTexts fields;
    EditStep stored;
    CEntryEditing editing{{test.document, rows, test.settings, arrange, test.texts, test.prompt}, *this};
    CPendingEntries pending{test.document, test.prompt, rows, editing, *this};
};

QString T(const char *text)
{
    return QString::fromUtf8(text);
}

}

class PendingEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholePairs();
    void changedFields();
    void halves();
    void leftFields();
    void nothing();
};

void PendingEntriesTest::wholePairs()
{
    // The note is not waited for, and a pair in the fields is another entry.
    Editor editor({T("a|b")});
    editor.rows.pending = {T("abc"), {}, {}};
    editor.edit = {1, 1, T(" def ")};
    editor.fields.typed = {T("x"), T("y, z"), T("n")};
    const QStringList all = {T("a|b"), T("abc|def"), T("x|y, z|n")};
    QCOMPARE(Describe(editor.pending.ListWithAll()), all);
    editor.test.prompt.typedMeanwhile = T("natt\nnight\n\nso");
    QCOMPARE(Describe(editor.pending.ListWithAll()), (all + QStringList{T("natt|night"), T("so")}));
    editor.test.prompt.typedMeanwhile.clear();
    QCOMPARE(editor.List(), QStringList{T("a|b")});
    editor.test.prompt.answers = {PromptAnswer::No};
    editor.pending.StoreWhole();
    QCOMPARE(editor.test.prompt.numbers, QList<int>{Text::ProposeCorrection});
    QCOMPARE(editor.List(), (QStringList{T("a|b"), T("x|y, z|n"), T("abc|def")}));
    QVERIFY(!editor.pending.HasRest());
    QCOMPARE(Describe(editor.pending.ListWithAll()), editor.List());
    QCOMPARE(editor.stored, (EditStep{Action::EditNewEntry, 0}));
}

void PendingEntriesTest::changedFields()
{
    Editor editor({T("a|b|n"), T("c|d"), T("e|f")});
    editor.fields = {{T("a"), {}, T("m")}, {T("a"), T("b"), T("n")}, 0};
    editor.edit = {1, 0, T("e")};
    const QStringList changed = {T("a|b|m"), T("e|d"), T("e|f")};
    QCOMPARE(Describe(editor.pending.ListWithAll()), changed);
    // The similar entry is selected as the answer wants it.
    editor.test.prompt.answers = {PromptAnswer::Yes};
    editor.pending.StoreWhole();
    QCOMPARE(editor.List(), changed);
    QCOMPARE(editor.stored, (EditStep{Action::SelectEntry, 2}));
    // But not over words that wait in the fields.
    editor.fields.entry = CRowModel::NoEntry;
    editor.fields.typed = {T("half"), {}, {}};
    editor.edit = {1, 1, T("f")};
    editor.test.prompt.answers = {PromptAnswer::Yes};
    editor.pending.StoreWhole();
    QCOMPARE(editor.stored, EditStep());
    QVERIFY(editor.pending.HasRest());
}

void PendingEntriesTest::halves()
{
    Editor editor({T("a|b")});
    editor.edit = {1, 1, T("def")};
    editor.fields.typed[2] = T(" note, alone ");
    editor.pending.StoreWhole();
    QCOMPARE(editor.List(), QStringList{T("a|b")});
    QCOMPARE(editor.stored, (EditStep{Action::EditNewEntry, 0}));
    QVERIFY(editor.pending.HasRest());
    const QStringList all = {T("a|b"), T("|def"), T("note, alone")};
    QCOMPARE(Describe(editor.pending.ListWithAll()), all);
    editor.pending.StoreRest();
    QCOMPARE(editor.List(), all);
    QVERIFY(!editor.pending.HasRest());
    QVERIFY(editor.test.prompt.numbers.isEmpty());
}

void PendingEntriesTest::leftFields()
{
    Editor editor({T("a|b"), T("c|d|n")});
    FieldTexts fields = {.typed = {T("c2"), {}, T("n")}, .given = {T("c"), T("d"), T("n")}, .entry = 1};
    editor.pending.KeepLeft(fields);
    QCOMPARE(editor.List(), QStringList({T("a|b"), T("c2|d|n")}));
    fields.typed[0] = T("c3");
    editor.pending.KeepLeft(fields); // The entry is another meanwhile.
    QCOMPARE(editor.List(), QStringList({T("a|b"), T("c2|d|n")}));

    fields = {.typed = {T(" x "), {}, {}}, .given = {}, .entry = CRowModel::NoEntry};
    editor.pending.KeepLeft(fields);
    QCOMPARE(editor.rows.pending[0], T("x"));
    fields.typed = {T("y"), {}, {}};
    editor.pending.KeepLeft(fields); // The row is taken.
    QCOMPARE(editor.rows.pending[0], T("x"));
    QCOMPARE(editor.List(), QStringList({T("a|b"), T("c2|d|n"), T("y")}));
}

void PendingEntriesTest::nothing()
{
    Editor editor({T("a|b")});
    editor.edit = {0, 0, T(" * ")};
    editor.fields = {{T(" a "), {}, {}}, {T("a"), T("b"), {}}, 0};
    QVERIFY(editor.pending.ListWithAll().IsSaved());
    editor.pending.StoreWhole();
    editor.fields = {{T(" "), T("[ ]"), {}}, {}, CRowModel::NoEntry};
    editor.pending.StoreWhole();
    QVERIFY(!editor.pending.HasRest() && editor.pending.ListWithAll().IsSaved());
    QCOMPARE(editor.test.document.UndoCount(), 0);
}

QTEST_GUILESS_MAIN(PendingEntriesTest)
#include "pending_entries_test.moc"
