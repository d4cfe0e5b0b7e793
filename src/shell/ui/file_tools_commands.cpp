// SPDX-License-Identifier: MIT
#include "shell/ui/file_tools_commands.h"

#include "document/file_commands.h"
#include "settings/settings_changes.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"
#include "tools/ui/file_search_window.h"
#include "tools/ui/import_dialog.h"

#include <QEvent>

CFileToolsCommands::CFileToolsCommands(CCommandActions &actions, CFileCommands &files,
    FileToolServices services, const CSettingsChanges &settingsChanges, QWidget &frame)
    : QObject(&frame), m_actions(actions), m_files(files), m_services(std::move(services)), m_frame(frame)
{
    actions.SetHandler(CommandId::Import, [this] { OpenImport({}); });
    actions.SetHandler(CommandId::FileSearch, [this] { OpenSearch(); });
    connect(&settingsChanges, &CSettingsChanges::Changed, this, [this](SettingsSection section) {
        if (section == SettingsSection::FileSearch && m_search != nullptr) {
            m_search->ShowSettings();
        }
    });
    frame.installEventFilter(this);
}

void CFileToolsCommands::FinishQuietly()
{
    if (m_import != nullptr) {
        m_import->Finish();
    }
}

void CFileToolsCommands::OpenImport(const QStringList &files)
{
    m_import = new CImportDialog(m_services, &m_frame);
    m_import->setAttribute(Qt::WA_DeleteOnClose);
    m_import->AddFiles(files);
    m_import->open();
}

void CFileToolsCommands::OpenSearch()
{
    if (m_search == nullptr) {
        m_search = new CFileSearchWindow(m_services, CFileSearchWindow::Purpose::OpenOrImport, &m_frame);
        connect(m_search, &CFileSearchWindow::FileWanted, this, [this](const QString &path) {
            if (m_files.OpenFile(path)) {
                m_frame.activateWindow();
            }
        });
        // As by the command, so that an open edit is in the list before.
        connect(m_search, &CFileSearchWindow::FilesChosen, this, [this](const QStringList &files) {
            m_actions.Run(CommandId::Import, [this, &files] { OpenImport(files); });
        });
    }
    m_search->Present();
}

bool CFileToolsCommands::eventFilter(QObject *watched, QEvent *event)
{
    // A quiz hides the main window.
    if (watched == &m_frame && m_search != nullptr
        && (event->type() == QEvent::Hide || event->type() == QEvent::Show) && !event->spontaneous()) {
        m_search->setAttribute(Qt::WA_ShowWithoutActivating); // Who comes back from a quiz is in the list.
        m_search->setVisible(event->type() == QEvent::Show);
        m_search->setAttribute(Qt::WA_ShowWithoutActivating, false);
    }
    return QObject::eventFilter(watched, event);
}
