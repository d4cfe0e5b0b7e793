// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

#include <QAbstractTableModel>

class CTexts;

/// What a search finds, as rows of language 1, language 2 and note. Keeps the numbers of the entries alone;
/// texts are read when they are looked at, in the list as it was when the search began. Searches in pieces, so
/// that whoever types is not kept waiting.
class CFindResults : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit CFindResults(const CTexts &texts, QObject *parent = nullptr);

    /// Finds nothing yet; Search() does.
    void Begin(const CWordList &list, const TextSearch &search);
    /// Finds nothing; the headings are those of a list.
    void Clear(const CWordList &list);
    /// Looks through the next `count` entries.
    void Search(int count);
    bool IsDone() const { return m_searched >= m_list.Count(); }

    /// Ascending.
    const std::vector<int> &Entries() const { return m_entries; }
    /// Of the list that is searched.
    int EntryCount() const { return m_list.Count(); }
    /// Where the text of the search stands in the cell of an entry; nothing where it doesn't, or the cell is
    /// not searched.
    TextMatch MatchIn(int row, int column) const;
    /// The place that the search would stop at in a row.
    TextMatch FirstMatchIn(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    const CTexts &m_texts;
    CWordList m_list;
    TextSearch m_search;
    CTextMatcher m_matcher{m_search};
    std::vector<int> m_entries;
    int m_searched = 0;
};
