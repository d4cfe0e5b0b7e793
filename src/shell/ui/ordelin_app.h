// SPDX-License-Identifier: MIT
#pragma once

#include "document/file_commands.h"
#include "document/recent_files.h"
#include "document/recovery.h"
#include "document/ui/format_dialogs.h"
#include "document/win32_doc.h"
#include "platform/exit_signals.h"
#include "platform/random.h"
#include "platform/ui/desktop_sounds.h"
#include "platform/ui/file_dialog_chooser.h"
#include "platform/ui/label.h"
#include "platform/ui/message_box_prompt.h"
#include "resources/qt_texts.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "settings/settings_changes.h"
#include "shell/program_end.h"
#include "shell/start_up.h"

#include <QApplication>
#include <QSessionManager>

#include <memory>

class CHelpWindow;
class CMainFrame;
class CSpecialCharacterKeys;

/// The application: owns the settings, the texts, the document and the main window.
class COrdelinApp : public QApplication
{
    Q_OBJECT

public:
    /// `argc` and `argv` must outlive the application.
    COrdelinApp(int &argc, char **argv);
    ~COrdelinApp() override;

    /// The whole run of the program, from its start to its exit code. `file` is the command line's, empty for
    /// none; without one `newList` keeps the list of the last time from being opened again.
    int Run(const QString &file, bool newList);
    /// Its beginning: loads settings and language, opens what is to be opened and shows the main window.
    /// Returns false when the file named can't be opened, which ends the program.
    bool InitInstance(const QString &file, bool newList);
    /// Its end: saves the settings, after the event loop ended.
    void ExitInstance();
    CMainFrame &MainFrame() const { return *m_frame; }

protected:
    bool event(QEvent *event) override;

private:
    void MakeMainWindow();
    void ChooseLanguage();
    void AssociateFiles();
    void OpenHelp(const QString &section);
    /// The questions of a start, once the main window is shown.
    void Welcome();
    void SaveSettings();
    /// Ends the program without a question, for the system: unsaved changes stay in the copy for recovery.
    void ExitFromOutside();
    void SessionEnds(QSessionManager &manager);

    CPlainTextRule m_plainText;
    CTexts m_texts;
    CQtTexts m_qtTexts;
    CIniStore m_store;
    CAppSettings m_settings;
    CSettingsChanges m_settingsChanges;
    CStartUp m_startUp;
    QStringList m_dataFolders;
    CRandom m_random;
    CMessageBoxPrompt m_prompt;
    CFileDialogChooser m_chooser;
    CFormatDialogs m_formatDialogs{m_texts, [this](const QString &section) { OpenHelp(section); }};
    CSoundThread m_sounds{OpenDesktopSounds};
    CWin32Doc m_document;
    std::unique_ptr<CRecentFiles> m_recent;
    std::unique_ptr<CFileCommands> m_files;
    CRecovery m_recovery;
    CExitSignals m_exitSignals;
    std::unique_ptr<CSpecialCharacterKeys> m_specialCharacters;
    std::unique_ptr<CMainFrame> m_frame;
    std::unique_ptr<CHelpWindow> m_help;
    CProgramEnd m_end;
};
