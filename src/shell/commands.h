// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The commands of the program by their ids.
namespace CommandId {

enum : int {
    Separator = 0,
    /// Where the recent files stand in a menu.
    RecentFiles = 1,
    StandardQuiz = 32855,
    NewFile = 57600,
    OpenFile = 57601,
    SaveFile = 57603,
    SaveFileAs = 57604,
    SendMail = 57612,
    Undo = 57643,
    Redo = 57644,
    About = 57664,
    Exit = 57665,
};

}

/// When a command can be chosen.
enum class EnabledRule { Always, ListHasEntries, CanUndo, CanRedo };

/// What the enabled rules look at.
struct CommandState
{
    bool listHasEntries = false;
    /// In the edit box that has the focus, where one has; else in the list.
    bool canUndo = false;
    bool canRedo = false;
};

bool isEnabled(EnabledRule rule, const CommandState &state);

/// One command. Its caption is the text 100000 + id; its status line and tool tip are the two lines of the text
/// id.
struct Command
{
    int id = 0;
    /// In the toolkit's portable form; the caption shows the first one.
    QStringList shortcuts;
    /// The icon's name in desktop themes; empty for none.
    QString icon;
    EnabledRule enabled = EnabledRule::Always;
};

/// The table of all commands.
const QList<Command> &commandTable();

/// A menu of the menu bar: its title's text number, and the ids of its commands with Separator between groups.
struct CommandMenu
{
    int title = 0;
    QList<int> commands;
};
const QList<CommandMenu> &commandMenus();

/// The commands of the tool bar, likewise.
const QList<int> &standardToolBar();
