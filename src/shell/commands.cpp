// SPDX-License-Identifier: MIT
#include "shell/commands.h"

#include "resources/text_numbers.h"

using namespace CommandId;

bool isEnabled(EnabledRule rule, const CommandState &state)
{
    switch (rule) {
    case EnabledRule::Always:
        return true;
    case EnabledRule::ListHasEntries:
        return state.listHasEntries;
    case EnabledRule::CanUndo:
        return state.canUndo;
    case EnabledRule::CanRedo:
        return state.canRedo;
    }
    return false;
}

const QList<Command> &commandTable()
{
    static const QList<Command> table = {
        {NewFile, {QStringLiteral("Ctrl+N")}, QStringLiteral("document-new")},
        {OpenFile, {QStringLiteral("Ctrl+O")}, QStringLiteral("document-open")},
        {SaveFile, {QStringLiteral("Ctrl+S")}, QStringLiteral("document-save")},
        {SaveFileAs, {QStringLiteral("Ctrl+Shift+S")}, QStringLiteral("document-save-as")},
        {SendMail, {}, QStringLiteral("mail-send")},
        {Exit, {QStringLiteral("Ctrl+Q")}, QStringLiteral("application-exit")},
        {Undo, {QStringLiteral("Ctrl+Z")}, QStringLiteral("edit-undo"), EnabledRule::CanUndo},
        {Redo, {QStringLiteral("Ctrl+Y"), QStringLiteral("Ctrl+Shift+Z")}, QStringLiteral("edit-redo"),
            EnabledRule::CanRedo},
        // Ctrl+Alt+F1 never arrives where it switches the virtual console, so the digit is the one shown.
        {StandardQuiz, {QStringLiteral("Ctrl+Alt+1"), QStringLiteral("Ctrl+Alt+F1")},
            QStringLiteral("ordelin-quiz"), EnabledRule::ListHasEntries},
        {About, {}, QStringLiteral("help-about")},
    };
    return table;
}

const QList<CommandMenu> &commandMenus()
{
    static const QList<CommandMenu> menus = {
        {Text::FileMenu,
            {NewFile, OpenFile, SaveFile, SaveFileAs, Separator, SendMail, Separator, RecentFiles, Separator,
                Exit}},
        {Text::EditMenu, {Undo, Redo}},
        {Text::QuizMenu, {StandardQuiz}},
        {Text::HelpMenu, {About}},
    };
    return menus;
}

const QList<int> &standardToolBar()
{
    static const QList<int> bar = {NewFile, OpenFile, SaveFile, Separator, Undo, Redo, Separator, StandardQuiz};
    return bar;
}
