// SPDX-License-Identifier: MIT
#pragma once

#include "resources/placeholders.h"

#include <QAbstractTableModel>

class CQuizSession;
class CTexts;

/// During a quiz the right answers are left out.
enum class ResultMode { AfterQuiz, DuringQuiz };

/// The words of a session as rows of a table, in the session's order. Keeps nothing: a row is made when it is
/// looked at.
class CQuizResultModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Question, Answer, Share, WrongAnswers };
    /// Of a share: the right answers in percent, rounded half up; 0 without answers.
    static constexpr int PercentRole = Qt::UserRole;
    /// The text of a cell as it is saved and copied; that which is shown is isolated.
    static constexpr int StoredRole = Qt::UserRole + 1;

    CQuizResultModel(
        const CQuizSession &session, const CTexts &texts, ResultMode mode, QObject *parent = nullptr);

    /// What a shown column holds.
    Column content(int column) const;
    /// Call when the word was judged again.
    void wordChanged(int position);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString cell(int position, Column content, FilledFor use) const;
    QString share(int position) const;
    QString wrongAnswers(int position, FilledFor use) const;

    const CQuizSession &m_session;
    const CTexts &m_texts;
    ResultMode m_mode;
};
