// SPDX-License-Identifier: MIT
#pragma once

#include "shell/language_choice.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

/// Asks for the language of the program, in the language that is being chosen. The choice is not noted here.
class CLanguageDialog : public QDialog
{
    Q_OBJECT

public:
    /// `choice` is not owned. `listName` names the list to assistive technology.
    explicit CLanguageDialog(CLanguageChoice &choice, QWidget *parent = nullptr);

private:
    void FillList();
    void ShowChoice();

    CLanguageChoice &m_choice;
    QLabel *m_question;
    QListWidget *m_list;
    QLabel *m_confirmation;
    QPushButton *m_ok;
    QPushButton *m_cancel;
};
