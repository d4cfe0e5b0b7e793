// SPDX-License-Identifier: MIT
#include "shell/ui/settings_dialog.h"

#include "resources/texts.h"
#include "shell/text_numbers.h"
#include "shell/ui/settings_pages.h"

#include <QTimer>

CSettingsDialog::CSettingsDialog(const SettingsFormServices &services, QWidget *parent)
    : CSettingsSheet(services.texts.Get(Text::SettingsTitle), parent, Buttons::OkCancelApply), m_form(services)
{
    AddPages();
}

void CSettingsDialog::AddPages()
{
    const CTexts &texts = m_form.Services().texts;
    const auto reset = [this] {
        if (m_form.Reset()) {
            QTimer::singleShot(0, this, [this] { ReplacePages([this] { AddPages(); }); });
        }
    };
    AddPage(MakeGeneralSettingsPage(m_form, reset), texts.Get(Text::SettingsGeneralPage));
    AddPage(MakeEditingSettingsPage(m_form.editing, texts), texts.Get(Text::SettingsEditingPage));
    AddPage(MakeNewListSettingsPage(m_form.newLists, texts), texts.Get(Text::SettingsNewListsPage));
    AddPage(MakeViewSettingsPage(m_form.view, texts), texts.Get(Text::SettingsViewPage));
    AddPage(MakeDictionarySettingsPage(m_form), texts.Get(Text::SettingsDictionaryPage));
}
