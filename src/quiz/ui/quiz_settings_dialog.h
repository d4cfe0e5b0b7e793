// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/settings_sheet.h"
#include "quiz/quiz_settings_form.h"

/// The window of quiz settings: three pages, stored together with OK.
class CQuizSettingsDialog : public CSettingsSheet
{
    Q_OBJECT

public:
    explicit CQuizSettingsDialog(const CQuizSettingsForm &form, QWidget *parent = nullptr);

protected:
    void Store() override { m_form.accept(); }

private:
    CQuizSettingsForm m_form;
};
