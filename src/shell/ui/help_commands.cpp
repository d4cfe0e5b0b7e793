// SPDX-License-Identifier: MIT
#include "shell/ui/help_commands.h"

#include "shell/commands.h"
#include "shell/ui/about_dialog.h"
#include "shell/ui/command_actions.h"

CHelpCommands::CHelpCommands(
    CCommandActions &actions, const CTexts &texts, std::function<void()> openHelp, QWidget &mainWindow)
    : QObject(&mainWindow)
{
    actions.SetHandler(CommandId::Help, std::move(openHelp));
    actions.SetHandler(CommandId::About, [&texts, &mainWindow] {
        auto *dialog = new CAboutDialog(texts, &mainWindow);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
}
