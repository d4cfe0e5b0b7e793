// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class CCommandActions;
class CSettingsChanges;
class CSpecialCharacterKeys;
class CWin32View;
class QMainWindow;
struct EditorSettings;

/// What the commands of the menu for what is shown work on; none of it is owned.
struct ViewCommandServices
{
    /// With the tool bars "standardToolBar" and "quizToolBar", and a status bar.
    QMainWindow &window;
    CWin32View &view;
    EditorSettings &settings;
    CSettingsChanges &settingsChanges;
    CSpecialCharacterKeys &specialCharacters;
};

/// The commands of the menu that shows and hides bars, columns and the special characters.
class CViewCommands : public QObject
{
public:
    CViewCommands(CCommandActions &actions, const ViewCommandServices &services, QObject *parent);
};
