// SPDX-License-Identifier: MIT
#include "shell/ui/main_frame.h"

#include "document/file_commands.h"
#include "document/recent_files.h"
#include "document/win32_doc.h"
#include "editor/clipboard_data.h"
#include "editor/ui/term_suggestions.h"
#include "editor/ui/win32_view.h"
#include "games/ui/game_windows.h"
#include "platform/plain_text.h"
#include "platform/ui/elided_label.h"
#include "quiz/ui/quiz_launch.h"
#include "resources/texts.h"
#include "settings/settings.h"
#include "settings/settings_changes.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"
#include "shell/ui/arrange_commands.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/command_menus.h"
#include "shell/ui/command_refresh.h"
#include "shell/ui/dictionary_list_command.h"
#include "shell/ui/edit_commands.h"
#include "shell/ui/file_menu_commands.h"
#include "shell/ui/file_tools_commands.h"
#include "shell/ui/find_commands.h"
#include "shell/ui/help_commands.h"
#include "shell/ui/menu_bar_focus.h"
#include "shell/ui/quiz_commands.h"
#include "shell/ui/recent_files_menu.h"
#include "shell/ui/samples_menu.h"
#include "shell/ui/settings_commands.h"
#include "shell/ui/special_character_keys.h"
#include "shell/ui/table_command.h"
#include "shell/ui/tools_commands.h"
#include "shell/ui/user_fonts.h"
#include "shell/ui/view_commands.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace {

/// Paths of files; of what is no file the address, which opening tells of.
QStringList DroppedOn(const QMimeData &data)
{
    const QStringList files = FilesFromData(data);
    return files.isEmpty() && data.hasUrls() ? QUrl::toStringList(data.urls()) : files;
}

}

CMainFrame::CMainFrame(const FrameServices &services)
    : m_services(services), m_actions(new CCommandActions(services.texts, this)),
      m_view(new CWin32View(
          {services.document, services.settings, services.settingsChanges, services.texts, services.prompt},
          this)),
      m_arranging(*m_view, services.document, services.settings.arrange, services.random),
      m_fileWatch(services.document, services.files, services.texts, services.prompt),
      m_editCommands(new CEditCommands(*m_actions, *m_view, services.document, m_arranging, services.texts,
          services.prompt, services.formatDialogs, this)),
      m_statusText(new CElidedLabel(this)),
      m_quizLaunch(
          new CQuizLaunch({.document = services.document,
                              .editorSettings = services.settings.editor,
                              .settings = services.settings.quiz,
                              .kindSettings = {services.settings.quizChallenge, services.settings.fallingWord},
                              .windowSizes = services.settings.quizWindows,
                              .random = services.random,
                              .host = *this,
                              .windows = {.texts = services.texts,
                                  .prompt = services.prompt,
                                  .sounds = services.sounds,
                                  .chooser = services.chooser,
                                  .resultSettings = services.settings.result,
                                  .dataFolders = services.dataFolders},
                              .makers = quizAndGameWindowMakers()},
              *this)),
      m_place(*this, services.store, services.root)
{
    setObjectName(QStringLiteral("mainFrame"));
    setCentralWidget(m_view);
    new CTermSuggestions(*m_view, services.document, services.settings.dictionaries, services.texts);
    UseFonts();
    MakeMenus();
    ConnectCommands();

    m_statusText->setObjectName(QStringLiteral("statusText"));
    statusBar()->addWidget(m_statusText, 1);

    connect(m_view, &CWin32View::StatusTextChanged, m_statusText, &CElidedLabel::ShowText);
    connect(&services.document, &CWin32Doc::TitleChanged, this, &CMainFrame::ShowTitle);
    connect(&services.settingsChanges, &CSettingsChanges::Changed, this, [this](SettingsSection section) {
        if (section == SettingsSection::Misc) {
            UseFonts();
        }
    });
    connect(m_view, &CWin32View::RowMenuRequested, this,
        [this](const QPoint &place) { ShowMenu(RowMenuCommands(), place); });
    connect(m_view, &CWin32View::ColumnMenuRequested, this,
        [this](const QPoint &place) { ShowMenu(ColumnMenuCommands(), place); });
    // From the event loop, after the paste.
    connect(
        m_editCommands, &CEditCommands::FilePasted, this,
        [this](const QString &path) { m_services.files.OpenFile(path); }, Qt::QueuedConnection);
    connect(m_view, &CWin32View::TypedChanged, this, &CMainFrame::TypedChanged);
    connect(&m_fileWatch, &CFileWatch::NoticeChanged, m_view, &CWin32View::ShowNotice);
    services.files.SetPendingWork(&m_view->PendingWork());
    setAcceptDrops(true);
    m_view->setFocus();
    ShowTitle();
}

void CMainFrame::UseFonts()
{
    const UserFonts fonts = FontsOf(m_services.settings.misc);
    m_view->setFont(fonts.view.value_or(QFont()));
    m_quizLaunch->setFont(fonts.quizzes);
}

CMainFrame::~CMainFrame()
{
    // The focus changes once more while the window's parts are taken down.
    delete m_editCommands;
    m_services.files.SetPendingWork(nullptr);
}

void CMainFrame::ShowAsBefore()
{
    const QSize wanted(fontMetrics().averageCharWidth() * 130, fontMetrics().lineSpacing() * 40);
    resize(wanted.boundedTo(screen()->availableSize() * 0.9));
    if (!m_place.Restore()) {
        // Where the questions of the start find it, also before the window manager had a say.
        move(screen()->availableGeometry().center() - rect().center());
    }
    m_place.Show();
    m_services.specialCharacters.DockBeside(*this);
}

void CMainFrame::FinishQuietly()
{
    // First, since an import puts its list in place of the one before.
    m_fileToolsCommands->FinishQuietly();
    m_view->EndEditingQuietly();
}

CWordList CMainFrame::ListWithTyped() const
{
    return m_view->PendingWork().ListWithAll();
}

void CMainFrame::SavePlace()
{
    m_place.Save();
}

void CMainFrame::MakeMenus()
{
    const CTexts &texts = m_services.texts;
    menuBar()->setAccessibleName(texts.Get(Text::FrameMenuBar));
    new CMenuBarFocus(*menuBar());
    statusBar()->setAccessibleName(texts.Get(Text::FrameStatusBar));
    for (const CommandMenu &menu : CommandMenus()) {
        QMenu *const shown = AddNamedMenu(*menuBar(), texts.Get(menu.title));
        FillMenu(*shown, menu.commands, *m_actions, texts);
        const qsizetype samples = menu.commands.indexOf(Text::SamplesMenu);
        if (samples >= 0) {
            new CSamplesMenu(
                *shown->actions().at(samples)->menu(), m_services.files, m_services.dataFolders, texts);
        }
        const qsizetype recent = menu.commands.indexOf(CommandId::RecentFiles);
        if (recent >= 0) {
            // The list's place is in front of the separator that follows it.
            new CRecentFilesMenu(
                *shown, shown->actions().at(recent), m_services.files, m_services.recent, texts);
        }
    }
    MakeToolBar(texts.Get(Text::StandardToolBar), "standardToolBar", StandardToolBarCommands());
    addToolBarBreak();
    auto *const quizBar = MakeToolBar(texts.Get(Text::QuizToolBar), "quizToolBar", QuizToolBarCommands());
    quizBar->hide();
    // The menus have commands for it.
    setContextMenuPolicy(Qt::NoContextMenu);
}

QToolBar *CMainFrame::MakeToolBar(const QString &title, const char *name, const QList<int> &commands)
{
    QToolBar *const bar = addToolBar(title);
    bar->setObjectName(QLatin1StringView(name));
    FillToolBar(*bar, commands, *m_actions, m_services.texts);
    // The toolkit's own button for what finds no room.
    if (auto *const more = bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"))) {
        more->setAccessibleName(m_services.texts.Get(Text::FrameMoreButtons));
    }
    return bar;
}

void CMainFrame::ConnectCommands()
{
    const CTexts &texts = m_services.texts;
    new CFileMenuCommands(*m_actions, m_services.files, *this);
    new CHelpCommands(
        *m_actions, texts, [this] { ShowHelp({}); }, *this);
    new CArrangeCommands(
        *m_actions, *m_view, m_arranging, m_services.settings.arrange, m_services.settingsChanges, this);
    new CViewCommands(*m_actions,
        {*this, *m_view, m_services.settings.editor, m_services.settingsChanges, m_services.specialCharacters},
        this);
    new CSettingsCommands(*m_actions,
        {m_services.document,
            {.settings = m_services.settings,
                .changes = m_services.settingsChanges,
                .texts = texts,
                .today = m_services.today,
                .reset = m_services.resetSettings,
                .chooseLanguage = m_services.chooseLanguage,
                .associateFiles = m_services.associateFiles,
                .openQuizSettings = {}},
            m_services.chooser, m_services.sounds, m_services.dataFolders},
        *this);
    new CQuizCommands(*m_actions, *m_quizLaunch, m_services.settings.quiz, m_services.settingsChanges, this);
    new CToolsCommands(*m_actions, *m_view, m_services.document, m_services.settings.editor, m_services.texts,
        m_services.prompt, this);
    new CTableCommand(*m_actions, *m_view,
        {.document = m_services.document,
            .options = m_services.settings.createTable,
            .texts = texts,
            .prompt = m_services.prompt,
            .chooser = m_services.chooser,
            .today = m_services.today,
            .pageFolder = m_services.pageFolder,
            .openFile = m_services.openFile,
            .showHelp = [this] { ShowHelp(QStringLiteral("tables")); }},
        *this);
    new CDictionaryListCommand(*m_actions, *m_view, m_services.document, m_services.settings.dictionaries,
        texts, m_services.prompt, m_services.openHelp, *this);
    new CFindCommands(*m_actions, *m_view, m_services.document, m_services.settings.find,
        m_services.settingsChanges, m_services.texts, m_services.prompt, *this);
    m_fileToolsCommands = new CFileToolsCommands(*m_actions, m_services.files,
        {.document = m_services.document,
            .import = m_services.settings.import,
            .fileSearch = m_services.settings.filesearch,
            .texts = texts,
            .prompt = m_services.prompt,
            .chooser = m_services.chooser,
            .openHelp = m_services.openHelp},
        m_services.settingsChanges, *this);
    m_actions->SetPreparation([this](const Command &command) { PrepareCommand(command); });
    new CCommandRefresh({*m_actions, *m_editCommands, m_services.document, m_services.settingsChanges,
                            m_services.specialCharacters, *this},
        this);
}

void CMainFrame::PrepareCommand(const Command &command)
{
    const bool inEditBox = m_editCommands->State().inEditBox;
    const bool left = command.openEdit == OpenEditRule::Left
        || (command.openEdit == OpenEditRule::LeftInEditBox && inEditBox);
    if (!left) {
        m_view->EndEditing(command.openEdit != OpenEditRule::Cancelled);
        m_view->KeepChangedFields();
    }
}

void CMainFrame::ShowTitle()
{
    // The toolkit takes a single mark for the place of its own sign of changes.
    setWindowTitle(
        Isolated(m_services.document.Title()).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void CMainFrame::ShowMenu(const QList<int> &commands, const QPoint &place)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FillMenu(*menu, commands, *m_actions, m_services.texts);
    menu->popup(place);
}

std::vector<int> CMainFrame::SelectedEntries() const
{
    return m_view->SelectedEntries();
}

void CMainFrame::SelectEntries(const std::vector<int> &entries)
{
    m_view->SelectEntries(entries);
}

void CMainFrame::ShowMainWindow(bool show)
{
    // A window manager may put a window that comes back somewhere else.
    if (show) {
        restoreGeometry(m_geometry);
    } else {
        m_geometry = saveGeometry();
    }
    setVisible(show);
    if (show) {
        activateWindow();
    }
}

void CMainFrame::FocusList()
{
    m_view->setFocus();
}

void CMainFrame::ShowHelp(const QString &section)
{
    m_services.openHelp(section);
}

void CMainFrame::OpenDropped(const QStringList &paths)
{
    if (paths.size() > 1) {
        m_services.prompt.Tell(m_services.texts.Prompt(Text::OneFileAtATime), PromptIcon::Information);
    } else {
        m_services.files.OpenFile(paths.first());
    }
}

void CMainFrame::Moved()
{
    m_place.Moved();
    m_services.specialCharacters.DockBeside(*this);
}

void CMainFrame::closeEvent(QCloseEvent *event)
{
    SavePlace();
    if (!m_services.files.MayDiscard()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
    Q_EMIT Closed();
}

void CMainFrame::dragEnterEvent(QDragEnterEvent *event)
{
    if (QApplication::activeModalWidget() == nullptr && !DroppedOn(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction); // The file stays where it is.
        event->accept();
    }
}

void CMainFrame::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // From the event loop, so that the program that the files come from need not wait for an answer.
    QMetaObject::invokeMethod(
        this, [this, paths = DroppedOn(*event->mimeData())] { OpenDropped(paths); }, Qt::QueuedConnection);
}

void CMainFrame::moveEvent(QMoveEvent *event)
{
    QMainWindow::moveEvent(event);
    Moved();
}

void CMainFrame::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    Moved();
}

void CMainFrame::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_services.specialCharacters.DockBeside(*this);
        // From the event loop, when what brought the window to the front is done.
        QMetaObject::invokeMethod(this, &CMainFrame::LookAtFile, Qt::QueuedConnection);
    }
}

void CMainFrame::LookAtFile()
{
    if (isActiveWindow() && QApplication::activeModalWidget() == nullptr) {
        m_fileWatch.Look();
    }
}
