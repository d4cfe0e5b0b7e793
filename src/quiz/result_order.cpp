// SPDX-License-Identifier: MIT
#include "quiz/result_order.h"

#include "platform/collation.h"
#include "quiz/quiz_session.h"

#include <cstring>

CResultOrder::CResultOrder(CQuizResultModel &model, const CQuizSession &session, QObject *parent)
    : QSortFilterProxyModel(parent), m_model(model), m_session(session)
{
    setDynamicSortFilter(false);
    setSourceModel(&model);
}

void CResultOrder::sort(int column, Qt::SortOrder order)
{
    if (column >= 0) {
        m_sortedBy = m_model.content(column);
        if (m_sortedBy == CQuizResultModel::Question || m_sortedBy == CQuizResultModel::Answer) {
            for (int position = 0; position < m_session.wordCount(); ++position) {
                const QuizQuestion question = m_session.questionAt(position);
                const bool asked = m_sortedBy == CQuizResultModel::Question;
                m_keyStarts.push_back(m_keys.size());
                CSwedishCollator::ForThisThread().AppendSortKey(
                    question.entry.GetText(asked ? question.questionColumn : question.answerColumn()), m_keys);
            }
        }
    }
    QSortFilterProxyModel::sort(column, order);
    m_keys.clear();
    m_keyStarts.clear();
}

void CResultOrder::setOnlyMistakes(bool only)
{
    m_onlyMistakes = only;
    invalidateFilter();
}

int CResultOrder::positionOf(int row) const
{
    return mapToSource(index(row, 0)).row();
}

int CResultOrder::rowOf(int position) const
{
    return mapFromSource(m_model.index(position, 0)).row();
}

double CResultOrder::rankOf(int position) const
{
    const QuizWordRecord &record = m_session.record(position);
    if (m_sortedBy == CQuizResultModel::WrongAnswers) {
        return record.rightCount - double(record.answers.size());
    }
    return record.answers.isEmpty() ? -1.0 : m_session.percentRight(position);
}

bool CResultOrder::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    if (m_keyStarts.empty()) {
        return rankOf(left.row()) < rankOf(right.row());
    }
    const auto key = [this](int position) { return m_keys.data() + m_keyStarts[size_t(position)]; };
    return std::strcmp(key(left.row()), key(right.row())) < 0;
}

bool CResultOrder::filterAcceptsRow(int row, const QModelIndex & /*parent*/) const
{
    return !m_onlyMistakes || m_session.wasWrong(row);
}
