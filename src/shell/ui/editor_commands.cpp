// SPDX-License-Identifier: MIT
#include "shell/ui/editor_commands.h"

#include "document/win32_doc.h"
#include "editor/clipboard_text.h"
#include "editor/ui/edit_box_commands.h"
#include "editor/ui/win32_view.h"
#include "settings/shell_settings.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>

using namespace CommandId;

CEditorCommands::CEditorCommands(
    CCommandActions &actions, CWin32View &view, CWin32Doc &document, ArrangeSettings &arrange, QObject *parent)
    : QObject(parent), m_actions(actions), m_view(view), m_document(document), m_arrange(arrange)
{
    ConnectText();
    ConnectList();
    ConnectArranging();
    connect(&view, &CWin32View::SelectionChanged, this, &CEditorCommands::StateChanged);
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget * /*old*/, QWidget *focus) { FocusChanged(focus); });
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &CEditorCommands::ClipboardChanged);
    // Another program is asked, which the start doesn't wait for.
    QMetaObject::invokeMethod(this, &CEditorCommands::ClipboardChanged, Qt::QueuedConnection);
}

QLineEdit *CEditorCommands::EditBox() const
{
    // The menu bar takes the focus for the time of a choice by keys, and the box drops its selection then.
    const bool inMenu = qobject_cast<QMenuBar *>(QApplication::focusWidget()) != nullptr;
    return m_editBox && (m_editBox->hasFocus() || inMenu) ? m_editBox : nullptr;
}

CommandState CEditorCommands::State() const
{
    const QLineEdit *const box = EditBox();
    return {.entries = m_document.List().Count(),
        .selectedEntries = m_view.SelectedEntryCount(),
        .selectedRows = m_view.SelectedRowCount(),
        .cursorColumn = m_view.CursorField(),
        .inEditBox = box != nullptr,
        .textSelected = box != nullptr && m_selected.second > 0,
        .canPaste = m_canPaste,
        .canUndo = box != nullptr ? box->isUndoAvailable() : m_document.UndoCount() > 0,
        .canRedo = box == nullptr && m_document.RedoCount() > 0};
}

void CEditorCommands::FocusChanged(QWidget *focus)
{
    if (qobject_cast<QMenuBar *>(focus) == nullptr && focus != m_editBox) {
        if (m_editBox) {
            m_editBox->disconnect(this);
        }
        m_editBox = qobject_cast<QLineEdit *>(focus);
        if (m_editBox) {
            connect(m_editBox, &QLineEdit::textChanged, this, &CEditorCommands::StateChanged);
            connect(m_editBox, &QLineEdit::selectionChanged, this, &CEditorCommands::NoteSelection);
        }
        m_selected = {};
        NoteSelection();
    }
    Q_EMIT StateChanged();
}

void CEditorCommands::NoteSelection()
{
    if (m_editBox && m_editBox->hasFocus()) {
        m_selected = {m_editBox->selectionStart(), int(m_editBox->selectedText().size())};
        Q_EMIT StateChanged();
    }
}

void CEditorCommands::ClipboardChanged()
{
    m_canPaste = CListClipboard::CanPaste();
    Q_EMIT StateChanged();
}

void CEditorCommands::SetHandler(int id, void (CEditorCommands::*handler)())
{
    m_actions.SetHandler(id, [this, handler] { (this->*handler)(); });
}

void CEditorCommands::ConnectText()
{
    const auto onTextOrList = [this](int id, auto onText, auto onList) {
        m_actions.SetHandler(id, [this, onText, onList] {
            if (QLineEdit *const box = EditBox()) {
                if (!box->hasFocus() && m_selected.second > 0) {
                    box->setSelection(m_selected.first, m_selected.second);
                }
                onText(*box);
            } else {
                onList(m_view);
            }
        });
    };
    onTextOrList(
        Cut, [](QLineEdit &box) { box.cut(); }, [](CWin32View &view) { view.CutSelection(); });
    onTextOrList(
        Copy, [](QLineEdit &box) { box.copy(); }, [](CWin32View &view) { view.CopySelection(AllColumns); });
    onTextOrList(
        Paste, [](QLineEdit &box) { box.paste(); }, [](CWin32View &view) { view.PasteEntries(); });
    onTextOrList(
        CommandId::Delete, [](QLineEdit &box) { box.del(); }, [](CWin32View &view) { view.DeleteSelection(); });
    onTextOrList(
        SelectAll, [](QLineEdit &box) { box.selectAll(); }, [](CWin32View &view) { view.SelectAll(); });
    const auto nothing = [](CWin32View & /*view*/) {};
    onTextOrList(
        InsertSynonym, [](QLineEdit &box) { changeText(box, insertSynonym); }, nothing);
    onTextOrList(
        InsertComment, [](QLineEdit &box) { changeText(box, insertComment); }, nothing);
    SetHandler(CommandId::Undo, &CEditorCommands::Undo);
    SetHandler(CommandId::Redo, &CEditorCommands::Redo);
}

void CEditorCommands::ConnectList()
{
    for (const int command : {CopyLanguage1, CopyLanguage2, CopyNotes}) {
        m_actions.SetHandler(command, [this, command] { m_view.CopySelection(command - CopyLanguage1); });
    }
    m_actions.SetHandler(PlaceInsertionPoint, [this] { m_view.PlaceInsertionPoint(); });
    m_actions.SetHandler(Previous, [this] { m_view.Step(-1); });
    m_actions.SetHandler(Next, [this] { m_view.Step(1); });
    m_actions.SetHandler(ShowWordNumber, [this] { m_view.ToggleWordNumber(); });
    m_actions.SetHandler(ShowEditFields, [this] { m_view.ToggleEditFields(); });
    m_actions.SetHandler(ShowNotes, [this] { m_view.ToggleNotes(); });
}

void CEditorCommands::ConnectArranging()
{
    for (const int command : {Shuffle, SortByLanguage1, SortByLanguage2, SortByNote}) {
        m_actions.SetHandler(command, [this, command] { m_view.Sort(command - SortByLanguage1); });
    }
    for (const auto &[command, mode] :
        {std::pair(SetFlag, FlagMode::Set), {ClearFlag, FlagMode::Clear}, {InvertFlag, FlagMode::Toggle}}) {
        m_actions.SetHandler(command, [this, flagMode = mode] { m_view.SetFlags(flagMode); });
    }
    for (const auto &[command, option] : {std::pair(Descending, &ArrangeSettings::descending),
             {GroupFlagged, &ArrangeSettings::groupFlagged}, {SortByLength, &ArrangeSettings::byLength}}) {
        m_actions.SetHandler(command, [this, flipped = option] {
            m_arrange.*flipped = !(m_arrange.*flipped);
            Q_EMIT StateChanged();
        });
    }
}

void CEditorCommands::Undo()
{
    if (QLineEdit *const box = EditBox()) {
        box->undo();
    } else {
        m_document.Undo();
    }
}

void CEditorCommands::Redo()
{
    if (EditBox() == nullptr) {
        m_document.Redo();
    }
}
