// SPDX-License-Identifier: MIT
#include "editor/find_results.h"

#include "editor/text_numbers.h"
#include "platform/plain_text.h"
#include "resources/texts.h"

#include <algorithm>

CFindResults::CFindResults(const CTexts &texts, QObject *parent) : QAbstractTableModel(parent), m_texts(texts)
{
}

void CFindResults::Begin(const CWordList &list, const TextSearch &search)
{
    beginResetModel();
    m_list = list;
    m_search = search;
    m_matcher = CTextMatcher(search);
    m_entries.clear();
    m_searched = 0;
    endResetModel();
}

void CFindResults::Clear(const CWordList &list)
{
    CWordList empty = list;
    empty.DeleteAll();
    Begin(empty, {});
}

void CFindResults::Search(int count)
{
    const int end = m_searched + std::min(count, m_list.Count() - m_searched);
    const std::vector<int> found = m_list.FindAll(m_search, m_searched, end);
    m_searched = end;
    if (!found.empty()) {
        const int rows = int(m_entries.size());
        beginInsertRows({}, rows, rows + int(found.size()) - 1);
        m_entries.insert(m_entries.end(), found.begin(), found.end());
        endInsertRows();
    }
}

TextMatch CFindResults::MatchIn(int row, int column) const
{
    if (m_search.text.isEmpty() || (m_search.column != AllColumns && m_search.column != column)) {
        return {};
    }
    const int entry = m_entries[size_t(row)];
    const auto range = m_matcher.Find(m_list.Entry(entry).GetField(column));
    return range ? TextMatch{entry, column, int(range->start), int(range->start + range->length) - 1}
                 : TextMatch();
}

TextMatch CFindResults::FirstMatchIn(int row) const
{
    return m_list.FindNext(m_search, m_entries[size_t(row)] - 1, true);
}

int CFindResults::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int CFindResults::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : CWordEntry::FieldCount;
}

QVariant CFindResults::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const QString &text = m_list.Entry(m_entries[size_t(index.row())]).GetField(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return ShownShort(text);
    default:
        return {};
    }
}

QVariant CFindResults::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == CWordEntry::NoteField ? m_texts.Get(Text::Note)
                                            : ShownShort(m_list.GetLanguage(section).trimmed());
}
