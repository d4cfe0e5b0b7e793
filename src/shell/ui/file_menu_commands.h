// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class CCommandActions;
class CFileCommands;
class QWidget;

/// The commands of the menu for files.
class CFileMenuCommands : public QObject
{
public:
    /// Nothing is owned; the main window is what the last of them closes.
    CFileMenuCommands(CCommandActions &actions, CFileCommands &files, QWidget &mainWindow);
};
