// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_host.h"

#include <QMainWindow>

class CCommandActions;
class CElidedLabel;
class CFileCommands;
class CQuizLaunch;
class CRandom;
class CRecentFiles;
class CTexts;
class CWin32Doc;
class CWin32View;
class IUserPrompt;
struct EditorSettings;
struct QuizSettings;

/// What the main window is handed; none of it is owned.
struct FrameServices
{
    CWin32Doc &document;
    CFileCommands &files;
    const CRecentFiles &recent;
    const CTexts &texts;
    const EditorSettings &editorSettings;
    const QuizSettings &quizSettings;
    IUserPrompt &prompt;
    CRandom &random;
};

/// The main window: menus, tool bar and status line around the view. It hands every command on.
class CMainFrame : public QMainWindow, public IQuizHost
{
    Q_OBJECT

public:
    explicit CMainFrame(const FrameServices &services);
    ~CMainFrame() override;

    CWin32View &View() const { return *m_view; }

    std::vector<int> SelectedEntries() const override;
    void SelectEntries(const std::vector<int> &entries) override;
    void ShowMainWindow(bool show) override;

Q_SIGNALS:
    /// The window was closed and nothing stands against ending the program.
    void Closed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void MakeMenus();
    void ConnectCommands();
    void Refresh();
    void UpdateCommands();
    void Undo();
    void Redo();
    /// Puts the recent files into the File menu anew, each time it opens.
    void FillRecentFiles(QMenu &menu);

    FrameServices m_services;
    CCommandActions *m_actions;
    CWin32View *m_view;
    CElidedLabel *m_statusText;
    CQuizLaunch *m_quizLaunch;
    QList<QAction *> m_recentActions;
    QAction *m_behindRecent = nullptr;
    QByteArray m_geometry; // While a quiz hides the window.
};
