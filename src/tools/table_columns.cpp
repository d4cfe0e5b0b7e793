// SPDX-License-Identifier: MIT
#include "tools/table_columns.h"

QList<TableColumn> CTableColumns::Available() const
{
    QList<TableColumn> left;
    for (int code = 0; code < TableColumnCount; ++code) {
        if (!m_chosen.contains(TableColumn(code))) {
            left.append(TableColumn(code));
        }
    }
    return left;
}

void CTableColumns::Add(int available)
{
    const QList<TableColumn> left = Available();
    if (available >= 0 && available < left.size()) {
        m_chosen.append(left.at(available));
        Store();
    }
}

void CTableColumns::Remove(int chosen)
{
    if (chosen >= 0 && chosen < m_chosen.size()) {
        m_chosen.removeAt(chosen);
        Store();
    }
}

bool CTableColumns::CanMove(int chosen, bool up) const
{
    const int to = up ? chosen - 1 : chosen + 1;
    return chosen >= 0 && chosen < m_chosen.size() && to >= 0 && to < m_chosen.size();
}

void CTableColumns::Move(int chosen, bool up)
{
    if (CanMove(chosen, up)) {
        m_chosen.swapItemsAt(chosen, up ? chosen - 1 : chosen + 1);
        Store();
    }
}
