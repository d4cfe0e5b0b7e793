// SPDX-License-Identifier: MIT
#include "shell/commands.h"

#include "quiz/quiz_kinds.h"

#include <algorithm>

using namespace CommandId;

namespace {

QStringList Keys(const char *first, const char *second = nullptr)
{
    QStringList keys = {QString::fromLatin1(first)};
    if (second != nullptr) {
        keys.append(QString::fromLatin1(second));
    }
    return keys;
}

QString Icon(const char *name)
{
    return QString::fromLatin1(name);
}

void AddQuizzes(QList<Command> &table)
{
    for (const QuizKindRow &row : quizKinds()) {
        // Ctrl+Alt+F1 and so on never arrive where they switch the virtual console, so the digit is shown.
        const int place = int(row.kind) + 1;
        table.append({.id = row.command,
            .shortcuts = {QStringLiteral("Ctrl+Alt+%1").arg(place % 10),
                QStringLiteral("Ctrl+Alt+F%1").arg(place)},
            .icon = Icon(row.icon),
            .minimumEntries = row.minimumEntries});
    }
}

QList<Command> MakeTable()
{
    using enum EnabledRule;
    using enum CommandKind;
    using enum OpenEditRule;
    QList<Command> table = {
        {NewFile, Keys("Ctrl+N"), Icon("document-new"), Always, Plain, Left},
        {OpenFile, Keys("Ctrl+O"), Icon("document-open"), Always, Plain, Left},
        {SaveFile, Keys("Ctrl+S"), Icon("document-save"), Always, Plain, Left},
        {SaveFileAs, Keys("Ctrl+Shift+S"), Icon("document-save-as"), Always, Plain, Left},
        {Properties, Keys("Alt+Return", "Alt+Enter"), Icon("document-properties")},
        {SendMail, {}, Icon("mail-send"), Always, Plain, Left},
        {Exit, Keys("Ctrl+Q"), Icon("application-exit"), Always, Plain, Left},

        {Undo, Keys("Ctrl+Z"), Icon("edit-undo"), CanUndo, Plain, LeftInEditBox},
        {Redo, Keys("Ctrl+Y", "Ctrl+Shift+Z"), Icon("edit-redo"), CanRedo, Plain, LeftInEditBox},
        {Cut, Keys("Ctrl+X"), Icon("edit-cut"), TextOrEntriesSelected, Plain, LeftInEditBox},
        {Copy, Keys("Ctrl+C"), Icon("edit-copy"), TextOrEntriesSelected, Plain, LeftInEditBox},
        {CopyLanguage1, Keys("Ctrl+Shift+C"), {}, EntriesSelected},
        {CopyLanguage2, Keys("Ctrl+Alt+C"), {}, EntriesSelected},
        {CopyNotes, {}, {}, EntriesSelected},
        {Paste, Keys("Ctrl+V"), Icon("edit-paste"), CanPaste, Plain, LeftInEditBox},
        {PasteSpecial, {}, {}, CanPasteSpecial},
        // Not the toolkit's standard key for deleting, which includes Ctrl+D.
        {Delete, Keys("Del"), Icon("edit-delete"), CanDelete, Plain, LeftInEditBox},
        {SelectAll, Keys("Ctrl+A"), Icon("edit-select-all"), TextOrEntries, Plain, LeftInEditBox},
        {SetFlag, {}, Icon("ordelin-flag"), FlagsSelected},
        {ClearFlag, {}, Icon("ordelin-flag-clear"), FlagsSelected},
        {InvertFlag, {}, Icon("ordelin-flag-invert"), FlagsSelected},
        {InsertSynonym, Keys("F2"), Icon("ordelin-synonym"), InEditBox, Plain, Left},
        {InsertComment, Keys("F4"), Icon("ordelin-comment"), InEditBox, Plain, Left},
        {PlaceInsertionPoint, Keys("Ctrl+J"), Icon("ordelin-insertion-point"), OneRowSelected},
        {Previous, Keys("Ctrl+Up")},
        {Next, Keys("Ctrl+Down")},
        {Find, Keys("Ctrl+F"), Icon("edit-find")},
        {FindNext, Keys("F3")},

        {SortByLanguage1, {}, Icon("ordelin-sort-1"), ListHasTwoEntries},
        {SortByLanguage2, {}, Icon("ordelin-sort-2"), ListHasTwoEntries},
        {SortByNote, {}, Icon("ordelin-sort-3"), ListHasTwoEntries},
        {Descending, {}, {}, Always, Check, Left},
        {GroupFlagged, {}, {}, Always, Check, Left},
        {SortByLength, {}, {}, Always, Check, Left},
        {Shuffle, {}, Icon("ordelin-shuffle"), ListHasTwoEntries},
        {MoveUp, Keys("F6"), Icon("go-up"), EntriesSelected},
        {MoveDown, Keys("Shift+F6"), Icon("go-down"), EntriesSelected},
        {MoveColumnUp, Keys("Ctrl+F6"), {}, EntriesSelected},
        {MoveColumnDown, Keys("Ctrl+Shift+F6"), {}, EntriesSelected},
        {MoveLeft, {}, Icon("go-previous"), EntriesSelected},
        {MoveRight, {}, Icon("go-next"), EntriesSelected},

        {FromLanguage1, {}, Icon("ordelin-direction-1"), Always, Radio, Left},
        {FromLanguage2, {}, Icon("ordelin-direction-2"), Always, Radio, Left},
        {CommandId::QuizSettings, Keys("Ctrl+Shift+F"), Icon("ordelin-quiz-settings")},

        {CommandId::StandardToolBar, {}, {}, Always, Check, Left},
        {QuizToolBar, {}, {}, Always, Check, Left},
        {StatusBar, {}, {}, Always, Check, Left},
        {ShowEditFields, Keys("F11"), {}, Always, Check, Cancelled},
        {ShowWordNumber, Keys("F12"), {}, Always, Check, Cancelled},
        {ShowNotes, Keys("Shift+F12"), {}, Always, Check, Cancelled},
        {SpecialCharacters, Keys("F9"), Icon("ordelin-characters"), Always, Check, Left},

        {FindDuplicates, Keys("Ctrl+D"), Icon("ordelin-duplicates"), ListHasTwoEntries},
        {MakeOneEntry, Keys("Ctrl+Shift+D"), {}, EntriesSelected},
        {MergeDuplicates, {}, Icon("ordelin-merge"), ListHasTwoEntries},
        {Import, Keys("Ctrl+I"), Icon("ordelin-import")},
        {DictionaryList, {}, Icon("accessories-dictionary")},
        {FileSearch, {}, Icon("ordelin-file-search")},
        {TableGuide, Keys("Ctrl+P"), Icon("ordelin-table")},
        {Settings, {}, Icon("preferences-system")},

        {Help, Keys("F1"), Icon("help-contents"), Always, Plain, Left},
        {About, {}, Icon("help-about"), Always, Plain, Left},
    };
    AddQuizzes(table);
    return table;
}

}

const QList<Command> &CommandTable()
{
    static const QList<Command> table = MakeTable();
    return table;
}

const Command &CommandOf(int id)
{
    return *std::ranges::find(CommandTable(), id, &Command::id);
}
