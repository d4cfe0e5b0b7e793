// SPDX-License-Identifier: MIT
#include "editor/entry_editing.h"
#include "editor/row_model.h"
#include "editor/text_box.h"
#include "editor/text_numbers.h"
#include "settings/shell_settings.h"
#include "support/test_document.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Action = EditStep::Action;

/// The editor over a list, with a view that only keeps the rows.
struct Editor : IEntryView
{
    explicit Editor(const QStringList &entries = {}) : test(entries)
    {
        rows.SetEntryCount(int(entries.size()));
    }

    void SetInsertionPoint(int row) override
    {
        test.document.SetInsertionPoint(row);
        rows.SetEntryCount(test.document.List().Count());
        rows.SetInsertionPoint(test.document.InsertionPoint());
    }
    void PendingChanged() override { }
    void ShowNotes() override
    {
        test.settings.showNotes = true;
        shown.append(QStringLiteral("notes"));
    }
    void MarkEntry(int entry) override { shown.append(QStringLiteral("mark %1").arg(entry)); }

    QStringList List() const { return Describe(test.document.List()); }

    TestDocument test;
    CRowModel rows;
    ArrangeSettings arrange;
    QStringList shown;
    CEntryEditing editing{{test.document, rows, test.settings, arrange, test.texts, test.prompt}, *this};
};

QString T(const char *text)
{
    return QString::fromUtf8(text);
}

EntryTexts Texts(const char *term1, const char *term2, const char *note = "")
{
    return {T(term1), T(term2), T(note)};
}

}

class EntryEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyFields();
    void addingFromFields();
    void changingFromFields();
    void corrections();
    void similarEntries();
    void chainedEntry();
    void cells();
    void sortedEntries();
    void deleting();
    void textBoxes();
};

void EntryEditingTest::emptyFields()
{
    Editor editor;
    const auto field = [&](const char *term1, const char *term2) {
        const EditStep step = editor.editing.FromFields(Texts(term1, term2, "n"), CRowModel::NoEntry);
        return step.action == Action::FocusField ? step.index : -1;
    };
    QCOMPARE(field("katt", ""), 1);
    QCOMPARE(field(" * ", "cat"), 0);
    QCOMPARE(field("", " "), 0);
    editor.test.settings.lang1first = false;
    QCOMPARE(field("", " "), 1);
    QVERIFY(editor.List().isEmpty());
    QCOMPARE(editor.test.document.UndoCount(), 0);
}

void EntryEditingTest::addingFromFields()
{
    Editor editor({T("a|b"), T("c|d")});
    editor.SetInsertionPoint(1);
    editor.test.settings.newwordflag = true;
    editor.test.settings.showNotes = false;
    const EditStep step = editor.editing.FromFields(Texts(" hund ", "dog*hound", " note "), CRowModel::NoEntry);
    QCOMPARE(step, EditStep{Action::ClearFields});
    QCOMPARE(editor.List(), (QStringList{T("a|b"), T("hund|dog * hound|note|12"), T("c|d")}));
    QCOMPARE(editor.rows.InsertionPoint(), 2);
    QCOMPARE(editor.shown, QStringList{T("notes")});
    QCOMPARE(editor.test.document.UndoCount(), 1);
}

void EntryEditingTest::changingFromFields()
{
    Editor editor({T("a|b||1"), T("c|d")});
    QCOMPARE(editor.editing.FromFields(Texts("x", "b"), 0), (EditStep{Action::SelectEntry, 1}));
    QCOMPARE(editor.List(), (QStringList{T("x|b||1"), T("c|d")}));
    // Nothing changes: no step for undo, and the walk goes on.
    QCOMPARE(editor.editing.FromFields(Texts("c", "d"), 1), EditStep{Action::ClearSelection});
    QCOMPARE(editor.test.document.UndoCount(), 1);
    // An entry that is gone meanwhile makes a new one.
    QCOMPARE(editor.editing.FromFields(Texts("e", "f"), 7), EditStep{Action::ClearFields});
    QCOMPARE(editor.List().size(), 3);
}

void EntryEditingTest::corrections()
{
    const struct
    {
        QString typed;
        QString proposal;
    } rows[] = {
        {u"a, b"_s, u"a * b"_s}, // commas
        {u"a * b"_s, {}}, // asterisks alone
        {u"()"_s, {}}, // brackets alone
    };
    for (const auto &row : rows) {
        for (const bool accept : {true, false}) {
            Editor editor;
            if (!row.proposal.isEmpty()) {
                editor.test.prompt.answers = {accept ? PromptAnswer::Yes : PromptAnswer::No};
            }
            editor.editing.FromFields({row.typed, T("x"), {}}, CRowModel::NoEntry);
            QCOMPARE(editor.test.prompt.numbers,
                row.proposal.isEmpty() ? QList<int>() : QList<int>{Text::ProposeCorrection});
            QVERIFY(row.proposal.isEmpty()
                || editor.test.prompt.texts.first().contains(u'"' + row.proposal + u'"'));
            QCOMPARE(editor.test.document.List().Entry(0).GetText(0),
                accept && !row.proposal.isEmpty() ? row.proposal : row.typed);
        }
        Editor silent;
        silent.test.settings.synonymWarning = false;
        silent.editing.FromFields({row.typed, T("x"), {}}, CRowModel::NoEntry);
        QVERIFY(silent.test.prompt.numbers.isEmpty());
    }
}

void EntryEditingTest::similarEntries()
{
    Editor editor({T("a|b"), T("c|d"), T("e|f")});
    editor.SetInsertionPoint(0);
    editor.test.prompt.answers = {PromptAnswer::Yes, PromptAnswer::No, PromptAnswer::Yes};
    QCOMPARE(
        editor.editing.FromFields(Texts("c * x", "y"), CRowModel::NoEntry), (EditStep{Action::SelectEntry, 2}));
    QCOMPARE(editor.test.prompt.texts.last(),
        T("Glosa nummer 3 liknar den du nyss skrev. Vill du att denna ska markeras?"));
    QCOMPARE(editor.shown, (QStringList{T("mark 2"), T("mark -1")}));
    // Declined, the change stays and the walk goes on.
    QCOMPARE(editor.editing.FromFields(Texts("e", "b"), 3), EditStep{Action::ClearSelection});
    QCOMPARE(editor.List().last(), T("e|b"));
    QCOMPARE(
        editor.editing.CellEdited(editor.rows.RowOfEntry(3), 0, T("a")), (EditStep{Action::SelectEntry, 1}));
    editor.test.settings.duplicateVarning = false;
    editor.editing.FromFields(Texts("a", "b"), CRowModel::NoEntry);
    QCOMPARE(editor.test.prompt.numbers, QList<int>(3, Text::SelectSimilar));
}

void EntryEditingTest::chainedEntry()
{
    const struct
    {
        bool lang1first;
        bool notes;
        QList<int> edited; // The field after each step.
    } rows[] = {
        {true, true, QList<int>{0, 1, 2, 0}}, // notes shown
        {true, false, QList<int>{0, 1, 0}}, // notes hidden
        {false, true, QList<int>{1, 0, 2, 1}}, // language 2 first
        {false, false, QList<int>{1, 0, 1}}, // language 2 first, notes hidden
    };
    for (const auto &row : rows) {
        Editor editor({T("x|y"), T("z|w")});
        editor.SetInsertionPoint(1);
        editor.test.settings.lang1first = row.lang1first;
        editor.test.settings.showNotes = row.notes;
        const QStringList words = {T(" hund "), T("dog"), T("n")};
        for (qsizetype step = 0; step + 1 < row.edited.size(); ++step) {
            QCOMPARE(editor.List().size(), 2);
            QCOMPARE(editor.editing.CellEdited(
                         editor.rows.InsertionPoint(), row.edited.at(step), words.at(row.edited.at(step))),
                (EditStep{Action::EditNewEntry, row.edited.at(step + 1)}));
        }
        QCOMPARE(editor.List(), (QStringList{T("x|y"), row.notes ? T("hund|dog|n") : T("hund|dog"), T("z|w")}));
        QCOMPARE(editor.rows.InsertionPoint(), 2);
        QCOMPARE(editor.rows.pending, EntryTexts());
        QCOMPARE(editor.test.document.UndoCount(), 1);
    }
}

void EntryEditingTest::cells()
{
    Editor editor({T("a|b|n"), T("c|d")});
    editor.SetInsertionPoint(2);
    editor.editing.CellEdited(0, 0, T("  "));
    editor.editing.CellEdited(0, 1, T("*"));
    editor.editing.CellEdited(9, 0, T("x"));
    editor.editing.CellEdited(1, 0, T(" c "));
    QCOMPARE(editor.test.document.UndoCount(), 0);
    editor.editing.CellEdited(0, 2, T(" "));
    editor.editing.CellEdited(1, 1, T("e*f"));
    QCOMPARE(editor.List(), (QStringList{T("a|b"), T("c|e * f")}));
    // An empty note ends a new entry; a term that is missing is asked for first.
    QCOMPARE(editor.editing.CellEdited(2, 2, {}), (EditStep{Action::EditNewEntry, 0}));
    QCOMPARE(editor.editing.CellEdited(2, 1, T("g")), (EditStep{Action::EditNewEntry, 0}));
    QCOMPARE(editor.editing.CellEdited(2, 0, T("h")), (EditStep{Action::EditNewEntry, 2}));
    QCOMPARE(editor.editing.CellEdited(2, 2, {}), (EditStep{Action::EditNewEntry, 0}));
    QCOMPARE(editor.List().last(), T("h|g"));
}

void EntryEditingTest::sortedEntries()
{
    Editor editor({T("a|1"), T("c|2")});
    editor.test.settings.sortNewWords = true;
    editor.arrange.descending = false;
    editor.SetInsertionPoint(0);
    editor.editing.FromFields(Texts("b", "3"), CRowModel::NoEntry);
    QCOMPARE(editor.List(), (QStringList{T("a|1"), T("b|3"), T("c|2")}));
    QCOMPARE(editor.rows.InsertionPoint(), 1);
}

void EntryEditingTest::deleting()
{
    Editor editor({T("a|b"), T("c|d"), T("e|f")});
    editor.test.prompt.answers = {PromptAnswer::No, PromptAnswer::Cancel, PromptAnswer::Yes};
    const std::vector<int> two = {0, 2};
    QVERIFY(!editor.editing.DeleteEntries({}));
    QVERIFY(!editor.editing.DeleteEntries(two));
    QVERIFY(!editor.editing.DeleteEntries(two));
    QCOMPARE(editor.List().size(), 3);
    QVERIFY(editor.editing.DeleteEntries(two));
    QCOMPARE(editor.List(), QStringList{T("c|d")});
    QCOMPARE(editor.test.prompt.texts, QStringList(3, T("2 glosor är markerade. Vill du ta bort dessa?")));
}

void EntryEditingTest::textBoxes()
{
    const struct
    {
        bool comment;
        QString before; // "<" and ">" around the selection, "|" for a caret alone.
        QString after;
    } rows[] = {
        {false, u"hus|"_s, u"hus * |"_s}, // synonym
        {false, u"a*|  b"_s, u"a * b * |"_s}, // synonym in the middle
        {false, u" |"_s, u"|"_s}, // synonym in an empty box
        {true, u"ett| hus"_s, u"ett[|] hus"_s}, // comment at the caret
        {true, u"ett <hus> här"_s, u"ett [hus] |här"_s}, // comment around a selection
        {true, u"<hus>"_s, u"[hus]|"_s}, // comment around everything
        {true, u"|"_s, u"[|]"_s}, // comment in an empty box
    };
    for (const auto &row : rows) {
        TextBox box = {row.before, int(row.before.indexOf(u'|')), int(row.before.indexOf(u'|'))};
        if (row.before.contains(u'<')) {
            box.selectionStart = int(row.before.indexOf(u'<'));
            box.selectionEnd = int(row.before.indexOf(u'>')) - 1;
        }
        box.text.remove(u'|').remove(u'<').remove(u'>');
        TextBox changed = row.comment ? WithComment(box) : WithSynonym(box);
        QCOMPARE(changed.selectionStart, changed.selectionEnd);
        QCOMPARE(changed.text.insert(changed.selectionEnd, u'|'), row.after);
    }
}

QTEST_GUILESS_MAIN(EntryEditingTest)
#include "entry_editing_test.moc"
