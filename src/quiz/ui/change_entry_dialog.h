// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/change_entry.h"

#include <QDialog>

class QComboBox;
class QLineEdit;

/// The window for correcting entries in the middle of a quiz. It stays open, so that several can be corrected.
class CChangeEntryDialog : public QDialog
{
    Q_OBJECT

public:
    /// Starts on the entry `start`. Nothing handed in is owned.
    CChangeEntryDialog(CQuizSession &session, const CTexts &texts, int start, QWidget *parent = nullptr);

private:
    QComboBox *MakeList(int start);
    QLineEdit *MakeField(const char *name);
    void ShowFields();
    void Change();

    CChangeEntry m_entries;
    QComboBox *m_list;
    QLineEdit *m_term1;
    QLineEdit *m_term2;
    QLineEdit *m_note;
};
