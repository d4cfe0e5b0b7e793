// SPDX-License-Identifier: MIT
#pragma once

#include "document/list_change.h"
#include "editor/row_model.h"

#include <QAbstractTableModel>

#include <optional>

class CTexts;
class CWin32Doc;
struct EditorSettings;

/// The document's entries and the new-entry row as rows of a table. Shows the list as it was at the last
/// Apply(), by a copy that shares its entries, so that rows and cells agree at each moment. Shown columns: the
/// number (when the settings say so), language 1, language 2, the note (when the settings say so). The
/// insertion point is the document's.
class CWordListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A CellMark: what stands at the left edge of a cell.
    static constexpr int MarkRole = Qt::UserRole;
    enum CellMark { NotFlagged = 0, Flagged = 1, NewRow = 4 };

    /// What a FieldOf() can be besides the fields of an entry.
    static constexpr int NumberColumn = -1;

    CWordListModel(
        CWin32Doc &document, const EditorSettings &settings, const CTexts &texts, QObject *parent = nullptr);

    CRowModel &Rows() { return m_rows; }
    const CRowModel &Rows() const { return m_rows; }
    /// The field by which the list is sorted just now, if it is, which its heading tells.
    void SetOrder(std::optional<int> field, bool ascending);
    std::optional<int> OrderField() const { return m_orderField; }
    bool IsAscending() const { return m_ascending; }
    /// The field of an entry that a shown column holds, or NumberColumn.
    int FieldOf(int column) const;
    /// The shown column of a field, which may not be shown.
    int ColumnOf(int field) const;

    /// What tells that only the start of a long text is edited.
    QString LongTextHint() const;

    /// Follows a change of the document by the rows that it concerns; all rows are new where these cannot be
    /// named in one stretch, and then the result is false.
    bool Apply(const ListChange &change);
    /// Moves the document's insertion point.
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
    QString Heading(int field) const;
    QVariant EntryData(int entry, int field, int role) const;
    QVariant NewEntryData(int field, int role) const;
    /// Rows for entries of the document's list that stand in one stretch there.
    void InsertRows(int first, int last);
    void RemoveRows(int first, int last);
    /// Entries that stand in one stretch of rows.
    void RemoveStretch(int first, int last);
    void TakeInsertionPoint();

    CWin32Doc &m_document;
    CWordList m_list;
    const EditorSettings &m_settings;
    const CTexts &m_texts;
    CRowModel m_rows;
    std::optional<int> m_orderField;
    bool m_ascending = true;
};
