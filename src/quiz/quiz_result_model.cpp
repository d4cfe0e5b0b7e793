// SPDX-License-Identifier: MIT
#include "quiz/quiz_result_model.h"

#include "document/win32_doc.h"
#include "platform/plain_text.h"
#include "quiz/quiz_session.h"
#include "quiz/rounding.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

CQuizResultModel::CQuizResultModel(
    const CQuizSession &session, const CTexts &texts, ResultMode mode, QObject *parent)
    : QAbstractTableModel(parent), m_session(session), m_texts(texts), m_mode(mode)
{
}

CQuizResultModel::Column CQuizResultModel::content(int column) const
{
    return Column(m_mode == ResultMode::DuringQuiz && column > Question ? column + 1 : column);
}

void CQuizResultModel::wordChanged(int position)
{
    Q_EMIT dataChanged(index(position, 0), index(position, columnCount() - 1));
}

int CQuizResultModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_session.wordCount();
}

int CQuizResultModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_mode == ResultMode::DuringQuiz ? 3 : 4;
}

QVariant CQuizResultModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Column shown = content(index.column());
    if (role == Qt::DisplayRole || role == StoredRole) {
        return cell(index.row(), shown, role == StoredRole ? FilledFor::Storage : FilledFor::Screen);
    }
    if (shown == Share && role == PercentRole) {
        return roundHalfUp(m_session.percentRight(index.row()));
    }
    if (shown == Share && role == Qt::TextAlignmentRole) {
        return int(Qt::AlignCenter);
    }
    return {};
}

QVariant CQuizResultModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const CWordList &list = m_session.document().List();
    switch (content(section)) {
    case Question:
        return list.GetLanguage(1 - m_session.answerColumn());
    case Answer:
        return list.GetLanguage(m_session.answerColumn());
    case Share:
        return m_texts.Get(Text::ResultPercent);
    case WrongAnswers:
        return m_texts.Get(Text::WrongAnswers);
    }
    return {};
}

QString CQuizResultModel::cell(int position, Column content, FilledFor use) const
{
    switch (content) {
    case Question:
    case Answer: {
        const QuizQuestion question = m_session.questionAt(position);
        const QString term =
            question.entry.GetText(content == Question ? question.questionColumn : question.answerColumn());
        return use == FilledFor::Storage ? term : Isolated(term);
    }
    case Share:
        return share(position);
    case WrongAnswers:
        return wrongAnswers(position, use);
    }
    return {};
}

QString CQuizResultModel::share(int position) const
{
    const QuizWordRecord &record = m_session.record(position);
    if (record.answers.isEmpty()) {
        return m_texts.Get(Text::NoAnswers);
    }
    return m_texts.Fill(Text::AnswersOfTotal,
        {QString::number(record.rightCount), QString::number(record.answers.size()),
            QString::number(roundHalfUp(m_session.percentRight(position)))});
}

QString CQuizResultModel::wrongAnswers(int position, FilledFor use) const
{
    QStringList wrong = m_session.wrongAnswers(position);
    for (QString &answer : wrong) {
        answer = m_texts.Fill(Text::Quoted, {answer}, use);
    }
    return wrong.join(m_texts.Get(Text::QuotedSeparator));
}
