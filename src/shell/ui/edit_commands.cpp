// SPDX-License-Identifier: MIT
#include "shell/ui/edit_commands.h"

#include "document/win32_doc.h"
#include "editor/arranging.h"
#include "editor/clipboard_text.h"
#include "editor/list_steps.h"
#include "editor/ui/edit_box_commands.h"
#include "editor/ui/win32_view.h"
#include "platform/ui/wait_cursor.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>

using namespace CommandId;

CEditCommands::CEditCommands(CCommandActions &actions, CWin32View &view, CWin32Doc &document,
    CArranging &arranging, const CTexts &texts, IUserPrompt &prompt, IFormatDialogs &formatDialogs,
    QObject *parent)
    : QObject(parent), m_actions(actions), m_view(view), m_document(document), m_arranging(arranging),
      m_clipboard(view, document, m_systemClipboard, texts, prompt, formatDialogs,
          [this](const QString &path) { Q_EMIT FilePasted(path); })
{
    ConnectText();
    ConnectList();
    connect(&view, &CWin32View::SelectionChanged, this, &CEditCommands::StateChanged);
    connect(&view, &CWin32View::TypedChanged, this, &CEditCommands::StateChanged);
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget * /*old*/, QWidget *focus) { FocusChanged(focus); });
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &CEditCommands::ClipboardChanged);
    // Another program is asked, which the start doesn't wait for.
    QMetaObject::invokeMethod(this, &CEditCommands::ClipboardChanged, Qt::QueuedConnection);
}

QLineEdit *CEditCommands::EditBox() const
{
    // The menu bar takes the focus for the time of a choice by keys, and the box drops its selection then.
    const bool inMenu = qobject_cast<QMenuBar *>(QApplication::focusWidget()) != nullptr;
    return m_editBox && (m_editBox->hasFocus() || inMenu) ? m_editBox : nullptr;
}

CommandState CEditCommands::State() const
{
    const QLineEdit *const box = EditBox();
    return {.entries = m_document.List().Count(),
        .selectedEntries = m_view.SelectedEntryCount(),
        .selectedRows = m_view.SelectedRowCount(),
        .cursorColumn = m_view.CursorField(),
        .onPendingText = m_view.IsOnPendingText(),
        .inEditBox = box != nullptr,
        .textSelected = box != nullptr && m_selected.second > 0,
        .canPaste = m_canPaste,
        .canPasteSpecial = m_canPasteSpecial,
        .canUndo = box != nullptr ? box->isUndoAvailable() : m_document.UndoCount() > 0,
        .canRedo = box == nullptr && m_document.RedoCount() > 0};
}

void CEditCommands::FocusChanged(QWidget *focus)
{
    if (qobject_cast<QMenuBar *>(focus) == nullptr && focus != m_editBox) {
        if (m_editBox) {
            m_editBox->disconnect(this);
        }
        // Those of other windows edit their text themselves.
        const bool isOurs = focus != nullptr && focus->window() == m_view.window();
        m_editBox = isOurs ? qobject_cast<QLineEdit *>(focus) : nullptr;
        if (m_editBox) {
            connect(m_editBox, &QLineEdit::textChanged, this, &CEditCommands::StateChanged);
            connect(m_editBox, &QLineEdit::selectionChanged, this, &CEditCommands::NoteSelection);
        }
        m_selected = {};
        NoteSelection();
    }
    Q_EMIT StateChanged();
}

void CEditCommands::NoteSelection()
{
    if (m_editBox && m_editBox->hasFocus()) {
        m_selected = {m_editBox->selectionStart(), int(m_editBox->selectedText().size())};
        Q_EMIT StateChanged();
    }
}

void CEditCommands::ClipboardChanged()
{
    m_canPaste = m_clipboard.CanPaste();
    m_canPasteSpecial = m_clipboard.CanPasteSpecial();
    Q_EMIT StateChanged();
}

template<class OnText, class OnList>
void CEditCommands::SetTextHandler(int id, OnText onText, OnList onList)
{
    m_actions.SetHandler(id, [this, onText, onList] {
        if (QLineEdit *const box = EditBox()) {
            if (!box->hasFocus() && m_selected.second > 0) {
                box->setSelection(m_selected.first, m_selected.second);
            }
            onText(*box);
        } else {
            const CWaitCursor wait;
            onList();
        }
    });
}

void CEditCommands::ConnectText()
{
    SetTextHandler(
        Cut, [](QLineEdit &box) { box.cut(); }, [this] { m_clipboard.Cut(); });
    SetTextHandler(
        Copy, [](QLineEdit &box) { box.copy(); }, [this] { m_clipboard.Copy(AllColumns); });
    SetTextHandler(
        Paste, [](QLineEdit &box) { PasteText(box); }, [this] { m_clipboard.Paste(); });
    SetTextHandler(
        CommandId::Delete, [](QLineEdit &box) { box.del(); }, [this] { m_view.DeleteSelection(); });
    SetTextHandler(
        SelectAll, [](QLineEdit &box) { box.selectAll(); }, [this] { m_view.SelectAll(); });
    SetTextHandler(
        InsertSynonym, [](QLineEdit &box) { ChangeText(box, WithSynonym); }, [] {});
    SetTextHandler(
        InsertComment, [](QLineEdit &box) { ChangeText(box, WithComment); }, [] {});
    SetTextHandler(
        CommandId::Undo, [](QLineEdit &box) { box.undo(); }, [this] { m_document.Undo(); });
    SetTextHandler(
        CommandId::Redo, [](QLineEdit & /*box*/) {}, [this] { m_document.Redo(); });
}

void CEditCommands::ConnectList()
{
    for (const int command : {CopyLanguage1, CopyLanguage2, CopyNotes}) {
        m_actions.SetHandler(command, [this, command] {
            const CWaitCursor wait;
            m_clipboard.Copy(command - CopyLanguage1);
        });
    }
    m_actions.SetHandler(PasteSpecial, [this] {
        const CWaitCursor wait;
        m_clipboard.PasteSpecial();
    });
    m_actions.SetHandler(CommandId::PlaceInsertionPoint, [this] { ::PlaceInsertionPoint(m_view); });
    connect(&m_view, &CWin32View::DataDropped, this, [this](const QMimeData &data, int row) {
        const CWaitCursor wait;
        m_clipboard.Insert(data, row);
    });
    m_actions.SetHandler(Previous, [this] { StepSelection(m_view, -1); });
    m_actions.SetHandler(Next, [this] { StepSelection(m_view, 1); });
    for (const auto &[command, mode] :
        {std::pair(SetFlag, FlagMode::Set), {ClearFlag, FlagMode::Clear}, {InvertFlag, FlagMode::Toggle}}) {
        m_actions.SetHandler(command, [this, flagMode = mode] {
            const CWaitCursor wait;
            m_arranging.SetFlags(flagMode);
        });
    }
    connect(&m_view, &CWin32View::InvertFlagsRequested, this, [this] { m_actions.Choose(InvertFlag); });
    connect(&m_view, &CWin32View::FlagClicked, this, [this](const QPersistentModelIndex &cell) {
        m_actions.Run(InvertFlag, [this, cell] {
            if (const auto flag = m_view.FlagOf(cell)) {
                m_arranging.ToggleFlag(flag->first, flag->second);
            }
        });
    });
}
