// SPDX-License-Identifier: MIT
#pragma once

#include "settings/registry_settings.h"
#include "settings/settings.h"

class CTexts;
class IUserPrompt;

/// Every setting of the program, held by the application for the whole run: loaded at its start and saved at
/// its exit.
class CAppSettings : public CRegistrySettings, public Settings
{
public:
    /// Neither is owned.
    CAppSettings(ISettingsStore &store, const CTexts &texts);

    void Exchange(bool load) override;
    QString GetRegistryPath() const override { return RootPath(); }
    static QString RootPath() { return QStringLiteral("Software\\Ornbury Workshops\\Ordelin"); }

    /// Puts every setting that has one to its factory value, texts to those of the language in force.
    void SetDefaults();
    /// Asks first, and returns whether the settings were reset; any answer but Yes changes nothing.
    bool ResetToFactory(IUserPrompt &prompt);

    /// True in a run that found no settings.
    bool isFirstRun = false;

private:
    /// Calls `visit(section struct, section name)` for every section in the order of the exchange.
    template<class Visit>
    void ForEachSection(Visit visit);

    const CTexts &m_texts;
};
