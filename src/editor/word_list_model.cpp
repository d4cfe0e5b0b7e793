// SPDX-License-Identifier: MIT
#include "editor/word_list_model.h"

#include "document/win32_doc.h"
#include "platform/plain_text.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

#include <algorithm>

namespace {

bool IsLanguage(int field)
{
    return field == 0 || field == 1;
}

}

CWordListModel::CWordListModel(
    const CWin32Doc &document, const EditorSettings &settings, const CTexts &texts, QObject *parent)
    : QAbstractTableModel(parent), m_document(document), m_settings(settings), m_texts(texts)
{
    m_rows.SetEntryCount(document.List().Count());
}

int CWordListModel::field(int column) const
{
    return m_settings.showWordNumber ? column - 1 : column;
}

int CWordListModel::column(int field) const
{
    return m_settings.showWordNumber ? field + 1 : field;
}

void CWordListModel::AddEntry(const std::function<void()> &add)
{
    const int row = m_rows.InsertionPoint();
    beginInsertRows({}, row, row);
    add();
    m_rows.SetEntryCount(m_rows.EntryCount() + 1);
    m_rows.SetInsertionPoint(row + 1);
    endInsertRows();
}

void CWordListModel::RemoveEntries(std::span<const int> entries, const std::function<void()> &remove)
{
    const int first = m_rows.RowOfEntry(entries.front());
    const int last = m_rows.RowOfEntry(entries.back());
    const int above = int(std::ranges::lower_bound(entries, m_rows.InsertionPoint()) - entries.begin());
    // One block of rows goes as such; many, which would each move all that follow, at once.
    const bool block = last - first + 1 == int(entries.size());
    if (block) {
        beginRemoveRows({}, first, last);
    } else {
        beginResetModel();
    }
    remove();
    m_rows.SetInsertionPoint(m_rows.InsertionPoint() - above);
    m_rows.SetEntryCount(m_document.List().Count());
    if (block) {
        endRemoveRows();
    } else {
        endResetModel();
    }
}

void CWordListModel::SetInsertionPoint(int row)
{
    m_rows.SetInsertionPoint(row);
    AllRowsChanged();
}

void CWordListModel::RowsChanged(int first, int last)
{
    Q_EMIT dataChanged(index(first, 0), index(last, columnCount() - 1));
}

void CWordListModel::Reset()
{
    beginResetModel();
    m_rows.SetEntryCount(m_document.List().Count());
    endResetModel();
}

int CWordListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.RowCount();
}

int CWordListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2 + int(m_settings.showWordNumber) + int(m_settings.showNotes);
}

Qt::ItemFlags CWordListModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return field(index.column()) == NumberColumn ? flags : flags | Qt::ItemIsEditable;
}

QVariant CWordListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int cellField = field(index.column());
    if (role == Qt::TextAlignmentRole && cellField == NumberColumn) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (m_rows.IsNewEntryRow(index.row())) {
        return NewEntryData(cellField, role);
    }
    const int entry = m_rows.EntryOfRow(index.row());
    return entry < m_document.List().Count() ? EntryData(entry, cellField, role) : QVariant();
}

QVariant CWordListModel::EntryData(int entry, int field, int role) const
{
    const CWordEntry &shown = m_document.List().Entry(entry);
    switch (role) {
    case Qt::ToolTipRole:
        return field == NumberColumn ? QVariant() : ShownAsPlainText(shown.GetField(field));
    case Qt::DisplayRole:
        return field == NumberColumn ? QString::number(entry + 1) : shown.GetField(field);
    case Qt::EditRole:
        return shown.GetField(field);
    case MarkRole:
        return IsLanguage(field) ? QVariant(int(shown.GetFlag(field) ? Flagged : CellMark::NotFlagged))
                                 : QVariant();
    case Qt::AccessibleTextRole:
        if (IsLanguage(field)) {
            const QString flag = m_texts.Get(shown.GetFlag(field) ? Text::Flagged : Text::NotFlagged);
            return QString(shown.GetField(field) + QStringLiteral(", ") + flag);
        }
        return {};
    default:
        return {};
    }
}

QVariant CWordListModel::NewEntryData(int field, int role) const
{
    if (field == NumberColumn) {
        return {};
    }
    const QString &pending = m_rows.pending[size_t(field)];
    switch (role) {
    case Qt::DisplayRole:
        return pending.isEmpty() ? m_texts.Get(Text::NewEntry) : pending;
    case Qt::EditRole:
        return pending;
    case MarkRole:
        return int(NewRow);
    case Qt::TextAlignmentRole:
        return pending.isEmpty() ? QVariant(int(Qt::AlignCenter)) : QVariant();
    case Qt::AccessibleTextRole:
        return pending.isEmpty() ? m_texts.Get(Text::NewEntryRow)
                                 : QString(m_texts.Get(Text::NewEntryRow) + QStringLiteral(", ") + pending);
    default:
        return {};
    }
}

QVariant CWordListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    const int headerField = field(section);
    if (role == Qt::TextAlignmentRole) {
        return int((headerField == NumberColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (headerField) {
    case NumberColumn:
        return m_texts.Get(Text::NumberColumn);
    case CWordEntry::NoteField:
        return m_texts.Get(Text::Note);
    default:
        return m_document.List().GetLanguage(headerField).trimmed();
    }
}
