// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_settings_form.h"

#include <QDialog>

/// The window of quiz settings: three pages, stored together with OK.
class CQuizSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CQuizSettingsDialog(const CQuizSettingsForm &form, QWidget *parent = nullptr);

    void accept() override;

private:
    CQuizSettingsForm m_form;
};
