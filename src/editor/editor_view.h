// SPDX-License-Identifier: MIT
#pragma once

#include "model/text_search.h"

#include <QString>

#include <vector>

/// What the commands of the editor see of its view: what is selected, where the cell cursor and the insertion
/// point stand. Rows are those of CRowModel, entries those of the document's list.
class IEditorView
{
public:
    IEditorView() = default;
    virtual ~IEditorView() = default;
    IEditorView(const IEditorView &) = delete;
    IEditorView &operator=(const IEditorView &) = delete;

    /// Ascending.
    virtual std::vector<int> SelectedEntries() const = 0;
    /// NoEntry when none is selected.
    virtual int FirstSelectedEntry() const = 0;
    /// NoRow when none is selected.
    virtual int FirstSelectedRow() const = 0;
    virtual int RowCount() const = 0;
    /// NoRow without a cell cursor.
    virtual int CursorRow() const = 0;
    /// The field of the cell cursor: 0 and 1 are the languages, 2 the note; CWordListModel::NumberColumn on the
    /// numbers.
    virtual int CursorField() const = 0;
    /// The last field that is shown.
    virtual int LastField() const = 0;
    virtual int InsertionPoint() const = 0;

    /// Selects one row alone; none for NoRow.
    virtual void SelectRow(int row, bool ensureVisible) = 0;
    /// Selects these entries alone, and scrolls to the first when none of them is in sight.
    virtual void SelectEntryRange(int first, int last) = 0;
    virtual void SelectEntries(const std::vector<int> &entries) = 0;
    /// Scrolls until the whole row of an entry is in sight.
    virtual void ShowEntry(int entry) = 0;
    /// Selects the entry of a match alone and lets the text that was found stand out. With `takeFocus` typing
    /// goes on there.
    virtual void ShowMatch(const TextMatch &match, bool takeFocus) = 0;
    virtual void SetCursorField(int field) = 0;
    virtual void SetInsertionPoint(int row) = 0;
    /// Shows a text in the status line until something else is to be told.
    virtual void UpdateStatusText(const QString &text) = 0;
    /// Asks before it deletes the selected entries.
    virtual void DeleteSelection() = 0;
};
