// SPDX-License-Identifier: MIT
#include "editor/text_box.h"
#include "support/test_entry_editor.h"

namespace {

using Action = EditStep::Action;
using Editor = TestEntryEditor;

EntryTexts Texts(const char *term1, const char *term2, const char *note = "")
{
    return {QString::fromUtf8(term1), QString::fromUtf8(term2), QString::fromUtf8(note)};
}

}

class EntryEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyFields()
    {
        Editor editor;
        const auto field = [&](const char *term1, const char *term2) {
            const EditStep step = editor.editing.FromFields(Texts(term1, term2, "n"), NoEntry);
            return step.action == Action::FocusField ? step.index : -1;
        };
        QCOMPARE(field("katt", ""), 1);
        QCOMPARE(field(" * ", "cat"), 0);
        QCOMPARE(field("", " "), 0);
        editor.test.settings.lang1first = false;
        QCOMPARE(field("", " "), 1);
        QVERIFY(editor.Entries().isEmpty());
        QCOMPARE(editor.test.document.UndoCount(), 0);
    }

    void addingFromFields()
    {
        Editor editor(u"a|b,c|d"_s);
        editor.SetInsertionPoint(1);
        editor.test.settings.newwordflag = true;
        editor.test.settings.showNotes = false;
        const EditStep step = editor.editing.FromFields(Texts(" hund ", "dog*hound", " note "), NoEntry);
        QCOMPARE(step, EditStep{Action::ClearFields});
        QCOMPARE(editor.Entries(), u"a|b,hund|dog * hound|note|12,c|d"_s);
        QCOMPARE(editor.rows.InsertionPoint(), 2);
        QCOMPARE(editor.shown, QStringList{u"notes"_s});
        QCOMPARE(editor.test.document.UndoCount(), 1);
        editor.test.settings.sortNewWords = true;
        editor.arrange.descending = false;
        editor.editing.FromFields(Texts("b", "3"), NoEntry);
        QCOMPARE(editor.Entries(), u"b|3||12,hund|dog * hound|note|12,a|b,c|d"_s);
        QCOMPARE(editor.rows.InsertionPoint(), 3);
    }

    void changingFromFields()
    {
        Editor editor(u"a|b||1,c|d"_s);
        QCOMPARE(editor.editing.FromFields(Texts("x", "b"), 0), (EditStep{Action::SelectEntry, 1}));
        QCOMPARE(editor.Entries(), u"x|b||1,c|d"_s);
        // Nothing changes: no step for undo, and the walk goes on.
        QCOMPARE(editor.editing.FromFields(Texts("c", "d"), 1), EditStep{Action::ClearSelection});
        QCOMPARE(editor.test.document.UndoCount(), 1);
        // An entry that is gone meanwhile makes a new one.
        QCOMPARE(editor.editing.FromFields(Texts("e", "f"), 7), EditStep{Action::ClearFields});
        QCOMPARE(editor.Entries(), u"e|f,x|b||1,c|d"_s);
    }

    void corrections()
    {
        const struct
        {
            const char *typed;
            QList<PromptAnswer> answers; // None: there is no question.
            QString stored;
        } rows[] = {
            {"a, b", {PromptAnswer::Yes}, u"a * b"_s}, {"a, b", {PromptAnswer::No}, u"a, b"_s},
            {"a * b", {}, u"a * b"_s}, {"()", {}, u"()"_s}, // Brackets alone.
        };
        for (const auto &[typed, answers, stored] : rows) {
            Editor editor;
            editor.test.prompt.answers = answers;
            editor.editing.FromFields(Texts(typed, "x"), NoEntry);
            QCOMPARE(editor.test.prompt.numbers, QList<int>(answers.size(), Text::ProposeCorrection));
            QVERIFY(answers.isEmpty() || editor.test.prompt.texts.first().contains(u"\"a * b\""));
            QCOMPARE(editor.test.document.List().Entry(0).GetText(0), stored);
        }
        Editor silent;
        silent.test.settings.synonymWarning = false;
        silent.editing.FromFields(Texts("a, b", "x"), NoEntry);
        QVERIFY(silent.test.prompt.numbers.isEmpty());
    }

    void similarEntries()
    {
        Editor editor(u"a|b,c|d,e|f"_s);
        editor.SetInsertionPoint(0);
        editor.test.prompt.answers = {PromptAnswer::Yes, PromptAnswer::No, PromptAnswer::Yes};
        QCOMPARE(editor.editing.FromFields(Texts("c * x", "y"), NoEntry), (EditStep{Action::SelectEntry, 2}));
        QCOMPARE(editor.test.prompt.texts.last(),
            u"Glosa nummer 3 liknar den du nyss skrev. Vill du att denna ska markeras?"_s);
        QCOMPARE(editor.shown, (QStringList{u"mark 2"_s, u"mark -1"_s}));
        // Declined, the change stays and the walk goes on.
        QCOMPARE(editor.editing.FromFields(Texts("e", "b"), 3), EditStep{Action::ClearSelection});
        QVERIFY(editor.Entries().endsWith(u",e|b"));
        QCOMPARE(editor.editing.CellEdited(editor.rows.RowOfEntry(3), 0, u"a"_s),
            (EditStep{Action::SelectEntry, 1}));
        editor.test.settings.duplicateVarning = false;
        editor.editing.FromFields(Texts("a", "b"), NoEntry);
        QCOMPARE(editor.test.prompt.numbers, QList<int>(3, Text::SelectSimilar));
    }

    void chainedEntry()
    {
        const struct
        {
            bool lang1first, notes;
            QList<int> edited; // The field after each step.
        } rows[] = {
            {true, true, QList<int>{0, 1, 2, 0}}, // notes shown
            {true, false, QList<int>{0, 1, 0}}, // notes hidden
            {false, true, QList<int>{1, 0, 2, 1}}, // language 2 first
            {false, false, QList<int>{1, 0, 1}}, // language 2 first, notes hidden
        };
        for (const auto &row : rows) {
            Editor editor(u"x|y,z|w"_s);
            editor.SetInsertionPoint(1);
            editor.test.settings.lang1first = row.lang1first;
            editor.test.settings.showNotes = row.notes;
            const QStringList words = {u" hund "_s, u"dog"_s, u"n"_s};
            for (qsizetype step = 0; step + 1 < row.edited.size(); ++step) {
                QCOMPARE(editor.test.document.List().Count(), 2);
                QCOMPARE(editor.editing.CellEdited(
                             editor.rows.InsertionPoint(), row.edited.at(step), words.at(row.edited.at(step))),
                    (EditStep{Action::EditNewEntry, row.edited.at(step + 1)}));
            }
            QCOMPARE(editor.Entries(), row.notes ? u"x|y,hund|dog|n,z|w"_s : u"x|y,hund|dog,z|w"_s);
            QCOMPARE(editor.rows.InsertionPoint(), 2);
            QCOMPARE(editor.rows.pending, EntryTexts());
            QCOMPARE(editor.test.document.UndoCount(), 1);
        }
    }

    void cells()
    {
        Editor editor(u"a|b|n,c|d"_s);
        editor.SetInsertionPoint(2);
        editor.editing.CellEdited(0, 0, u"  "_s);
        editor.editing.CellEdited(0, 1, u"*"_s);
        editor.editing.CellEdited(9, 0, u"x"_s);
        editor.editing.CellEdited(1, 0, u" c "_s);
        QCOMPARE(editor.test.document.UndoCount(), 0);
        editor.editing.CellEdited(0, 2, u" "_s);
        editor.editing.CellEdited(1, 1, u"e*f"_s);
        QCOMPARE(editor.Entries(), u"a|b,c|e * f"_s);
        // An empty note ends a new entry; a term that is missing is asked for first.
        QCOMPARE(editor.editing.CellEdited(2, 2, {}), (EditStep{Action::EditNewEntry, 0}));
        QCOMPARE(editor.editing.CellEdited(2, 1, u"g"_s), (EditStep{Action::EditNewEntry, 0}));
        QCOMPARE(editor.editing.CellEdited(2, 0, u"h"_s), (EditStep{Action::EditNewEntry, 2}));
        QCOMPARE(editor.editing.CellEdited(2, 2, {}), (EditStep{Action::EditNewEntry, 0}));
        QVERIFY(editor.Entries().endsWith(u",h|g"));
    }

    void deleting()
    {
        Editor editor(u"a|b,c|d,e|f"_s);
        editor.test.prompt.answers = {PromptAnswer::No, PromptAnswer::Cancel, PromptAnswer::Yes};
        const std::vector<int> two = {0, 2};
        QVERIFY(!editor.editing.DeleteEntries({}) && !editor.editing.DeleteEntries(two));
        QVERIFY(!editor.editing.DeleteEntries(two));
        QCOMPARE(editor.test.document.List().Count(), 3);
        QVERIFY(editor.editing.DeleteEntries(two));
        QCOMPARE(editor.Entries(), u"c|d"_s);
        QCOMPARE(editor.test.prompt.texts, QStringList(3, u"2 glosor är markerade. Vill du ta bort dessa?"_s));
    }

    void textBoxes()
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
};

QTEST_GUILESS_MAIN(EntryEditingTest)
#include "entry_editing_test.moc"
