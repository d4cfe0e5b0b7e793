// SPDX-License-Identifier: MIT
#pragma once

#include "document/file_watch.h"
#include "editor/arranging.h"
#include "quiz/quiz_host.h"
#include "settings/quiz_settings.h"
#include "shell/ui/window_place.h"

#include <QDate>
#include <QMainWindow>

#include <functional>
#include <optional>

class CCommandActions;
class CEditCommands;
class CElidedLabel;
class CFileCommands;
class CFileToolsCommands;
class CQuizLaunch;
class CRandom;
class CRecentFiles;
class CSettingsChanges;
class CSpecialCharacterKeys;
class CTexts;
class CWin32Doc;
class CWin32View;
class CWordList;
class IFileChooser;
class IFormatDialogs;
class ISoundPlayer;
class IUserPrompt;
struct Command;
struct Settings;

/// What the main window is handed; none of it is owned.
struct FrameServices
{
    CWin32Doc &document;
    CFileCommands &files;
    const CRecentFiles &recent;
    const CTexts &texts;
    Settings &settings;
    CSettingsChanges &settingsChanges;
    IUserPrompt &prompt;
    IFileChooser &chooser;
    IFormatDialogs &formatDialogs;
    ISoundPlayer &sounds;
    CRandom &random;
    /// Where the window's place is kept, below the path of sections `root`.
    ISettingsStore &store;
    QString root;
    CSpecialCharacterKeys &specialCharacters;
    /// Opens the help at a section, by the name of its anchor.
    std::function<void(const QString &section)> openHelp;
    std::function<QDate()> today = {};
    // For the window of settings; see SettingsFormServices.
    std::function<bool()> resetSettings = {};
    std::function<void()> chooseLanguage = {};
    std::function<void()> associateFiles = {};
    /// What comes with the program is looked for in these.
    QStringList dataFolders = {};
    // For the table wizard; see TableGuideServices.
    QString pageFolder = {};
    std::function<void(const QString &file, std::function<void()> failed)> openFile = {};
};

/// The main window: menus, tool bars and status line around the view. It hands every command on.
class CMainFrame : public QMainWindow, public IQuizHost
{
    Q_OBJECT

public:
    explicit CMainFrame(const FrameServices &services);
    ~CMainFrame() override;

    /// Shows the window where and how it was when it was closed last.
    void ShowAsBefore();
    /// Stores what is being typed, at an end that leaves no time for questions.
    void FinishQuietly();
    /// The list with what is typed and no entry yet.
    CWordList ListWithTyped() const;
    /// Notes where the window stands; the settings are written at the program's end.
    void SavePlace();

    std::vector<int> SelectedEntries() const override;
    void SelectEntries(const std::vector<int> &entries) override;
    void ShowMainWindow(bool show) override;
    void FocusList() override;
    void ShowHelp(const QString &section) override;

Q_SIGNALS:
    /// The window was closed and nothing stands against ending the program.
    void Closed();
    /// What is typed and no entry yet is another.
    void TypedChanged();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void MakeMenus();
    QToolBar *MakeToolBar(const QString &title, const char *name, const QList<int> &commands);
    void ConnectCommands();
    /// What becomes of an open edit before a command is carried out.
    void PrepareCommand(const Command &command);
    void UseFonts();
    void ShowTitle();
    /// A menu of the commands that a list names.
    void ShowMenu(const QList<int> &commands, const QPoint &place);
    void OpenDropped(const QStringList &paths);
    void Moved();
    void LookAtFile();

    FrameServices m_services;
    CCommandActions *m_actions;
    CWin32View *m_view;
    CArranging m_arranging;
    CFileWatch m_fileWatch;
    CEditCommands *m_editCommands;
    CFileToolsCommands *m_fileToolsCommands = nullptr;
    CElidedLabel *m_statusText;
    CQuizLaunch *m_quizLaunch;
    CWindowPlace m_place;
    QByteArray m_geometry; // While a quiz hides the window.
};
