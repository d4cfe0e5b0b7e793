// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/accept_offer.h"
#include "quiz/answer_difference.h"

#include <QAbstractListModel>

class CQuizSession;
class CTexts;

/// What the user typed, a mark where it changes into what was right, and that: characters too many are struck
/// through, missing ones underlined. Long texts are shortened.
QString differenceAsHtml(const AnswerDifference &difference);
/// The same as a sentence with the steps from one to the other, and with the name of the slip.
QString differenceInWords(const AnswerDifference &difference, const CTexts &texts);
/// Empty for a slip without a name.
QString slipName(Slip slip, const CTexts &texts);

/// The wrong answers given to one word of a session, each once, with what was wrong. The text of a row is a
/// sentence, which assistive technology reads.
class CWrongAnswersModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The difference as markup, in which texts of the user are escaped.
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
};
