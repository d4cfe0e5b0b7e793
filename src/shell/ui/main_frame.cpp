// SPDX-License-Identifier: MIT
#include "shell/ui/main_frame.h"

#include "document/file_commands.h"
#include "document/recent_files.h"
#include "document/win32_doc.h"
#include "editor/ui/win32_view.h"
#include "platform/ui/elided_label.h"
#include "quiz/ui/quiz_launch.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "shell/commands.h"
#include "shell/ui/about_dialog.h"
#include "shell/ui/command_actions.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

namespace {

/// Adds the actions of commands to a menu or a tool bar.
template<class Bar>
void AddCommands(Bar &bar, const QList<int> &commands, const CCommandActions &actions)
{
    for (const int id : commands) {
        if (id == CommandId::Separator) {
            bar.addSeparator();
        } else if (id != CommandId::RecentFiles) {
            bar.addAction(actions.Action(id));
        }
    }
}

/// The edit box that has the focus: commands on text act on it alone.
QLineEdit *FocusedEditBox()
{
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

}

CMainFrame::CMainFrame(const FrameServices &services)
    : m_services(services), m_actions(new CCommandActions(services.texts, this)),
      m_view(new CWin32View(services.document, services.editorSettings, services.texts, this)),
      m_statusText(new CElidedLabel(this)),
      m_quizLaunch(new CQuizLaunch(services.document, {services.texts, services.prompt}, services.quizSettings,
          services.random, *this, *this))
{
    setObjectName(QStringLiteral("mainFrame"));
    setCentralWidget(m_view);
    MakeMenus();
    ConnectCommands();

    m_statusText->setObjectName(QStringLiteral("statusText"));
    statusBar()->addWidget(m_statusText, 1);

    connect(m_view, &CWin32View::StatusTextChanged, m_statusText, &CElidedLabel::setText);
    connect(&services.document, &CWin32Doc::ListReplaced, this, &CMainFrame::Refresh);
    connect(&services.document, &CWin32Doc::TitleChanged, this, &CMainFrame::Refresh);
    // A change is told before it is made, so what shows it waits for the event loop.
    connect(
        &services.document, &CWin32Doc::Changed, this,
        [this] {
            m_services.document.UpdateTitleMark();
            UpdateCommands();
        },
        Qt::QueuedConnection);
    connect(qApp, &QApplication::focusChanged, this, &CMainFrame::UpdateCommands);
    connect(&services.document, &CWin32Doc::FileConverted, m_view, &CWin32View::RefreshAll);
    const QSize wanted(fontMetrics().averageCharWidth() * 130, fontMetrics().lineSpacing() * 40);
    resize(wanted.boundedTo(screen()->availableSize() * 0.9));
    m_view->RefreshAll();
    m_view->setFocus();
    Refresh();
}

CMainFrame::~CMainFrame()
{
    // The focus changes once more while the window's parts are taken down.
    disconnect(qApp, nullptr, this, nullptr);
}

void CMainFrame::MakeMenus()
{
    for (const CommandMenu &menu : commandMenus()) {
        QMenu *const shown = menuBar()->addMenu(m_services.texts.Get(menu.title));
        AddCommands(*shown, menu.commands, *m_actions);
        const qsizetype recent = menu.commands.indexOf(CommandId::RecentFiles);
        if (recent >= 0) {
            m_behindRecent = shown->actions().at(recent); // The separator behind them.
            connect(shown, &QMenu::aboutToShow, this, [this, shown] { FillRecentFiles(*shown); });
            FillRecentFiles(*shown);
        }
    }
    auto *bar = addToolBar(m_services.texts.Get(Text::StandardToolBar));
    bar->setObjectName(QStringLiteral("standardToolBar"));
    AddCommands(*bar, standardToolBar(), *m_actions);
}

void CMainFrame::FillRecentFiles(QMenu &menu)
{
    qDeleteAll(m_recentActions);
    m_recentActions.clear();
    const auto add = [&](const QString &text) {
        auto *action = new QAction(text, &menu);
        menu.insertAction(m_behindRecent, action);
        m_recentActions.append(action);
        return action;
    };
    for (const QString &path : m_services.recent.Paths()) {
        const QString name = QFileInfo(path).fileName().replace(u'&', QStringLiteral("&&"));
        QAction *const action = add(QStringLiteral("&%1 %2").arg(m_recentActions.size() + 1).arg(name));
        action->setStatusTip(path);
        // From the event loop: opening fills this menu anew.
        connect(
            action, &QAction::triggered, this, [this, path] { m_services.files.OpenRecent(path); },
            Qt::QueuedConnection);
    }
    if (m_recentActions.isEmpty()) {
        add(m_services.texts.Get(Text::NoRecentFiles))->setEnabled(false);
    }
}

void CMainFrame::ConnectCommands()
{
    using namespace CommandId;
    CFileCommands &files = m_services.files;
    m_actions->SetHandler(NewFile, [&files] { files.New(); });
    m_actions->SetHandler(OpenFile, [&files] { files.Open(); });
    m_actions->SetHandler(SaveFile, [&files] { files.Save(); });
    m_actions->SetHandler(SaveFileAs, [&files] { files.SaveAs(); });
    m_actions->SetHandler(SendMail, [this] { m_services.document.OnFileSendMail(); });
    m_actions->SetHandler(Exit, [this] { close(); });
    m_actions->SetHandler(CommandId::Undo, [this] { Undo(); });
    m_actions->SetHandler(CommandId::Redo, [this] { Redo(); });
    m_actions->SetHandler(StandardQuiz, [this] { m_quizLaunch->startQuiz(); });
    m_actions->SetHandler(About, [this] {
        auto *dialog = new CAboutDialog(m_services.texts, this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
}

void CMainFrame::Refresh()
{
    // The toolkit takes a single mark for the place of its own sign of changes.
    setWindowTitle(m_services.document.Title().replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    UpdateCommands();
}

void CMainFrame::UpdateCommands()
{
    const CWin32Doc &document = m_services.document;
    const QLineEdit *const editBox = FocusedEditBox();
    m_actions->UpdateEnabled({.listHasEntries = document.List().Count() > 0,
        .canUndo = editBox != nullptr ? editBox->isUndoAvailable() : document.UndoCount() > 0,
        .canRedo = editBox == nullptr && document.RedoCount() > 0});
}

void CMainFrame::Undo()
{
    if (QLineEdit *const editBox = FocusedEditBox()) {
        editBox->undo();
        UpdateCommands();
    } else {
        m_services.document.Undo();
    }
}

void CMainFrame::Redo()
{
    if (FocusedEditBox() == nullptr) {
        m_services.document.Redo();
    }
}

std::vector<int> CMainFrame::SelectedEntries() const
{
    return m_view->SelectedEntries();
}

void CMainFrame::SelectEntries(const std::vector<int> &entries)
{
    m_view->SelectEntries(entries);
    m_view->setFocus();
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

void CMainFrame::closeEvent(QCloseEvent *event)
{
    if (!m_services.files.MayDiscard()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
    Q_EMIT Closed();
}
