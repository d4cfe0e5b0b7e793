// SPDX-License-Identifier: MIT
#include "shell/commands.h"

#include "quiz/quiz_kinds.h"

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
    constexpr const char *Icons[] = {"ordelin-quiz", "ordelin-quiz-table", "ordelin-quiz-self-test",
        "ordelin-quiz-alternatives", "ordelin-quiz-hangman", "ordelin-quiz-pairs", "ordelin-quiz-contest",
        "ordelin-quiz-falling", "ordelin-quiz-memory"};
    for (int kind = 0; kind <= LastQuiz - StandardQuiz; ++kind) {
        // Ctrl+Alt+F1 to F9 never arrive where they switch the virtual console, so the digit is shown.
        const QString digit = QString::number(kind + 1);
        const int minimum = MinimumEntries[size_t(kind)];
        table.append({.id = StandardQuiz + kind,
            .shortcuts = {QStringLiteral("Ctrl+Alt+") + digit, QStringLiteral("Ctrl+Alt+F") + digit},
            .icon = Icon(Icons[kind]),
            .enabled = minimum > 2 ? EnabledRule::ListHasFourEntries
                : minimum == 2     ? EnabledRule::ListHasTwoEntries
                                   : EnabledRule::ListHasEntries});
    }
}

QList<Command> MakeTable()
{
    using enum EnabledRule;
    using enum CommandKind;
    QList<Command> table = {
        {NewFile, Keys("Ctrl+N"), Icon("document-new")},
        {OpenFile, Keys("Ctrl+O"), Icon("document-open")},
        {SaveFile, Keys("Ctrl+S"), Icon("document-save")},
        {SaveFileAs, Keys("Ctrl+Shift+S"), Icon("document-save-as")},
        {Properties, Keys("Alt+Return", "Alt+Enter"), Icon("document-properties")},
        {SendMail, {}, Icon("mail-send")},
        {Exit, Keys("Ctrl+Q"), Icon("application-exit")},

        {Undo, Keys("Ctrl+Z"), Icon("edit-undo"), CanUndo},
        {Redo, Keys("Ctrl+Y", "Ctrl+Shift+Z"), Icon("edit-redo"), CanRedo},
        {Cut, Keys("Ctrl+X"), Icon("edit-cut"), TextOrEntriesSelected},
        {Copy, Keys("Ctrl+C"), Icon("edit-copy"), TextOrEntriesSelected},
        {CopyLanguage1, Keys("Ctrl+Shift+C"), {}, EntriesSelected},
        {CopyLanguage2, Keys("Ctrl+Alt+C"), {}, EntriesSelected},
        {CopyNotes, {}, {}, EntriesSelected},
        {Paste, Keys("Ctrl+V"), Icon("edit-paste"), CanPaste},
        // Not the toolkit's standard key for deleting, which includes Ctrl+D.
        {Delete, Keys("Del"), Icon("edit-delete"), TextOrEntriesSelected},
        {SelectAll, Keys("Ctrl+A"), Icon("edit-select-all")},
        {SetFlag, {}, Icon("ordelin-flag"), FlagsSelected},
        {ClearFlag, {}, Icon("ordelin-flag-clear"), FlagsSelected},
        {InvertFlag, {}, Icon("ordelin-flag-invert"), FlagsSelected},
        {InsertSynonym, Keys("F2"), Icon("ordelin-synonym"), InEditBox},
        {InsertComment, Keys("F4"), Icon("ordelin-comment"), InEditBox},
        {PlaceInsertionPoint, Keys("Ctrl+J"), Icon("ordelin-insertion-point"), OneRowSelected},
        {Previous, Keys("Ctrl+Up")},
        {Next, Keys("Ctrl+Down")},
        {Find, Keys("Ctrl+F"), Icon("edit-find")},
        {FindNext, Keys("F3")},

        {SortByLanguage1, {}, Icon("ordelin-sort-1"), ListHasTwoEntries},
        {SortByLanguage2, {}, Icon("ordelin-sort-2"), ListHasTwoEntries},
        {SortByNote, {}, Icon("ordelin-sort-3"), ListHasTwoEntries},
        {Descending, {}, {}, Always, Check},
        {GroupFlagged, {}, {}, Always, Check},
        {SortByLength, {}, {}, Always, Check},
        {Shuffle, {}, Icon("ordelin-shuffle"), ListHasTwoEntries},
        {MoveUp, Keys("F6"), Icon("go-up"), EntriesSelected},
        {MoveDown, Keys("Shift+F6"), Icon("go-down"), EntriesSelected},
        {MoveColumnUp, Keys("Ctrl+F6"), {}, EntriesSelected},
        {MoveColumnDown, Keys("Ctrl+Shift+F6"), {}, EntriesSelected},
        {MoveLeft, {}, Icon("go-previous"), EntriesSelected},
        {MoveRight, {}, Icon("go-next"), EntriesSelected},

        {FromLanguage1, {}, Icon("ordelin-direction-1"), Always, Radio},
        {FromLanguage2, {}, Icon("ordelin-direction-2"), Always, Radio},
        {CommandId::QuizSettings, Keys("Ctrl+Shift+F"), Icon("ordelin-quiz-settings")},

        {CommandId::StandardToolBar, {}, {}, Always, Check},
        {QuizToolBar, {}, {}, Always, Check},
        {StatusBar, {}, {}, Always, Check},
        {ShowEditFields, Keys("F11"), {}, Always, Check},
        {ShowWordNumber, Keys("F12"), {}, Always, Check},
        {ShowNotes, Keys("Shift+F12"), {}, Always, Check},
        {SpecialCharacters, Keys("F9"), Icon("ordelin-characters"), Always, Check},

        {FindDuplicates, Keys("Ctrl+D"), Icon("ordelin-duplicates"), ListHasTwoEntries},
        {MakeOneEntry, Keys("Ctrl+Shift+D"), {}, EntriesSelected},
        {MergeDuplicates, {}, Icon("ordelin-merge"), ListHasTwoEntries},
        {Import, Keys("Ctrl+I"), Icon("ordelin-import")},
        {FileSearch, {}, Icon("ordelin-file-search")},
        {TableGuide, Keys("Ctrl+P"), Icon("ordelin-table")},
        {Settings, {}, Icon("preferences-system")},

        {Help, Keys("F1"), Icon("help-contents")},
        {About, {}, Icon("help-about")},
    };
    AddQuizzes(table);
    return table;
}

}

const QList<Command> &commandTable()
{
    static const QList<Command> table = MakeTable();
    return table;
}
