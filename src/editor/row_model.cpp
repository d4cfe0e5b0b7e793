// SPDX-License-Identifier: MIT
#include "editor/row_model.h"

#include <algorithm>

void CRowModel::SetEntryCount(int count)
{
    m_entryCount = count;
    SetInsertionPoint(m_insertionPoint);
}

void CRowModel::SetInsertionPoint(int row)
{
    m_insertionPoint = std::clamp(row, 0, m_entryCount);
}

int CRowModel::EntryOfRow(int row) const
{
    if (row < 0 || row > m_entryCount || row == m_insertionPoint) {
        return NoEntry;
    }
    return row < m_insertionPoint ? row : row - 1;
}
