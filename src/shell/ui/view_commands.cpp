// SPDX-License-Identifier: MIT
#include "shell/ui/view_commands.h"

#include "editor/ui/win32_view.h"
#include "platform/ui/wait_cursor.h"
#include "settings/editor_settings.h"
#include "settings/settings_changes.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/special_character_keys.h"

#include <QMainWindow>
#include <QStatusBar>
#include <QToolBar>

using namespace CommandId;

CViewCommands::CViewCommands(CCommandActions &actions, const ViewCommandServices &services, QObject *parent)
    : QObject(parent)
{
    const auto showHide = [&actions](int command, QWidget *bar) {
        actions.SetHandler(
            command, [bar] { bar->setVisible(bar->isHidden()); }, [bar] { return !bar->isHidden(); });
    };
    showHide(
        CommandId::StandardToolBar, services.window.findChild<QToolBar *>(QStringLiteral("standardToolBar")));
    showHide(CommandId::QuizToolBar, services.window.findChild<QToolBar *>(QStringLiteral("quizToolBar")));
    showHide(StatusBar, services.window.statusBar());

    for (const auto &[command, setting] : {std::pair(ShowWordNumber, &EditorSettings::showWordNumber),
             {ShowNotes, &EditorSettings::showNotes}, {ShowEditFields, &EditorSettings::showEditFields}}) {
        bool &value = services.settings.*setting;
        actions.SetHandler(
            command,
            [&value, services, numbers = command == ShowWordNumber] {
                const CWaitCursor wait;
                value = !value;
                services.settingsChanges.Tell(SettingsSection::Editor);
                if (numbers) {
                    services.view.SetCursorField(0);
                }
            },
            [&value] { return value; });
    }
    CSpecialCharacterKeys &characters = services.specialCharacters;
    actions.SetHandler(
        SpecialCharacters, [&characters] { characters.Toggle(); },
        [&characters] { return characters.IsOpen(); });
}
