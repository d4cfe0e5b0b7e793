// SPDX-License-Identifier: MIT
#include "editor/entry_editing.h"
#include "editor/row_model.h"
#include "editor/text_box.h"
#include "editor/text_numbers.h"
#include "settings/shell_settings.h"
#include "support/test_document.h"

#include <QTest>

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
    void corrections_data();
    void corrections();
    void similarEntries();
    void chainedEntry_data();
    void chainedEntry();
    void cells();
    void sortedEntries();
    void deleting();
    void textBoxes_data();
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

void EntryEditingTest::corrections_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("proposal");
    QTest::newRow("commas") << "a, b"
                            << "a * b";
    QTest::newRow("comma in a comment") << "a (b, c)"
                                        << "a [b, c]";
    QTest::newRow("both") << "hus, hem (plural)"
                          << "hus * hem [plural]";
    QTest::newRow("asterisks alone") << "a * b"
                                     << "";
    QTest::newRow("brackets alone") << "()"
                                    << "";
}

void EntryEditingTest::corrections()
{
    QFETCH(QString, typed);
    QFETCH(QString, proposal);
    for (const bool accept : {true, false}) {
        Editor editor;
        if (!proposal.isEmpty()) {
            editor.test.prompt.answers = {accept ? PromptAnswer::Yes : PromptAnswer::No};
        }
        editor.editing.FromFields({typed, T("x"), {}}, CRowModel::NoEntry);
        QCOMPARE(editor.test.prompt.numbers,
            proposal.isEmpty() ? QList<int>() : QList<int>{Text::ProposeCorrection});
        QVERIFY(proposal.isEmpty() || editor.test.prompt.texts.first().contains(u'"' + proposal + u'"'));
        QCOMPARE(
            editor.test.document.List().Entry(0).GetText(0), accept && !proposal.isEmpty() ? proposal : typed);
    }
    Editor silent;
    silent.test.settings.synonymWarning = false;
    silent.editing.FromFields({typed, T("x"), {}}, CRowModel::NoEntry);
    QVERIFY(silent.test.prompt.numbers.isEmpty());
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

void EntryEditingTest::chainedEntry_data()
{
    QTest::addColumn<bool>("lang1first");
    QTest::addColumn<bool>("notes");
    QTest::addColumn<QList<int>>("edited"); // The field after each step.
    QTest::newRow("notes shown") << true << true << QList<int>{0, 1, 2, 0};
    QTest::newRow("notes hidden") << true << false << QList<int>{0, 1, 0};
    QTest::newRow("language 2 first") << false << true << QList<int>{1, 0, 2, 1};
    QTest::newRow("language 2 first, notes hidden") << false << false << QList<int>{1, 0, 1};
}

void EntryEditingTest::chainedEntry()
{
    QFETCH(bool, lang1first);
    QFETCH(bool, notes);
    QFETCH(QList<int>, edited);
    Editor editor({T("x|y"), T("z|w")});
    editor.SetInsertionPoint(1);
    editor.test.settings.lang1first = lang1first;
    editor.test.settings.showNotes = notes;
    const QStringList words = {T(" hund "), T("dog"), T("n")};
    for (qsizetype step = 0; step + 1 < edited.size(); ++step) {
        QCOMPARE(editor.List().size(), 2);
        QCOMPARE(
            editor.editing.CellEdited(editor.rows.InsertionPoint(), edited.at(step), words.at(edited.at(step))),
            (EditStep{Action::EditNewEntry, edited.at(step + 1)}));
    }
    QCOMPARE(editor.List(), (QStringList{T("x|y"), notes ? T("hund|dog|n") : T("hund|dog"), T("z|w")}));
    QCOMPARE(editor.rows.InsertionPoint(), 2);
    QCOMPARE(editor.rows.pending, EntryTexts());
    QCOMPARE(editor.test.document.UndoCount(), 1);
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

void EntryEditingTest::textBoxes_data()
{
    QTest::addColumn<bool>("comment");
    QTest::addColumn<QString>("before"); // "<" and ">" around the selection, "|" for a caret alone.
    QTest::addColumn<QString>("after");
    QTest::newRow("synonym") << false << "hus|"
                             << "hus * |";
    QTest::newRow("synonym in the middle") << false << "a*|  b"
                                           << "a * b * |";
    QTest::newRow("synonym in an empty box") << false << " |"
                                             << "|";
    QTest::newRow("comment at the caret") << true << "ett| hus"
                                          << "ett[|] hus";
    QTest::newRow("comment around a selection") << true << "ett <hus> här"
                                                << "ett [hus] |här";
    QTest::newRow("comment around everything") << true << "<hus>"
                                               << "[hus]|";
    QTest::newRow("comment in an empty box") << true << "|"
                                             << "[|]";
}

void EntryEditingTest::textBoxes()
{
    QFETCH(bool, comment);
    QFETCH(QString, before);
    QFETCH(QString, after);
    TextBox box = {before, int(before.indexOf(u'|')), int(before.indexOf(u'|'))};
    if (before.contains(u'<')) {
        box.selectionStart = int(before.indexOf(u'<'));
        box.selectionEnd = int(before.indexOf(u'>')) - 1;
    }
    box.text.remove(u'|').remove(u'<').remove(u'>');
    TextBox changed = comment ? WithComment(box) : WithSynonym(box);
    QCOMPARE(changed.selectionStart, changed.selectionEnd);
    QCOMPARE(changed.text.insert(changed.selectionEnd, u'|'), after);
}

QTEST_GUILESS_MAIN(EntryEditingTest)
#include "entry_editing_test.moc"
