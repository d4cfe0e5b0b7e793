// SPDX-License-Identifier: MIT
#include "editor/word_list_model.h"

#include "document/win32_doc.h"
#include "editor/text_numbers.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

#include <algorithm>
#include <numeric>

namespace {

bool IsLanguage(int field)
{
    return field == 0 || field == 1;
}

/// The stretches, first and last, of the `wholeCount` entries of a list from `first` on that are not among the
/// `partCount` ones of the other list, from the end to the start; none when they are too many to be told one by
/// one.
std::optional<std::vector<std::pair<int, int>>> StretchesApart(
    const CWordList &whole, int wholeCount, const CWordList &part, int partCount, int first)
{
    constexpr size_t Most = 100;
    std::vector<std::pair<int, int>> stretches;
    int left = partCount;
    for (int i = first + wholeCount - 1; i >= first; --i) {
        // States share the entries that stayed.
        if (left > 0 && &whole.Entry(i) == &part.Entry(first + left - 1)) {
            --left;
        } else if (!stretches.empty() && stretches.back().first == i + 1) {
            stretches.back().first = i;
        } else if (stretches.size() < Most) {
            stretches.emplace_back(i, i);
        } else {
            return std::nullopt;
        }
    }
    return stretches;
}

}

CWordListModel::CWordListModel(
    CWin32Doc &document, const EditorSettings &settings, const CTexts &texts, QObject *parent)
    : QAbstractTableModel(parent), m_document(document), m_list(document.List()), m_settings(settings),
      m_texts(texts)
{
    m_rows.SetEntryCount(m_list.Count());
    m_rows.SetInsertionPoint(document.InsertionPoint());
}

int CWordListModel::FieldOf(int column) const
{
    return m_settings.showWordNumber ? column - 1 : column;
}

int CWordListModel::ColumnOf(int field) const
{
    return m_settings.showWordNumber ? field + 1 : field;
}

QString CWordListModel::LongTextHint() const
{
    return m_texts.Get(Text::LongText);
}

bool CWordListModel::Apply(const ListChange &change)
{
    const ListDifference &difference = change.difference;
    const bool inserts = difference.entries == ListDifference::Entries::Inserted;
    const bool removes = difference.entries == ListDifference::Entries::Removed;
    std::optional<std::vector<std::pair<int, int>>> stretches;
    if (inserts) {
        stretches = StretchesApart(
            m_document.List(), difference.inserted, m_list, difference.removed, difference.first);
    } else if (removes) {
        stretches = StretchesApart(
            m_list, difference.removed, m_document.List(), difference.inserted, difference.first);
    }
    const bool inPlace = difference.removed == difference.inserted;
    if (change.replaced || !(stretches || inPlace)) {
        if (change.replaced) {
            m_rows.pending = {};
        }
        Reset();
        return false;
    }
    if (inserts) {
        std::for_each(stretches->rbegin(), stretches->rend(),
            [this](const auto &stretch) { InsertRows(stretch.first, stretch.second); });
    } else if (removes) {
        for (const auto &[first, last] : *stretches) {
            RemoveRows(first, last);
        }
    }
    m_list = m_document.List();
    if (inPlace && difference.inserted > 0) {
        RowsChanged(
            m_rows.RowOfEntry(difference.first), m_rows.RowOfEntry(difference.first + difference.inserted - 1));
    }
    if (difference.properties) {
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
    TakeInsertionPoint();
    return true;
}

void CWordListModel::InsertRows(int first, int last)
{
    CWordList inserted;
    for (int entry = first; entry <= last; ++entry) {
        inserted.Insert(m_document.List().Entry(entry));
    }
    // At the insertion point they come to stand above the new-entry row.
    const int point = m_rows.InsertionPoint();
    const bool above = first <= point;
    const int row = above ? first : first + 1;
    beginInsertRows({}, row, row + last - first);
    m_list.InsertAll(inserted, first);
    m_rows.SetEntryCount(m_list.Count());
    m_rows.SetInsertionPoint(above ? point + inserted.Count() : point);
    endInsertRows();
}

void CWordListModel::RemoveRows(int first, int last)
{
    // The new-entry row may stand among them and stays.
    const int end = last + 1;
    const int middle = std::clamp(m_rows.InsertionPoint(), first, end);
    if (middle < end) {
        RemoveStretch(middle, last);
    }
    if (first < middle) {
        RemoveStretch(first, middle - 1);
    }
}

void CWordListModel::RemoveStretch(int first, int last)
{
    const int count = last - first + 1;
    const int point = m_rows.InsertionPoint();
    beginRemoveRows({}, m_rows.RowOfEntry(first), m_rows.RowOfEntry(last));
    std::vector<int> entries(size_t(count), 0);
    std::iota(entries.begin(), entries.end(), first);
    m_list.DeleteEntries(entries);
    m_rows.SetInsertionPoint(last < point ? point - count : point);
    m_rows.SetEntryCount(m_list.Count());
    endRemoveRows();
}

void CWordListModel::TakeInsertionPoint()
{
    if (m_rows.InsertionPoint() != m_document.InsertionPoint()) {
        m_rows.SetInsertionPoint(m_document.InsertionPoint());
        AllRowsChanged();
    }
}

void CWordListModel::SetInsertionPoint(int row)
{
    m_document.SetInsertionPoint(row);
    TakeInsertionPoint();
}

void CWordListModel::RowsChanged(int first, int last)
{
    Q_EMIT dataChanged(index(first, 0), index(last, columnCount() - 1));
}

void CWordListModel::Reset()
{
    beginResetModel();
    m_list = m_document.List();
    m_rows.SetEntryCount(m_list.Count());
    m_rows.SetInsertionPoint(m_document.InsertionPoint());
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
    const int field = FieldOf(index.column());
    if (field == NumberColumn) {
        return flags;
    }
    const bool hasFlag = IsLanguage(field) && !m_rows.IsNewEntryRow(index.row());
    return flags | Qt::ItemIsEditable | (hasFlag ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

QVariant CWordListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int cellField = FieldOf(index.column());
    if (role == Qt::TextAlignmentRole && cellField == NumberColumn) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (m_rows.IsNewEntryRow(index.row())) {
        return NewEntryData(cellField, role);
    }
    const int entry = m_rows.EntryOfRow(index.row());
    return EntryData(entry, cellField, role);
}

QVariant CWordListModel::EntryData(int entry, int field, int role) const
{
    const CWordEntry &shown = m_list.Entry(entry);
    switch (role) {
    case Qt::ToolTipRole:
        return field == NumberColumn ? QVariant() : ShownShort(shown.GetField(field));
    case Qt::DisplayRole:
        return field == NumberColumn ? QString::number(entry + 1) : shown.GetField(field);
    case Qt::EditRole:
        return shown.GetField(field);
    case MarkRole:
        return IsLanguage(field) ? QVariant(int(shown.GetFlag(field) ? Flagged : CellMark::NotFlagged))
                                 : QVariant();
    case Qt::CheckStateRole: // Of the flag, for assistive technology; it is drawn as a mark.
        return IsLanguage(field) ? QVariant(int(shown.GetFlag(field) ? Qt::Checked : Qt::Unchecked))
                                 : QVariant();
    case Qt::AccessibleTextRole:
        if (IsLanguage(field)) {
            const QString flag = m_texts.Get(shown.GetFlag(field) ? Text::Flagged : Text::NotFlagged);
            return QString(ShownShort(shown.GetField(field)) + QStringLiteral(", ") + flag);
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
        return pending.isEmpty()
            ? m_texts.Get(Text::NewEntryRow)
            : QString(m_texts.Get(Text::NewEntryRow) + QStringLiteral(", ") + ShownShort(pending));
    default:
        return {};
    }
}

QVariant CWordListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    const int headerField = FieldOf(section);
    if (role == Qt::TextAlignmentRole) {
        return int((headerField == NumberColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (role == Qt::AccessibleTextRole && headerField != NumberColumn && headerField == m_orderField) {
        return m_texts.Fill(
            m_ascending ? Text::SortedAscending : Text::SortedDescending, {Heading(headerField)});
    }
    return role == Qt::DisplayRole ? Heading(headerField) : QVariant();
}

QString CWordListModel::Heading(int field) const
{
    switch (field) {
    case NumberColumn:
        return m_texts.Get(Text::NumberColumn);
    case CWordEntry::NoteField:
        return m_texts.Get(Text::Note);
    default:
        return ShownShort(m_list.GetLanguage(field).trimmed());
    }
}

void CWordListModel::SetOrder(std::optional<int> field, bool ascending)
{
    m_orderField = field;
    m_ascending = ascending;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}
