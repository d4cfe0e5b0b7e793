// SPDX-License-Identifier: MIT
#include "shell/ui/file_menu_commands.h"

#include "document/file_commands.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

#include <QWidget>

using namespace CommandId;

CFileMenuCommands::CFileMenuCommands(CCommandActions &actions, CFileCommands &files, QWidget &mainWindow)
    : QObject(&mainWindow)
{
    actions.SetHandler(NewFile, [&files] { files.New(); });
    actions.SetHandler(OpenFile, [&files] { files.Open(); });
    actions.SetHandler(SaveFile, [&files] { files.Save(); });
    actions.SetHandler(SaveFileAs, [&files] { files.SaveAs(); });
    actions.SetHandler(SendMail, [&files] { files.Send(); });
    actions.SetHandler(Exit, [&mainWindow] { mainWindow.close(); });
}
