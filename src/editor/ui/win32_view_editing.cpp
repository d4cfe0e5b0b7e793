// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"
#include "editor/ui/entry_fields.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/ui/wait_cursor.h"
#include "settings/editor_settings.h"
#include "settings/shell_settings.h"

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
        if (field >= 0 && m_model->column(field) < m_model->columnCount()) {
            m_list->EditCell(edit.row, field);
        }
    }
}

void CWin32View::FieldsEntered()
{
    EndEditing(true);
    const int entry = m_fields->IsChangeMode() ? FirstSelectedEntry() : CRowModel::NoEntry;
    Follow(m_editing.FromFields(m_fields->Texts(), entry), true);
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
    case EditStep::Action::ClearSelection:
        m_list->SelectRow(-1, false);
        break;
    case EditStep::Action::ClearFields:
        m_list->scrollTo(m_model->index(InsertionPoint(), m_model->column(0)));
        ClearFields();
        break;
    case EditStep::Action::EditNewEntry:
        if (byEnter) {
            m_list->EditCell(InsertionPoint(), step.index);
        }
        break;
    }
}

void CWin32View::ClearFields()
{
    m_list->SelectRow(-1, false);
    EmptyFields();
    if (m_services.settings.showEditFields) {
        m_fields->FocusField(m_services.settings.lang1first ? 0 : 1);
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
    if (!m_services.settings.showNotes) {
        ToggleNotes();
    }
}

void CWin32View::MarkEntry(int entry)
{
    const int row = entry < 0 ? -1 : m_model->Rows().RowOfEntry(entry);
    if (row >= 0) {
        m_list->scrollTo(m_model->index(row, m_model->column(0)));
    }
    m_list->SetHotRow(row);
}

std::optional<OpenEdit> CWin32View::EditedCell() const
{
    return m_list->EditedCell();
}

FieldTexts CWin32View::Fields() const
{
    return {.typed = m_fields->Texts(),
        .given = m_loadedTexts,
        .entry = m_fields->IsChangeMode() ? FirstSelectedEntry() : CRowModel::NoEntry};
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
    m_loadedEntry = CRowModel::NoEntry;
    m_loadedTexts = {};
    m_fields->SetChangeMode(false);
    Q_EMIT TypedChanged();
}

void CWin32View::Stored(const EditStep &step)
{
    if (step.action == EditStep::Action::SelectEntry) {
        SelectEntry(step.index);
    } else if (step.action == EditStep::Action::EditNewEntry && m_list->CursorRow() == InsertionPoint()) {
        // Who types on doesn't type over what waits there.
        m_list->SetCursor(InsertionPoint(), step.index);
    }
    PendingChanged();
    UpdateStatusText();
}

void CWin32View::DeleteSelection()
{
    EndEditing(true);
    const std::vector<int> entries = SelectedEntries();
    const bool hadKeyboard = m_list->hasFocus();
    if (m_editing.DeleteEntries(entries)) { }
    if (hadKeyboard) {
        m_list->setFocus();
    }
}

void CWin32View::PlaceInsertionPoint()
{
    EndEditing(true);
    if (m_list->CursorRow() >= 0) {
        SetInsertionPoint(m_list->CursorRow());
    }
}

void CWin32View::Step(int step)
{
    EndEditing(true);
    const auto ranges = m_list->SelectedRanges();
    const int row = ranges.empty() ? -1 : ranges.front().first;
    m_list->SelectRow(steppedRow(row, step, m_model->rowCount()), true);
}

void CWin32View::ToggleWordNumber()
{
    EndEditing(false);
    const CWaitCursor wait;
    m_services.settings.showWordNumber = !m_services.settings.showWordNumber;
    RefreshAll();
    m_list->SetCursorField(0);
}

void CWin32View::ToggleEditFields()
{
    EndEditing(false);
    m_services.settings.showEditFields = !m_services.settings.showEditFields;
    m_fields->setVisible(m_services.settings.showEditFields);
    if (!m_services.settings.showEditFields) {
        m_list->setFocus();
    }
}

void CWin32View::ToggleNotes()
{
    EndEditing(false);
    const CWaitCursor wait;
    m_services.settings.showNotes = !m_services.settings.showNotes;
    RefreshAll();
}

void CWin32View::Sort(int field)
{
    EndEditing(true);
    if (m_services.document.List().Count() < 2) {
        return;
    }
    const CWaitCursor wait;
    m_services.document.Change(
        [&](CWordList &list) { list.Sort(field, sortOptions(m_services.arrange), m_services.random); });
    m_list->SelectRow(InsertionPoint(), false);
}

void CWin32View::SetFlags(FlagMode mode)
{
    {
        const std::vector<int> entries = SelectedEntries();
        constexpr size_t Many = 10000;
        std::optional<CWaitCursor> wait;
        if (entries.size() > Many) {
            wait.emplace();
        }
        m_editing.SetFlags(CursorField(), entries, mode);
    }
    m_list->TellCursorName();
}

void CWin32View::FlagClicked(int row, int language)
{
    EndEditing(true);
    const int entry = m_model->Rows().EntryOfRow(row);
    if (entry >= 0 && entry < m_services.document.List().Count()) {
        m_editing.SetFlags(language, std::array{entry}, FlagMode::Toggle);
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
    const int column = CursorField() == 0 || CursorField() == 1 ? CursorField() : -1;
    const int found = m_services.document.List().FindPrefix(start, column, from);
    if (found >= 0) {
        SelectEntry(found);
    }
}
