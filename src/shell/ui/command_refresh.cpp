// SPDX-License-Identifier: MIT
#include "shell/ui/command_refresh.h"

#include "document/win32_doc.h"
#include "settings/settings_changes.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/edit_commands.h"
#include "shell/ui/special_character_keys.h"

#include <QEvent>
#include <QMainWindow>
#include <QStatusBar>
#include <QToolBar>

CCommandRefresh::CCommandRefresh(const CommandSources &sources, QObject *parent)
    : QObject(parent), m_sources(sources)
{
    connect(&sources.document, &CWin32Doc::Changed, this, &CCommandRefresh::Refresh);
    connect(&sources.settingsChanges, &CSettingsChanges::Changed, this, &CCommandRefresh::Refresh);
    connect(&sources.editCommands, &CEditCommands::StateChanged, this, &CCommandRefresh::Refresh);
    connect(&sources.actions, &CCommandActions::CommandDone, this, &CCommandRefresh::Refresh);
    connect(&sources.specialCharacters, &CSpecialCharacterKeys::OpenChanged, this, &CCommandRefresh::Refresh);
    sources.window.statusBar()->installEventFilter(this);
    for (QToolBar *const bar : sources.window.findChildren<QToolBar *>()) {
        bar->installEventFilter(this);
    }
    Refresh();
}

bool CCommandRefresh::eventFilter(QObject * /*watched*/, QEvent *event)
{
    // A bar that is hidden or shown, also while its window is not there to be seen.
    if (event->type() == QEvent::HideToParent || event->type() == QEvent::ShowToParent) {
        Refresh();
    }
    return false;
}

void CCommandRefresh::Refresh()
{
    const CWordList &list = m_sources.document.List();
    m_sources.actions.Update(m_sources.editCommands.State());
    m_sources.actions.UpdateCaptions(list.GetLanguage(0), list.GetLanguage(1));
}
