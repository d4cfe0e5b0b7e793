// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

class CQuizSession;
class CTexts;
class IUserPrompt;

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

    CChangeEntry(CQuizSession &session, const CTexts &texts, IUserPrompt &prompt, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

    /// The label of a language's field.
    QString label(int language) const;
    Fields fieldsOf(int entry) const;
    /// Tidies the terms and changes the entry. Does nothing and returns false when a term is empty.
    bool change(int entry, const Fields &typed);
    /// What tells that an entry was stored; long texts are shortened.
    QString storedLine(int entry) const;
    /// Whether what was typed for an entry may go from the screen: where it would change the entry, the user is
    /// asked whether to store it, and may stay. False too when it is to be stored and can't be.
    bool mayLeave(int entry, const Fields &typed);

private:
    QString line(int entry) const;
    bool wouldChange(int entry, const Fields &typed) const;

    CQuizSession &m_session;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    QString m_lineFormat;
};
