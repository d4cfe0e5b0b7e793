// SPDX-License-Identifier: MIT
#include "editor/pending_entries.h"
#include "support/test_entry_editor.h"

namespace {

using Action = EditStep::Action;

/// The editor over a list, without a window: its cell and its fields are set by the test.
struct Editor : TestEntryEditor, IPendingView
{
    explicit Editor(const QString &entries) : TestEntryEditor(entries)
    {
        SetInsertionPoint(test.document.List().Count());
    }

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

    std::optional<OpenEdit> edit;
    FieldTexts fields;
    EditStep stored;
    CPendingEntries pending{test.document, test.prompt, rows, editing, *this};
};

}

class PendingEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholePairs()
    {
        // The note is not waited for, and a pair in the fields is another entry.
        Editor editor(u"a|b"_s);
        editor.rows.pending = {u"abc"_s, {}, {}};
        editor.edit = {1, 1, u" def "_s};
        editor.fields.typed = {u"x"_s, u"y, z"_s, u"n"_s};
        const QString all = u"a|b,abc|def,x|y, z|n"_s;
        QCOMPARE(Joined(editor.pending.ListWithAll()), all);
        editor.test.prompt.typedMeanwhile = u"natt\nnight\n\nso"_s;
        QCOMPARE(Joined(editor.pending.ListWithAll()), all + u",natt|night,so"_s);
        editor.test.prompt.typedMeanwhile.clear();
        QCOMPARE(editor.Entries(), u"a|b"_s);
        editor.test.prompt.answers = {PromptAnswer::No};
        editor.pending.StoreWhole();
        QCOMPARE(editor.test.prompt.numbers, QList<int>{Text::ProposeCorrection});
        QCOMPARE(editor.Entries(), u"a|b,x|y, z|n,abc|def"_s);
        QVERIFY(!editor.pending.HasRest());
        QCOMPARE(Joined(editor.pending.ListWithAll()), editor.Entries());
        QCOMPARE(editor.stored, (EditStep{Action::EditNewEntry, 0}));
    }

    void changedFields()
    {
        Editor editor(u"a|b|n,c|d,e|f"_s);
        editor.fields = {{u"a"_s, {}, u"m"_s}, {u"a"_s, u"b"_s, u"n"_s}, 0};
        editor.edit = {1, 0, u"e"_s};
        const QString changed = u"a|b|m,e|d,e|f"_s;
        QCOMPARE(Joined(editor.pending.ListWithAll()), changed);
        // The similar entry is selected as the answer wants it.
        editor.test.prompt.answers = {PromptAnswer::Yes};
        editor.pending.StoreWhole();
        QCOMPARE(editor.Entries(), changed);
        QCOMPARE(editor.stored, (EditStep{Action::SelectEntry, 2}));
        // But not over words that wait in the fields.
        editor.fields.entry = NoEntry;
        editor.fields.typed = {u"half"_s, {}, {}};
        editor.edit = {1, 1, u"f"_s};
        editor.test.prompt.answers = {PromptAnswer::Yes};
        editor.pending.StoreWhole();
        QCOMPARE(editor.stored, EditStep());
        QVERIFY(editor.pending.HasRest());
    }

    void halves()
    {
        Editor editor(u"a|b"_s);
        editor.edit = {1, 1, u"def"_s};
        editor.fields.typed[2] = u" note, alone "_s;
        editor.pending.StoreWhole();
        QCOMPARE(editor.Entries(), u"a|b"_s);
        QCOMPARE(editor.stored, (EditStep{Action::EditNewEntry, 0}));
        QVERIFY(editor.pending.HasRest());
        const QString all = u"a|b,|def,note, alone"_s;
        QCOMPARE(Joined(editor.pending.ListWithAll()), all);
        editor.pending.StoreRest();
        QCOMPARE(editor.Entries(), all);
        QVERIFY(!editor.pending.HasRest());
        QVERIFY(editor.test.prompt.numbers.isEmpty());
    }

    void leftFields()
    {
        Editor editor(u"a|b,c|d|n"_s);
        FieldTexts fields = {.typed = {u"c2"_s, {}, u"n"_s}, .given = {u"c"_s, u"d"_s, u"n"_s}, .entry = 1};
        editor.pending.KeepLeft(fields);
        QCOMPARE(editor.Entries(), u"a|b,c2|d|n"_s);
        fields.typed[0] = u"c3"_s;
        editor.pending.KeepLeft(fields); // The entry is another meanwhile.
        QCOMPARE(editor.Entries(), u"a|b,c2|d|n"_s);

        fields = {.typed = {u" x "_s, {}, {}}, .given = {}, .entry = NoEntry};
        editor.pending.KeepLeft(fields);
        QCOMPARE(editor.rows.pending[0], u"x"_s);
        fields.typed = {u"y"_s, {}, {}};
        editor.pending.KeepLeft(fields); // The row is taken.
        QCOMPARE(editor.rows.pending[0], u"x"_s);
        QCOMPARE(editor.Entries(), u"a|b,c2|d|n,y"_s);
    }

    void nothing()
    {
        Editor editor(u"a|b"_s);
        editor.edit = {0, 0, u" * "_s};
        editor.fields = {{u" a "_s, {}, {}}, {u"a"_s, u"b"_s, {}}, 0};
        QVERIFY(editor.pending.ListWithAll().IsSaved());
        editor.pending.StoreWhole();
        editor.fields = {{u" "_s, u"[ ]"_s, {}}, {}, NoEntry};
        editor.pending.StoreWhole();
        QVERIFY(!editor.pending.HasRest() && editor.pending.ListWithAll().IsSaved());
        QCOMPARE(editor.test.document.UndoCount(), 0);
    }
};

QTEST_GUILESS_MAIN(PendingEntriesTest)
#include "pending_entries_test.moc"
