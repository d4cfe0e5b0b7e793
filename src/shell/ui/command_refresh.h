// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class CCommandActions;
class CEditCommands;
class CSettingsChanges;
class CSpecialCharacterKeys;
class CWin32Doc;
class QMainWindow;

/// What the commands depend on; none of it is owned.
struct CommandSources
{
    CCommandActions &actions;
    const CEditCommands &editCommands;
    const CWin32Doc &document;
    const CSettingsChanges &settingsChanges;
    const CSpecialCharacterKeys &specialCharacters;
    QMainWindow &window;
};

/// Listens to all that decides which commands can be chosen, which are marked and what they are called, and
/// refreshes them. Nobody else does.
class CCommandRefresh : public QObject
{
    Q_OBJECT

public:
    /// Make it when all handlers are set and the bars are there.
    CCommandRefresh(const CommandSources &sources, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Refresh();

    CommandSources m_sources;
};
