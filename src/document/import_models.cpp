// SPDX-License-Identifier: MIT
#include "document/import_models.h"

#include "document/import_form.h"
#include "document/text_numbers.h"
#include "platform/plain_text.h"
#include "resources/texts.h"

#include <algorithm>

int CImportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int CImportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

void CImportModel::Resize(int rows, int columns)
{
    if (rows != m_rows || columns != m_columns) {
        beginResetModel();
        m_rows = rows;
        m_columns = columns;
        endResetModel();
    } else if (rows > 0 && columns > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columns - 1));
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns - 1);
    }
}

void CImportRowsModel::Renew()
{
    const CImportPreview &preview = Form().Preview();
    Resize(int(preview.Rows().size()), preview.ColumnCount());
}

QVariant CImportRowsModel::data(const QModelIndex &index, int role) const
{
    const auto &rows = Form().Preview().Rows();
    if (!index.isValid() || size_t(index.row()) >= rows.size()) {
        return {};
    }
    const CImportPreview::Row &row = rows[size_t(index.row())];
    const bool isLeftOut = !row.entry || Form().Preview().Column(index.column()) == TextColumn::LeftOut;
    switch (role) {
    case Qt::DisplayRole:
        return OneLine(row.cells.value(index.column()));
    case LeftOutRole:
        return isLeftOut;
    case Qt::AccessibleDescriptionRole:
        return isLeftOut ? Form().Texts().Get(Text::PreviewRowLeftOut) : QString();
    default:
        return {};
    }
}

QVariant CImportRowsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? Form().ColumnHeading(section)
                                                                    : QVariant();
}

void CImportEntriesModel::Renew()
{
    const CImportPreview &preview = Form().Preview();
    m_entryRows.clear();
    for (size_t row = 0; row < preview.Rows().size(); ++row) {
        if (preview.Rows()[row].entry) {
            m_entryRows.push_back(row);
        }
    }
    m_fields = {0, 1};
    for (const int field : {2, 3, 4}) {
        if (std::ranges::find(preview.Choices().layout.columns, TextColumn(field + 1))
            != preview.Choices().layout.columns.end()) {
            m_fields.push_back(field);
        }
    }
    Resize(int(m_entryRows.size()), int(m_fields.size()));
}

QVariant CImportEntriesModel::data(const QModelIndex &index, int role) const
{
    const auto &rows = Form().Preview().Rows();
    if (!index.isValid() || role != Qt::DisplayRole || size_t(index.row()) >= m_entryRows.size()
        || size_t(index.column()) >= m_fields.size() || m_entryRows[size_t(index.row())] >= rows.size()) {
        return {};
    }
    const auto &entry = rows[m_entryRows[size_t(index.row())]].entry;
    if (!entry) {
        return {};
    }
    const int field = m_fields[size_t(index.column())];
    if (field <= CWordEntry::NoteField) {
        return ShownShort(entry->GetField(field));
    }
    const bool isFlagged = entry->GetFlag(field - CWordEntry::NoteField - 1);
    return isFlagged ? Form().Texts().Get(Text::PreviewFlagged) : QString();
}

QVariant CImportEntriesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || size_t(section) >= m_fields.size()) {
        return {};
    }
    return Form().EntryHeading(m_fields[size_t(section)]);
}
