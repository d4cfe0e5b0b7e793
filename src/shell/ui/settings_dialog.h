// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/settings_sheet.h"
#include "shell/settings_form.h"

/// The window of the program's settings.
class CSettingsDialog : public CSettingsSheet
{
    Q_OBJECT

public:
    explicit CSettingsDialog(const SettingsFormServices &services, QWidget *parent = nullptr);

protected:
    void Store() override { m_form.Store(); }

private:
    void AddPages();

    CSettingsForm m_form;
};
