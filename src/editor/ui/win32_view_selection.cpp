// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"
#include "editor/text_numbers.h"
#include "editor/ui/entry_fields.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "settings/settings.h"

std::vector<int> CWin32View::SelectedEntries() const
{
    std::vector<int> entries;
    const CRowModel &rows = m_model->Rows();
    for (const auto &[first, last] : m_list->SelectedRanges()) {
        for (int row = first; row <= last; ++row) {
            if (!rows.IsNewEntryRow(row)) {
                entries.push_back(rows.EntryOfRow(row));
            }
        }
    }
    return entries;
}

int CWin32View::SelectedRowCount() const
{
    int count = 0;
    for (const auto &[first, last] : m_list->SelectedRanges()) {
        count += last - first + 1;
    }
    return count;
}

int CWin32View::SelectedEntryCount() const
{
    return SelectedRowCount() - int(m_list->IsRowSelected(InsertionPoint()));
}

int CWin32View::FirstSelectedEntry() const
{
    const CRowModel &rows = m_model->Rows();
    for (const auto &[first, last] : m_list->SelectedRanges()) {
        for (int row = first; row <= std::min(last, first + 1); ++row) {
            if (!rows.IsNewEntryRow(row)) {
                return rows.EntryOfRow(row);
            }
        }
    }
    return NoEntry;
}

int CWin32View::FirstSelectedRow() const
{
    const auto &ranges = m_list->SelectedRanges();
    return ranges.empty() ? NoRow : ranges.front().first;
}

int CWin32View::RowCount() const
{
    return m_model->rowCount();
}

int CWin32View::CursorRow() const
{
    return m_list->CursorRow();
}

void CWin32View::SetCursorField(int field)
{
    m_list->SetCursorField(field);
}

void CWin32View::SelectRow(int row, bool ensureVisible)
{
    m_list->SelectRow(row, ensureVisible);
}

int CWin32View::LastField() const
{
    return m_model->ColumnOf(CWordEntry::NoteField) < m_model->columnCount() ? CWordEntry::NoteField : 1;
}

int CWin32View::CursorField() const
{
    return m_list->CursorField();
}

void CWin32View::SelectEntry(int entry)
{
    m_list->SelectRow(entry == NoEntry ? NoRow : m_model->Rows().RowOfEntry(entry), true);
}

void CWin32View::SelectEntries(const std::vector<int> &entries)
{
    const CRowModel &rows = m_model->Rows();
    const auto [firstVisible, lastVisible] = m_list->VisibleRows();
    std::vector<std::pair<int, int>> ranges;
    bool inSight = false;
    for (const int entry : entries) {
        const int row = rows.RowOfEntry(entry);
        if (entry < 0 || row >= rows.RowCount()) {
            continue;
        }
        inSight = inSight || (row >= firstVisible && row <= lastVisible);
        if (!ranges.empty() && ranges.back().second == row - 1) {
            ranges.back().second = row;
        } else {
            ranges.emplace_back(row, row);
        }
    }
    m_suppressSelectionSync = true;
    m_list->SelectRanges(ranges);
    if (!ranges.empty()) {
        m_list->SetCursor(ranges.front().first, std::max(CursorField(), 0));
        if (!inSight) {
            m_list->scrollTo(m_list->currentIndex());
        }
    }
    m_suppressSelectionSync = false;
    ReadSelection();
}

void CWin32View::ShowEntry(int entry)
{
    m_list->scrollTo(m_model->index(m_model->Rows().RowOfEntry(entry), m_model->ColumnOf(0)));
}

void CWin32View::ShowMatch(const TextMatch &match, bool takeFocus)
{
    SelectEntry(match.entry);
    const int row = m_model->Rows().RowOfEntry(match.entry);
    const int length = match.end + 1 - match.start;
    const bool inList = match.column <= LastField();
    const bool inFields = m_services.settings.editor.showEditFields;
    if (inList) {
        m_list->SetCursor(row, match.column);
        m_list->scrollTo(m_list->currentIndex());
        m_list->MarkText(match.start, length);
    } else if (!inFields) {
        UpdateStatusText(m_services.texts.Fill(
            Text::FoundInNote, {ShownShort(m_services.document.List().Entry(match.entry).GetNote())}));
    }
    if (inFields) {
        m_fields->SelectText(match.column, match.start, length);
    }
    if (takeFocus && inFields) {
        m_fields->FocusText(match.column);
    } else if (takeFocus) {
        m_list->setFocus();
    }
}

void CWin32View::SelectEntryRange(int first, int last)
{
    std::vector<int> entries;
    for (int entry = first; entry <= last; ++entry) {
        entries.push_back(entry);
    }
    SelectEntries(entries);
}

void CWin32View::SelectAll()
{
    const CRowModel &rows = m_model->Rows();
    std::vector<std::pair<int, int>> ranges;
    if (InsertionPoint() > 0) {
        ranges.emplace_back(0, InsertionPoint() - 1);
    }
    if (InsertionPoint() < rows.EntryCount()) {
        ranges.emplace_back(InsertionPoint() + 1, rows.RowCount() - 1);
    }
    m_list->SelectRanges(ranges);
}

void CWin32View::ReadSelection()
{
    const int entry = FirstSelectedEntry();
    LoadFields(entry);
    UpdateStatusText();
    Q_EMIT SelectionChanged();
}

void CWin32View::KeepFields()
{
    const FieldTexts left = {.typed = m_fields->Texts(), .given = m_loadedTexts, .entry = m_loadedEntry};
    if (left.typed != left.given && FirstSelectedEntry() != m_loadedEntry) {
        // From the event loop: rows may not come while a click selects some.
        QMetaObject::invokeMethod(
            this, [this, left] { m_pending.KeepLeft(left); }, Qt::QueuedConnection);
    }
}

void CWin32View::KeepChangedFields()
{
    if (m_fields->IsChangeMode()) {
        m_pending.KeepLeft(Fields());
    }
}

void CWin32View::LoadFields(int entry)
{
    if (m_fieldsStandAlone) {
        return;
    }
    m_fields->SetChangeMode(entry != NoEntry);
    EntryTexts texts;
    if (entry != NoEntry) {
        const CWordEntry &shown = m_services.document.List().Entry(entry);
        texts = {shown.GetText(0), shown.GetText(1), shown.GetNote()};
    }
    // What is being typed there stays while the selection only moves with its rows.
    if (entry != m_loadedEntry || texts != m_loadedTexts) {
        m_fields->SetTexts(texts);
        m_loadedEntry = entry;
        m_loadedTexts = texts;
    }
}

int CWin32View::InsertionPoint() const
{
    return m_model->Rows().InsertionPoint();
}

void CWin32View::SetInsertionPoint(int row)
{
    m_model->SetInsertionPoint(row);
    ReadSelection();
}

std::optional<std::pair<int, int>> CWin32View::FlagOf(const QModelIndex &cell) const
{
    const int entry = cell.isValid() ? m_model->Rows().EntryOfRow(cell.row()) : NoEntry;
    return entry == NoEntry ? std::nullopt : std::optional(std::pair(entry, m_model->FieldOf(cell.column())));
}

void CWin32View::ShowOrder(std::optional<int> field, bool ascending)
{
    m_model->SetOrder(field, ascending);
}
