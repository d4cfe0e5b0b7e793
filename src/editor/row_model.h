// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_entry.h"

#include <array>

/// The number of no row, where one may be missing.
inline constexpr int NoRow = -1;

/// The rows of the editor: N entries are shown as N + 1 rows, since the new-entry row, in which the next entry
/// is typed, stands among them at the insertion point. Knows what was typed there and is no entry yet.
class CRowModel
{
public:
    int EntryCount() const { return m_entryCount; }
    int RowCount() const { return m_entryCount + 1; }
    /// Also keeps the insertion point inside the rows.
    void SetEntryCount(int count);

    /// The row of the new-entry row, 0 to N.
    int InsertionPoint() const { return m_insertionPoint; }
    /// A row outside the rows becomes the nearest one.
    void SetInsertionPoint(int row);

    bool IsNewEntryRow(int row) const { return row == m_insertionPoint; }
    /// NoEntry for the new-entry row and for rows that don't exist.
    int EntryOfRow(int row) const;
    int RowOfEntry(int entry) const { return entry < m_insertionPoint ? entry : entry + 1; }

    /// What was typed in the new-entry row, by field.
    std::array<QString, CWordEntry::FieldCount> pending;

private:
    int m_entryCount = 0;
    int m_insertionPoint = 0;
};
