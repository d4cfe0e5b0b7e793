// SPDX-License-Identifier: MIT
#include "quiz/wrong_answers_model.h"

#include "quiz/difference_text.h"
#include "quiz/quiz_session.h"

CWrongAnswersModel::CWrongAnswersModel(const CQuizSession &session, const CTexts &texts, QObject *parent)
    : QAbstractListModel(parent), m_session(session), m_texts(texts)
{
}

void CWrongAnswersModel::setPosition(int position)
{
    beginResetModel();
    m_position = position;
    m_shown.clear();
    m_answers = position < 0 ? QStringList() : m_session.wrongAnswers(position);
    m_answers.removeDuplicates();
    endResetModel();
}

AcceptOffer CWrongAnswersModel::acceptOffer(int row) const
{
    const bool exists = row >= 0 && row < m_answers.size();
    return exists ? ::acceptOffer(m_session, m_position, m_answers.at(row)) : AcceptOffer();
}

int CWrongAnswersModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_answers.size());
}

QVariant CWrongAnswersModel::data(const QModelIndex &index, int role) const
{
    if ((role != Qt::DisplayRole && role != MarkupRole) || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    auto shown = m_shown.constFind(index.row());
    if (shown == m_shown.constEnd()) {
        const QString &answer = m_answers.at(index.row());
        shown = m_shown.insert(index.row(),
            {wrongAnswerInWords(m_session, m_texts, m_position, answer),
                wrongAnswerAsHtml(m_session, m_texts, m_position, answer)});
    }
    return role == MarkupRole ? shown->markup : shown->words;
}
