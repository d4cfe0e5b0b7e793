// SPDX-License-Identifier: MIT
#pragma once

#include "editor/finding.h"

#include <QObject>
#include <QPointer>

class CCommandActions;
class CFindWindow;
class CSettingsChanges;
class CWin32View;
class QWidget;

/// The commands that look for text, and their window, which is hidden and shown with the main window.
class CFindCommands : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned. `frame` becomes the owner of the window.
    CFindCommands(CCommandActions &actions, CWin32View &view, CWin32Doc &document, FindSettings &settings,
        const CSettingsChanges &settingsChanges, const CTexts &texts, IUserPrompt &prompt, QWidget &frame);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Open();
    void FindNext();
    /// Stores an open edit; false when that made another list of what was found.
    bool StoreEdit();
    /// The window, with the main window.
    void ShowAgain();

    CWin32View &m_view;
    CWin32Doc &m_document;
    const CTexts &m_texts;
    QWidget &m_frame;
    CCommandActions &m_actions;
    CFinding m_finding;
    QPointer<CFindWindow> m_window;
};
