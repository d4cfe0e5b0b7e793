// SPDX-License-Identifier: MIT
#pragma once

#include "editor/row_model.h"

#include <QAbstractTableModel>

#include <functional>
#include <span>

class CTexts;
class CWin32Doc;
struct EditorSettings;

/// The document's entries and the new-entry row as rows of a table; copies nothing and asks the document for
/// every cell. Shown columns: the number (when the settings say so), language 1, language 2, the note (when the
/// settings say so). When others changed the document, Reset() is called; a row that is asked for before and
/// has no entry any more is empty.
class CWordListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A CellMark: what stands at the left edge of a cell.
    static constexpr int MarkRole = Qt::UserRole;
    enum CellMark { NotFlagged = 0, Flagged = 1, NewRow = 4 };

    /// What a field() can be besides the fields of an entry.
    static constexpr int NumberColumn = -1;

    CWordListModel(const CWin32Doc &document, const EditorSettings &settings, const CTexts &texts,
        QObject *parent = nullptr);

    CRowModel &Rows() { return m_rows; }
    const CRowModel &Rows() const { return m_rows; }
    /// The field of an entry that a shown column holds, or NumberColumn.
    int field(int column) const;
    /// The shown column of a field, which may not be shown.
    int column(int field) const;

    /// Runs `add`, which adds one entry to the document; the insertion point moves down by one.
    void AddEntry(const std::function<void()> &add);
    /// Runs `remove`, which removes these entries, ascending, from the document; the insertion point moves up
    /// by those that stood above it.
    void RemoveEntries(std::span<const int> entries, const std::function<void()> &remove);
    void SetInsertionPoint(int row);
    void RowsChanged(int first, int last);
    void AllRowsChanged() { RowsChanged(0, m_rows.RowCount() - 1); }
    /// Everything may be another than it was, the columns too.
    void Reset();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QVariant EntryData(int entry, int field, int role) const;
    QVariant NewEntryData(int field, int role) const;

    const CWin32Doc &m_document;
    const EditorSettings &m_settings;
    const CTexts &m_texts;
    CRowModel m_rows;
};
