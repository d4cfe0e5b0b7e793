// SPDX-License-Identifier: MIT
#include "shell/commands.h"

#include "platform/plain_text.h"
#include "quiz/quiz_kinds.h"
#include "resources/placeholders.h"
#include "shell/text_numbers.h"

#include <algorithm>

using namespace CommandId;

namespace {

bool Holds(EnabledRule rule, const CommandState &state)
{
    switch (rule) {
    case EnabledRule::Always:
        return true;
    case EnabledRule::ListHasTwoEntries:
        return state.entries > 1;
    case EnabledRule::EntriesSelected:
        return state.selectedEntries > 0;
    case EnabledRule::FlagsSelected:
        return state.selectedEntries > 0 && (state.cursorColumn == 0 || state.cursorColumn == 1);
    case EnabledRule::OneRowSelected:
        return state.selectedRows == 1;
    case EnabledRule::TextOrEntriesSelected:
        return state.inEditBox ? state.textSelected : state.selectedEntries > 0;
    case EnabledRule::CanDelete:
        return state.inEditBox ? state.textSelected : state.selectedEntries > 0 || state.onPendingText;
    case EnabledRule::TextOrEntries:
        return state.inEditBox || state.entries > 0;
    case EnabledRule::InEditBox:
        return state.inEditBox;
    case EnabledRule::CanPaste:
        return state.canPaste;
    case EnabledRule::CanPasteSpecial:
        return state.canPasteSpecial;
    case EnabledRule::CanUndo:
        return state.canUndo;
    case EnabledRule::CanRedo:
        return state.canRedo;
    }
    return false;
}

QList<int> QuizCommands()
{
    QList<int> commands;
    for (const QuizKindRow &row : quizKinds()) {
        commands.append(row.command);
    }
    return commands;
}

}

bool IsCommandEnabled(const Command &command, const CommandState &state)
{
    return state.entries >= command.minimumEntries && Holds(command.enabled, state);
}

const QList<CommandMenu> &CommandMenus()
{
    static const QList<CommandMenu> menus = {
        {Text::FileMenu,
            {NewFile, OpenFile, Text::SamplesMenu, SaveFile, SaveFileAs, Separator, Properties, SendMail,
                Separator, RecentFiles, Separator, Exit}},
        {Text::EditMenu,
            {Undo, Redo, Separator, Cut, Copy, Text::CopySpecialMenu, Paste, PasteSpecial, Delete, SelectAll,
                Separator, Text::FlagsMenu, Separator, InsertSynonym, InsertComment, PlaceInsertionPoint,
                Separator, Previous, Next, Separator, Find, FindNext}},
        {Text::ArrangeMenu, {Text::SortMenu, Shuffle, Separator, Text::MoveMenu}},
        {Text::QuizMenu,
            QuizCommands()
                + QList<int>{Separator, FromLanguage1, FromLanguage2, Separator, CommandId::QuizSettings}},
        {Text::ViewMenu,
            {CommandId::StandardToolBar, QuizToolBar, StatusBar, Separator, ShowEditFields, ShowWordNumber,
                ShowNotes, Separator, SpecialCharacters}},
        {Text::ToolsMenu,
            {FindDuplicates, MakeOneEntry, MergeDuplicates, Separator, Import, DictionaryList, FileSearch,
                TableGuide, Separator, Settings}},
        {Text::HelpMenu, {Help, Separator, About}},
    };
    return menus;
}

const QList<CommandMenu> &CommandSubmenus()
{
    static const QList<CommandMenu> menus = {
        {Text::SamplesMenu, {}}, // What is installed; see CSamplesMenu.
        {Text::CopySpecialMenu, {CopyLanguage1, CopyLanguage2, CopyNotes}},
        {Text::FlagsMenu, {SetFlag, ClearFlag, InvertFlag}},
        {Text::SortMenu,
            {SortByLanguage1, SortByLanguage2, SortByNote, Separator, Descending, GroupFlagged, SortByLength}},
        {Text::MoveMenu, {MoveUp, MoveDown, MoveColumnUp, MoveColumnDown, Separator, MoveLeft, MoveRight}},
    };
    return menus;
}

namespace {

/// The commands of a menu from one to another.
QList<int> PartOfMenu(int title, int first, int last)
{
    const QList<int> &commands = std::ranges::find(CommandMenus(), title, &CommandMenu::title)->commands;
    const qsizetype start = commands.indexOf(first);
    return commands.mid(start, commands.indexOf(last) - start + 1);
}

}

QList<int> RowMenuCommands()
{
    return PartOfMenu(Text::EditMenu, Undo, PlaceInsertionPoint);
}

QList<int> ColumnMenuCommands()
{
    return PartOfMenu(Text::ViewMenu, ShowEditFields, ShowNotes);
}

bool IsSubmenu(int id)
{
    return std::ranges::find(CommandSubmenus(), id, &CommandMenu::title) != CommandSubmenus().end();
}

const QList<int> &StandardToolBarCommands()
{
    static const QList<int> bar = {NewFile, OpenFile, SaveFile, Separator, Cut, Copy, Paste, Delete, Separator,
        Undo, Redo, Separator, Find, Separator, SetFlag, InvertFlag, Separator,
        quizKindRow(QuizKind::Standard).command, CommandId::QuizSettings, Separator, Help};
    return bar;
}

const QList<int> &QuizToolBarCommands()
{
    static const QList<int> bar = QuizCommands()
        + QList<int>{Separator, FromLanguage1, FromLanguage2, Separator, CommandId::QuizSettings, Separator,
            SortByLanguage1, SortByLanguage2, Shuffle, Separator, MoveUp, MoveDown};
    return bar;
}

QString FillCaption(const QString &caption, const QString &language1, const QString &language2)
{
    return FillPlaceholders(caption,
        {{QStringLiteral("%1"), ShownInCaption(language1)}, {QStringLiteral("%2"), ShownInCaption(language2)}},
        FilledFor::Screen);
}
