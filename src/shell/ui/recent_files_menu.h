// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class CFileCommands;
class CRecentFiles;
class CTexts;
class QAction;
class QMenu;

/// The recent files in a menu: put in anew each time it opens.
class CRecentFilesMenu : public QObject
{
    Q_OBJECT

public:
    /// They stand in front of `behind`. Lives as long as the menu; nothing else is owned.
    CRecentFilesMenu(
        QMenu &menu, QAction *behind, CFileCommands &files, const CRecentFiles &recent, const CTexts &texts);

private:
    void Fill();
    QAction *Add(const QString &text);

    QMenu &m_menu;
    QAction *m_behind;
    CFileCommands &m_files;
    const CRecentFiles &m_recent;
    const CTexts &m_texts;
    QList<QAction *> m_actions;
};
