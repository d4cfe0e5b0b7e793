// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_result_model.h"

#include <QSortFilterProxyModel>

#include <vector>

/// The rows of a result as they are shown: in the session's order until they are sorted by a column, all or
/// only those of words answered wrong. What was judged again keeps its place until the user sorts or filters
/// anew.
class CResultOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// Nothing is owned.
    CResultOrder(CQuizResultModel &model, const CQuizSession &session, QObject *parent = nullptr);

    /// Words sort by Swedish rules, shares by their size and words without answers before all, wrong answers by
    /// their number, the most first. Column -1 is the session's order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    void setOnlyMistakes(bool only);

    int positionOf(int row) const;
    /// -1 for a word that is not shown.
    int rowOf(int position) const;

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    double rankOf(int position) const;

    CQuizResultModel &m_model;
    const CQuizSession &m_session;
    bool m_onlyMistakes = false;
    CQuizResultModel::Column m_sortedBy = CQuizResultModel::Question;
    // While sorting by words: their sort keys behind each other, and where each begins.
    std::vector<char> m_keys;
    std::vector<size_t> m_keyStarts;
};
