// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class CFileCommands;
class CTexts;
class QMenu;

/// Fills a menu with the word lists that come with the program, each time it opens. One that is chosen is
/// opened as a list without a file, since it lies where the user can't save.
class CSamplesMenu : public QObject
{
    Q_OBJECT

public:
    /// Lives as long as the menu; nothing else is owned.
    CSamplesMenu(QMenu &menu, CFileCommands &files, QStringList dataFolders, const CTexts &texts);

private:
    void Fill();

    QMenu &m_menu;
    CFileCommands &m_files;
    QStringList m_dataFolders;
    const CTexts &m_texts;
};
