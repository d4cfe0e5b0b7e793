// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/settings_sheet.h"
#include "shell/list_properties_form.h"

class QFormLayout;

/// The window of a list's properties.
class CListPropertiesDialog : public CSettingsSheet
{
    Q_OBJECT

public:
    explicit CListPropertiesDialog(const CListPropertiesForm &form, QWidget *parent = nullptr);

protected:
    void Store() override { m_form.Accept(); }

private:
    QWidget *MakeGeneralPage();
    QWidget *MakeQuestionsPage();
    void AddQuestion(QFormLayout &rows, int direction);

Q_SIGNALS:
    /// The names of the languages or a question are others.
    void ValuesChanged();

private:
    CListPropertiesForm m_form;
};
