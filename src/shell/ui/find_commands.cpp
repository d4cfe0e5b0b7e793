// SPDX-License-Identifier: MIT
#include "shell/ui/find_commands.h"

#include "document/win32_doc.h"
#include "editor/text_numbers.h"
#include "editor/ui/find_window.h"
#include "editor/ui/win32_view.h"
#include "platform/ui/wait_cursor.h"
#include "resources/texts.h"
#include "settings/settings_changes.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

#include <QAction>
#include <QApplication>
#include <QTimer>

CFindCommands::CFindCommands(CCommandActions &actions, CWin32View &view, CWin32Doc &document,
    FindSettings &settings, const CSettingsChanges &settingsChanges, const CTexts &texts, IUserPrompt &prompt,
    QWidget &frame)
    : QObject(&frame), m_view(view), m_document(document), m_texts(texts), m_frame(frame), m_actions(actions),
      m_finding(view, document, settings, texts, prompt)
{
    actions.SetHandler(CommandId::Find, [this] { Open(); });
    actions.SetHandler(CommandId::FindNext, [this] { FindNext(); });
    connect(&settingsChanges, &CSettingsChanges::Changed, this, [this](SettingsSection section) {
        if (section == SettingsSection::Find && m_window != nullptr) {
            m_window->ShowSettings();
        }
    });
    frame.installEventFilter(this);
}

void CFindCommands::Open()
{
    if (m_window == nullptr) {
        m_window = new CFindWindow({m_document, m_finding, m_texts}, &m_frame);
        connect(m_window, &CFindWindow::NextWanted, m_actions.Action(CommandId::FindNext), &QAction::trigger);
        connect(m_window, &CFindWindow::AllWanted, this, [this] {
            m_view.EndEditing(true);
            const CWaitCursor wait;
            if (const int found = m_finding.FindAll(); found > 0) {
                m_window->Say(m_texts.Fill(Text::EntriesFound, {QString::number(found)}));
            }
        });
        connect(m_window, &CFindWindow::EntriesChosen, this, [this](const std::vector<int> &entries) {
            if (StoreEdit()) {
                m_view.SelectEntries(entries);
            }
        });
        connect(m_window, &CFindWindow::MatchWanted, this, [this](const TextMatch &match) {
            m_frame.activateWindow();
            if (StoreEdit()) {
                m_view.ShowMatch(match, true);
            }
        });
    }
    m_window->Open(m_frame);
}

void CFindCommands::FindNext()
{
    if (!m_finding.HasAim()) {
        Open();
        return;
    }
    const CWaitCursor wait;
    const TextMatch match = m_finding.FindNext(m_window == nullptr || QApplication::focusWidget() == nullptr);
    if (match.IsFound() && m_window != nullptr) {
        m_window->Say(m_document.List().Entry(match.entry).GetField(match.column));
    }
}

bool CFindCommands::StoreEdit()
{
    const quint64 before = m_document.ChangeCounter();
    m_view.EndEditing(true);
    return m_document.ChangeCounter() == before;
}

bool CFindCommands::eventFilter(QObject *watched, QEvent *event)
{
    // A quiz hides the main window.
    if (watched == &m_frame && m_window != nullptr && !event->spontaneous()) {
        if (event->type() == QEvent::Hide) {
            m_window->hide();
        } else if (event->type() == QEvent::Show) {
            // Once the main window is on the screen: it would be put in front of what was there before it.
            QTimer::singleShot(0, m_window, [this] { ShowAgain(); });
        }
    }
    return QObject::eventFilter(watched, event);
}

void CFindCommands::ShowAgain()
{
    if (m_frame.isVisible()) {
        m_window->setAttribute(Qt::WA_ShowWithoutActivating); // Who comes back from a quiz is in the list.
        m_window->show();
        m_window->setAttribute(Qt::WA_ShowWithoutActivating, false);
    }
}
