// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"
#include "editor/ui/entry_fields.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/user_prompt.h"
#include "settings/settings.h"
#include "settings/settings_changes.h"

#include <algorithm>
#include <optional>
#include <utility>

void CWin32View::EndEditing(bool commit)
{
    m_list->EndEditing(commit);
}

void CWin32View::EndEditingQuietly()
{
    m_editing.SetAsking(false);
    EndEditing(true);
    m_editing.SetAsking(true);
}

void CWin32View::TellTermWanted(QLineEdit &line, int language, const QString &otherTerm)
{
    if (!otherTerm.isEmpty()) {
        Q_EMIT TermWanted(&line, language, otherTerm);
    }
}

void CWin32View::EditorOpened(QLineEdit *line, int row, int field)
{
    const CRowModel &rows = m_model->Rows();
    // Entries have both terms already.
    if (rows.IsNewEntryRow(row) && (field == 0 || field == 1)) {
        TellTermWanted(*line, field, rows.pending[size_t(1 - field)]);
    }
}

void CWin32View::CellEdited(const CellEdit &edit)
{
    using Key = CellEdit::Key;
    const bool newEntry = m_model->Rows().IsNewEntryRow(edit.row);
    const EditStep step = m_editing.CellEdited(edit.row, edit.field, edit.text);
    if (m_storedStep) {
        m_storedStep = step;
        return;
    }
    // Typing goes on with Enter, and with Tab as in a table.
    Follow(step, edit.key == Key::Enter || (newEntry && edit.key == Key::Tab));
    if (!newEntry && step.action == EditStep::Action::None && edit.key != Key::None && edit.key != Key::Enter) {
        const int field = edit.field + (edit.key == Key::Tab ? 1 : -1);
        if (field >= 0 && m_model->ColumnOf(field) < m_model->columnCount()) {
            m_list->EditCell(edit.row, field);
        }
    }
}

void CWin32View::FieldsEntered()
{
    EndEditing(true);
    const int entry = m_fields->IsChangeMode() ? FirstSelectedEntry() : NoEntry;
    const EditStep step = m_editing.FromFields(m_fields->Texts(), entry);
    if (entry == NoEntry && step.Selects()) {
        EmptyFields(); // They were added.
    }
    Follow(step, true);
}

void CWin32View::Follow(const EditStep &step, bool byEnter)
{
    switch (step.action) {
    case EditStep::Action::None:
        break;
    case EditStep::Action::FocusField:
        m_fields->FocusField(step.index);
        break;
    case EditStep::Action::SelectEntry:
        SelectEntry(step.index);
        break;
    case EditStep::Action::SelectAndTypeOn:
        SelectAndTypeOn(step.index);
        break;
    case EditStep::Action::ClearSelection:
        m_list->SelectRow(NoRow, false);
        break;
    case EditStep::Action::ClearFields:
        m_list->scrollTo(m_model->index(InsertionPoint(), m_model->ColumnOf(0)));
        ClearFields();
        break;
    case EditStep::Action::EditNewEntry:
        if (byEnter && ShowsFound()) {
            m_list->EditCellBeside(InsertionPoint(), step.index);
        } else if (byEnter) {
            m_list->EditCell(InsertionPoint(), step.index);
        }
        break;
    }
}

void CWin32View::SelectAndTypeOn(int entry)
{
    const bool inFields = m_fields->isAncestorOf(window()->focusWidget());
    SelectEntry(entry);
    m_showsFound = true;
    if (inFields) {
        EmptyFields();
        m_fieldsStandAlone = true;
        m_fields->FocusField(m_services.settings.editor.lang1first ? 0 : 1);
    } else {
        const int row = m_model->Rows().RowOfEntry(entry);
        m_list->scrollTo(m_model->index(InsertionPoint(), m_model->ColumnOf(0)));
        if (!m_list->IsRowVisible(row)) {
            m_list->scrollTo(m_model->index(row, m_model->ColumnOf(0)));
        }
        m_list->EditCellBeside(InsertionPoint(), m_editing.NextField());
    }
}

bool CWin32View::ShowsFound()
{
    m_showsFound = m_showsFound && m_services.prompt.TypingGoesOn();
    return m_showsFound;
}

void CWin32View::ClearFields()
{
    if (!ShowsFound()) {
        m_list->SelectRow(NoRow, false);
    }
    EmptyFields();
    if (m_services.settings.editor.showEditFields) {
        m_fields->FocusField(m_services.settings.editor.lang1first ? 0 : 1);
    }
    UpdateStatusText();
}

void CWin32View::PendingChanged()
{
    m_model->RowsChanged(InsertionPoint(), InsertionPoint());
    Q_EMIT TypedChanged();
}

void CWin32View::ShowNotes()
{
    if (!m_services.settings.editor.showNotes) {
        m_services.settings.editor.showNotes = true;
        m_services.settingsChanges.Tell(SettingsSection::Editor);
    }
}

void CWin32View::MarkEntry(int entry)
{
    if (entry != NoEntry) {
        ShowEntry(entry);
    }
    m_list->SetHotRow(entry == NoEntry ? NoRow : m_model->Rows().RowOfEntry(entry));
}

std::optional<OpenEdit> CWin32View::EditedCell() const
{
    return m_list->EditedCell();
}

FieldTexts CWin32View::Fields() const
{
    return {.typed = m_fields->Texts(),
        .given = m_loadedTexts,
        .entry = m_fields->IsChangeMode() ? FirstSelectedEntry() : NoEntry};
}

EditStep CWin32View::StoreEdit()
{
    m_storedStep.emplace();
    EndEditing(true);
    return *std::exchange(m_storedStep, std::nullopt);
}

void CWin32View::EmptyFields()
{
    m_fields->SetTexts({});
    m_loadedEntry = NoEntry;
    m_loadedTexts = {};
    m_fields->SetChangeMode(false);
    Q_EMIT TypedChanged();
}

void CWin32View::Stored(const EditStep &step)
{
    if (step.Selects()) {
        Follow(step, false);
    } else if (step.action == EditStep::Action::EditNewEntry && m_list->CursorRow() == InsertionPoint()) {
        // Who types on doesn't type over what waits there.
        m_list->SetCursor(InsertionPoint(), step.index);
    }
    PendingChanged();
    UpdateStatusText();
}

bool CWin32View::IsOnPendingText() const
{
    return m_list->CursorRow() == InsertionPoint() && SelectedEntryCount() == 0
        && CursorField() != CWordListModel::NumberColumn
        && !m_model->Rows().pending[size_t(CursorField())].isEmpty();
}

void CWin32View::DeleteSelection()
{
    if (IsOnPendingText()) {
        m_editing.ClearPending(CursorField());
        return;
    }
    const std::vector<int> entries = SelectedEntries();
    const bool hadKeyboard = m_list->hasFocus();
    const int row = m_list->CursorRow();
    const int field = m_list->CursorField();
    const auto above =
        std::ranges::count_if(entries, [&](int entry) { return m_model->Rows().RowOfEntry(entry) < row; });
    if (m_editing.DeleteEntries(entries)) {
        m_list->SelectRow(NoRow, false);
        PlaceCursor(std::max(row - int(above), 0), field);
    }
    if (hadKeyboard) {
        m_list->setFocus();
    }
}

void CWin32View::CellDoubleClicked(int row, int field, bool shift)
{
    const bool onNumber = field == CWordListModel::NumberColumn;
    if (shift || onNumber) {
        if (shift || !m_model->Rows().IsNewEntryRow(row)) {
            EndEditing(true);
            SetInsertionPoint(row);
        }
    } else {
        m_list->EditCell(row, field);
    }
}

void CWin32View::SearchTyped(const QString &start, int row)
{
    const CRowModel &rows = m_model->Rows();
    const int from = std::max(rows.EntryOfRow(rows.IsNewEntryRow(row) ? row + 1 : row), 0);
    const int column = CursorField() == 0 || CursorField() == 1 ? CursorField() : AllColumns;
    const int found = m_services.document.List().FindPrefix(start, column, from);
    if (found != NoEntry) {
        SelectEntry(found);
    }
}
