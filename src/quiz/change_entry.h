// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

class CQuizSession;
class CTexts;

/// What the window for correcting entries in the middle of a quiz shows and does. As a model it has a line for
/// each entry of the list, made when it is asked for: a long list costs no more than a short one. Nothing
/// handed in is owned.
class CChangeEntry : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Fields
    {
        QString term1 = {};
        QString term2 = {};
        QString note = {};
    };

    CChangeEntry(CQuizSession &session, const CTexts &texts, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// The label of a language's field.
    QString Label(int language) const;
    Fields FieldsOf(int entry) const;
    /// Tidies the terms and changes the entry. Does nothing and returns false when a term is empty.
    bool Change(int entry, const Fields &typed);

private:
    QString Line(int entry) const;

    CQuizSession &m_session;
    const CTexts &m_texts;
    QString m_lineFormat;
};
