// SPDX-License-Identifier: MIT
#pragma once

#include "tools/table_cells.h"

/// The choice of a table's columns: those that it has, in their order, and those that are left. Keeps the
/// stored form up to date with each change. A row that there isn't is left alone.
class CTableColumns
{
public:
    /// `stored` is not owned.
    explicit CTableColumns(QString &stored) : m_stored(stored), m_chosen(ParseColumns(stored)) { }

    const QList<TableColumn> &Chosen() const { return m_chosen; }
    /// In the order of their numbers.
    QList<TableColumn> Available() const;

    /// Puts a column that is left at the end of those chosen.
    void Add(int available);
    void Remove(int chosen);
    bool CanMove(int chosen, bool up) const;
    /// By one place.
    void Move(int chosen, bool up);

private:
    void Store() { m_stored = StoredColumns(m_chosen); }

    QString &m_stored;
    QList<TableColumn> m_chosen;
};
