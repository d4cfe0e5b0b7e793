// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/accept_offer.h"

#include <QAbstractListModel>
#include <QHash>

class CQuizSession;
class CTexts;

/// The wrong answers given to one word of a session, each once, with what was wrong. The text of a row is a
/// sentence, which assistive technology reads.
class CWrongAnswersModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The difference as markup.
    static constexpr int MarkupRole = Qt::UserRole;

    CWrongAnswersModel(const CQuizSession &session, const CTexts &texts, QObject *parent = nullptr);

    /// Shows the answers of another word, or of the same as it is now judged; -1 for none.
    void setPosition(int position);
    int position() const { return m_position; }
    /// What "I was right" would do about an answer.
    AcceptOffer acceptOffer(int row) const;
    const QStringList &answers() const { return m_answers; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    const CQuizSession &m_session;
    const CTexts &m_texts;
    int m_position = -1;
    QStringList m_answers;
    /// What was wrong with each, in words and as markup: made when it is looked at first.
    struct Shown
    {
        QString words;
        QString markup;
    };
    mutable QHash<int, Shown> m_shown;
};
