// SPDX-License-Identifier: MIT
#include "shell/ui/recent_files_menu.h"

#include "document/file_commands.h"
#include "document/recent_files.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"

#include <QMenu>

CRecentFilesMenu::CRecentFilesMenu(
    QMenu &menu, QAction *behind, CFileCommands &files, const CRecentFiles &recent, const CTexts &texts)
    : QObject(&menu), m_menu(menu), m_behind(behind), m_files(files), m_recent(recent), m_texts(texts)
{
    connect(&menu, &QMenu::aboutToShow, this, &CRecentFilesMenu::Fill);
    Fill();
}

QAction *CRecentFilesMenu::Add(const QString &text)
{
    auto *action = new QAction(text, &m_menu);
    m_menu.insertAction(m_behind, action);
    m_actions.append(action);
    return action;
}

void CRecentFilesMenu::Fill()
{
    qDeleteAll(m_actions);
    m_actions.clear();
    const QStringList names = m_recent.Names();
    for (const QString &path : m_recent.Paths()) {
        const QString name = Isolated(ShownInCaption(names.at(m_actions.size())));
        QAction *const action = Add(QStringLiteral("&%1 %2").arg(m_actions.size() + 1).arg(name));
        action->setStatusTip(path);
        // From the event loop: opening fills this menu anew.
        connect(
            action, &QAction::triggered, this, [this, path] { m_files.OpenRecent(path); },
            Qt::QueuedConnection);
    }
    if (m_actions.isEmpty()) {
        Add(m_texts.Get(Text::NoRecentFiles))->setEnabled(false);
    }
}
