// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ui/file_tool_services.h"

#include <QObject>
#include <QPointer>

class CCommandActions;
class CFileCommands;
class CFileSearchWindow;
class CImportDialog;
class CSettingsChanges;
class QWidget;

/// The commands that import files and look for them, and their windows. The window of the search is hidden and
/// shown with the main window.
class CFileToolsCommands : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned. `frame` becomes the owner of the windows.
    CFileToolsCommands(CCommandActions &actions, CFileCommands &files, FileToolServices services,
        const CSettingsChanges &settingsChanges, QWidget &frame);

    /// Stops an import and waits for it: what was imported is in the list then.
    void FinishQuietly();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void OpenImport(const QStringList &files);
    void OpenSearch();

    CCommandActions &m_actions;
    CFileCommands &m_files;
    FileToolServices m_services;
    QWidget &m_frame;
    QPointer<CImportDialog> m_import;
    QPointer<CFileSearchWindow> m_search;
};
