// SPDX-License-Identifier: MIT
#pragma once

#include "shell/dictionary_settings_form.h"
#include "shell/settings_forms.h"

#include <functional>

class CSettingsChanges;
struct Settings;

/// What the window of settings is handed; none of it is owned.
struct SettingsFormServices
{
    Settings &settings;
    CSettingsChanges &changes;
    const CTexts &texts;
    std::function<QDate()> today;
    /// Puts all settings to their factory values, if the user wants it, and returns whether it did.
    std::function<bool()> reset;
    // What other windows are for.
    std::function<void()> chooseLanguage;
    std::function<void()> associateFiles;
    std::function<void()> openQuizSettings;
    /// Returns the folder chosen, or an empty path.
    std::function<QString(const QString &start)> chooseDictionaryFolder = {};
    /// Those of the list that is open.
    std::array<QString, 2> languages = {};
};

/// The window of settings without the window: its pages' values, stored together.
class CSettingsForm
{
public:
    explicit CSettingsForm(SettingsFormServices services);

    const SettingsFormServices &Services() const { return m_services; }
    /// Takes every page's values from the settings.
    void Load();
    /// Stores every page's values, which take effect at once.
    void Store();
    /// Asks whether to go back to the factory values; what is stored by that is not taken back with the window.
    /// Returns whether the pages have new values.
    bool Reset();

    CGeneralSettingsForm general;
    CEditingSettingsForm editing;
    CNewListSettingsForm newLists;
    CViewSettingsForm view;
    CDictionarySettingsForm dictionaries;

private:
    SettingsFormServices m_services;
};
