// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <utility>

class CCommandActions;
class CWin32Doc;
class CWin32View;
class QLineEdit;
class QWidget;
struct ArrangeSettings;
struct CommandState;

/// Joins the commands of editing to the view, and to the edit box that has the focus where one has.
class CEditorCommands : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned.
    CEditorCommands(CCommandActions &actions, CWin32View &view, CWin32Doc &document, ArrangeSettings &arrange,
        QObject *parent);

    /// What the enabled rules look at in view, document and edit box.
    CommandState State() const;

Q_SIGNALS:
    /// State() is another than it was.
    void StateChanged();

private:
    void ConnectText();
    void ConnectList();
    void ConnectArranging();
    /// The edit box that commands act on: the one with the focus.
    QLineEdit *EditBox() const;
    void FocusChanged(QWidget *focus);
    void NoteSelection();
    void ClipboardChanged();
    void SetHandler(int id, void (CEditorCommands::*handler)());
    void Undo();
    void Redo();

    CCommandActions &m_actions;
    CWin32View &m_view;
    CWin32Doc &m_document;
    ArrangeSettings &m_arrange;
    QPointer<QLineEdit> m_editBox;
    std::pair<int, int> m_selected; // Start and length in the edit box.
    bool m_canPaste = false;
};
