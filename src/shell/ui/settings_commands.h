// SPDX-License-Identifier: MIT
#pragma once

#include "shell/settings_form.h"

#include <QObject>
#include <QStringList>

class CCommandActions;
class CWin32Doc;
class IFileChooser;
class ISoundPlayer;
class QWidget;

/// The commands that open the windows of settings, of quiz settings and of a list's properties.
class CSettingsCommands : public QObject
{
public:
    /// What the windows are handed; none of it is owned. `form` lacks the way to the quiz settings, which
    /// this class knows itself.
    struct Services
    {
        CWin32Doc &document;
        SettingsFormServices form;
        IFileChooser &chooser;
        ISoundPlayer &sounds;
        QStringList dataFolders;
    };

    CSettingsCommands(CCommandActions &actions, Services services, QWidget &mainWindow);

private:
    void OpenSettings();
    void OpenQuizSettings();
    void OpenProperties();

    Services m_services;
    QWidget &m_mainWindow;
};
