// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The commands of the program by their ids; those of quizzes stand in the rows of their kinds.
namespace CommandId {

enum : int {
    Separator = 0,
    /// Where the recent files stand in a menu.
    RecentFiles = 1,
    Previous = 32776,
    Next = 32777,
    Delete = 32781,
    SetFlag = 32783,
    ClearFlag = 32784,
    InvertFlag = 32785,
    InsertSynonym = 32787,
    InsertComment = 32788,
    MoveUp = 32790,
    MoveDown = 32791,
    MoveColumnUp = 32792,
    MoveColumnDown = 32793,
    MoveRight = 32794,
    MoveLeft = 32795,
    FindNext = 32796,
    CopyLanguage1 = 32797,
    CopyLanguage2 = 32798,
    CopyNotes = 32799,
    Shuffle = 32800,
    SortByLanguage1 = 32801,
    SortByLanguage2 = 32802,
    SortByNote = 32803,
    GroupFlagged = 32804,
    Descending = 32805,
    SortByLength = 32806,
    ShowWordNumber = 32830,
    ShowEditFields = 32832,
    FindDuplicates = 32840,
    MakeOneEntry = 32841,
    MergeDuplicates = 32846,
    QuizSettings = 32850,
    ShowNotes = 32870,
    FromLanguage1 = 32879,
    FromLanguage2 = 32880,
    PlaceInsertionPoint = 32881,
    Properties = 33001,
    SpecialCharacters = 33002,
    Import = 33003,
    FileSearch = 33004,
    TableGuide = 33005,
    Settings = 33006,
    DictionaryList = 33007,
    NewFile = 57600,
    OpenFile = 57601,
    SaveFile = 57603,
    SaveFileAs = 57604,
    SendMail = 57612,
    Copy = 57634,
    Cut = 57635,
    Find = 57636,
    Paste = 57637,
    PasteSpecial = 57639,
    SelectAll = 57642,
    Undo = 57643,
    Redo = 57644,
    About = 57664,
    Exit = 57665,
    Help = 57670,
    /// The bars of the main window.
    StandardToolBar = 0xE800,
    StatusBar = 0xE801,
    QuizToolBar = 0xE80A,
};

}

/// When a command can be chosen.
enum class EnabledRule {
    Always,
    ListHasTwoEntries,
    EntriesSelected,
    /// Entries, and the cell cursor stands in a language.
    FlagsSelected,
    OneRowSelected,
    /// Text in the edit box that has the focus, where one has; else entries.
    TextOrEntriesSelected,
    /// The same, or a text of the entry to come that the cell cursor stands on.
    CanDelete,
    /// An edit box has the focus, or there are entries.
    TextOrEntries,
    InEditBox,
    CanPaste,
    CanPasteSpecial,
    CanUndo,
    CanRedo
};

/// What the enabled rules look at.
struct CommandState
{
    int entries = 0;
    int selectedEntries = 0;
    /// The new-entry row counted.
    int selectedRows = 0;
    /// 0 and 1 are the languages, 2 the note.
    int cursorColumn = 0;
    /// The cell cursor stands on a text that is no entry yet.
    bool onPendingText = false;
    bool inEditBox = false;
    bool textSelected = false;
    bool canPaste = false;
    bool canPasteSpecial = false;
    /// In the edit box that has the focus, where one has; else in the list.
    bool canUndo = false;
    bool canRedo = false;
};

enum class CommandKind { Plain, Check, Radio };

/// What becomes of an edit that is open in the list when a command begins.
enum class OpenEditRule {
    Stored,
    Cancelled,
    Left,
    /// Left where the command acts on the text of its edit box, else stored.
    LeftInEditBox
};

/// One command. Its caption is the text 100000 + id, with "%1" and "%2" for the names of the languages; its
/// status line and tool tip are the two lines of the text id.
struct Command
{
    int id = 0;
    /// In the toolkit's portable form; the caption shows the first one in the words of its language.
    QStringList shortcuts = {};
    /// The file name of the icon without its suffix; empty for none.
    QString icon = {};
    EnabledRule enabled = EnabledRule::Always;
    CommandKind kind = CommandKind::Plain;
    OpenEditRule openEdit = OpenEditRule::Stored;
    /// The fewest entries that the list must have, beside the rule.
    int minimumEntries = 0;
};

bool IsCommandEnabled(const Command &command, const CommandState &state);

/// The table of all commands.
const QList<Command> &CommandTable();
/// The command of an id that stands in the table.
const Command &CommandOf(int id);

/// A menu: its title's text number, and the ids of its commands with Separator between groups. A number that
/// IsSubmenu() is the title of one of the CommandSubmenus().
struct CommandMenu
{
    int title = 0;
    QList<int> commands = {};
};
/// The menu bar.
const QList<CommandMenu> &CommandMenus();
const QList<CommandMenu> &CommandSubmenus();
bool IsSubmenu(int id);

/// The context menus of the list's rows and of its column headers: parts of the menus, likewise.
QList<int> RowMenuCommands();
QList<int> ColumnMenuCommands();

/// The commands of the tool bars, likewise.
const QList<int> &StandardToolBarCommands();
const QList<int> &QuizToolBarCommands();

/// A caption with the names of the languages filled in; what stands in a name is shown as it is.
QString FillCaption(const QString &caption, const QString &language1, const QString &language2);
