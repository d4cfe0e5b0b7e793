// SPDX-License-Identifier: MIT
#pragma once

#include "editor/list_clipboard.h"
#include "platform/ui/system_clipboard.h"

#include <QObject>
#include <QPointer>

#include <utility>

class CArranging;
class CCommandActions;
class CTexts;
class CWin32View;
class IFormatDialogs;
class IUserPrompt;
class QLineEdit;
class QWidget;
struct CommandState;

/// The commands of the menu for editing. They act on the text of the edit box that has the focus where one has,
/// else on the list.
class CEditCommands : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned.
    CEditCommands(CCommandActions &actions, CWin32View &view, CWin32Doc &document, CArranging &arranging,
        const CTexts &texts, IUserPrompt &prompt, IFormatDialogs &formatDialogs, QObject *parent);

    /// What the enabled rules look at in view, document and edit box.
    CommandState State() const;

Q_SIGNALS:
    /// State() is another than it was.
    void StateChanged();
    /// A file was pasted, to be opened.
    void FilePasted(const QString &path);

private:
    void ConnectText();
    void ConnectList();
    /// Handles a command by one function for the edit box and another for the list.
    template<class OnText, class OnList>
    void SetTextHandler(int id, OnText onText, OnList onList);
    /// The edit box that commands act on: the one with the focus.
    QLineEdit *EditBox() const;
    void FocusChanged(QWidget *focus);
    void NoteSelection();
    void ClipboardChanged();

    CCommandActions &m_actions;
    CWin32View &m_view;
    CWin32Doc &m_document;
    CArranging &m_arranging;
    CSystemClipboard m_systemClipboard;
    CListClipboard m_clipboard;
    QPointer<QLineEdit> m_editBox;
    std::pair<int, int> m_selected; // Start and length in the edit box.
    bool m_canPaste = false;
    bool m_canPasteSpecial = false;
};
