// SPDX-License-Identifier: MIT
#pragma once

#include "document/file_commands.h"
#include "document/win32_doc.h"
#include "platform/random.h"
#include "platform/ui/file_dialog_chooser.h"
#include "platform/ui/message_box_prompt.h"
#include "resources/qt_texts.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"
#include "settings/quiz_settings.h"

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

    /// Opens what the command line names and shows the main window. Returns 0, or the exit code of a wrong
    /// command line, which is then told on standard error.
    int InitInstance();
    CMainFrame *MainFrame() const { return m_frame.get(); }

private:
    CTexts m_texts;
    CQtTexts m_qtTexts;
    EditorSettings m_editorSettings;
    QuizSettings m_quizSettings;
    CRandom m_random;
    CMessageBoxPrompt m_prompt;
    CFileDialogChooser m_chooser;
    CWin32Doc m_document;
    CFileCommands m_files;
    std::unique_ptr<CMainFrame> m_frame;
};
