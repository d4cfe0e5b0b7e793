// SPDX-License-Identifier: MIT
#include "shell/settings_form.h"

#include "settings/settings.h"
#include "settings/settings_changes.h"

CSettingsForm::CSettingsForm(SettingsFormServices services)
    : newLists(services.texts, services.today()), dictionaries(services.languages),
      m_services(std::move(services))
{
    Load();
}

void CSettingsForm::Load()
{
    general.Load(m_services.settings.misc);
    editing.Load(m_services.settings.editor);
    newLists.Load(m_services.settings.editor);
    view.Load(m_services.settings.editor);
    dictionaries.Load(m_services.settings.dictionaries);
}

void CSettingsForm::Store()
{
    general.Store(m_services.settings.misc);
    editing.Store(m_services.settings.editor);
    newLists.Store(m_services.settings.editor);
    view.Store(m_services.settings.editor);
    dictionaries.Store(m_services.settings.dictionaries);
    m_services.changes.Tell(SettingsSection::Misc);
    m_services.changes.Tell(SettingsSection::Editor);
}

bool CSettingsForm::Reset()
{
    if (!m_services.reset()) {
        return false;
    }
    Load();
    using enum SettingsSection;
    for (const SettingsSection section : {Misc, Editor, Quiz, Arrange, Find, FileSearch, EasyKey}) {
        m_services.changes.Tell(section);
    }
    return true;
}
