// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/change_entry.h"

#include <QDialog>

class CElidedLabel;
class QComboBox;
class QLineEdit;

/// The window for correcting entries in the middle of a quiz. It stays open, so that several can be corrected.
class CChangeEntryDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts on the entry `start`. Nothing handed in is owned.
    CChangeEntryDialog(
        CQuizSession &session, const CTexts &texts, IUserPrompt &prompt, int start, QWidget *parent = nullptr);

    /// Asks first where something typed would be lost.
    void reject() override;

private:
    QComboBox *makeList(int start);
    QLineEdit *makeField(const char *name);
    CChangeEntry::Fields typed() const;
    void showEntry(int entry);
    void chooseEntry(int entry);
    void change();

    CChangeEntry m_entries;
    int m_entry = 0;
    QComboBox *m_list;
    QLineEdit *m_term1;
    QLineEdit *m_term2;
    QLineEdit *m_note;
    CElidedLabel *m_stored;
};
