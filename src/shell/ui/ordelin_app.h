// SPDX-License-Identifier: MIT
#pragma once

#include "document/file_commands.h"
#include "document/recent_files.h"
#include "document/recovery.h"
#include "document/win32_doc.h"
#include "platform/random.h"
#include "platform/ui/file_dialog_chooser.h"
#include "platform/ui/message_box_prompt.h"
#include "resources/qt_texts.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"

#include <QApplication>

#include <memory>

class CMainFrame;

/// The application: owns the settings, the texts, the document and the main window.
class COrdelinApp : public QApplication
{
    Q_OBJECT

public:
    /// `argc` and `argv` must outlive the application.
    COrdelinApp(int &argc, char **argv);
    ~COrdelinApp() override;

    /// Loads the settings, opens what the command line names and shows the main window. Returns 0, or the exit
    /// code of a wrong command line, which is then told on standard error.
    int InitInstance();
    /// Saves the settings, after the event loop ended.
    void ExitInstance();
    CMainFrame *MainFrame() const { return m_frame.get(); }

private:
    CTexts m_texts;
    CQtTexts m_qtTexts;
    CIniStore m_store;
    CAppSettings m_settings;
    CRandom m_random;
    CMessageBoxPrompt m_prompt;
    CFileDialogChooser m_chooser;
    CWin32Doc m_document;
    CRecentFiles m_recent;
    CFileCommands m_files;
    CRecovery m_recovery;
    std::unique_ptr<CMainFrame> m_frame;
};
