// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/installed_dictionaries.h"
#include "settings/dictionary_settings.h"

#include <array>

/// The page on suggestions from dictionaries: where they are, and which one is used between the two languages
/// of the list that is open.
class CDictionarySettingsForm
{
public:
    /// From language 1 to language 2, and the reverse.
    static constexpr int Directions = 2;
    /// The choices before the dictionaries themselves.
    static constexpr int Automatic = 0;
    static constexpr int NoDictionary = 1;
    static constexpr int FirstDictionary = 2;

    explicit CDictionarySettingsForm(const std::array<QString, Directions> &languages) : m_languages(languages)
    {
    }

    void Load(const DictionarySettings &settings);
    void Store(DictionarySettings &settings) const { settings = values; }
    /// To be called when the folder is another.
    void FindInstalled();
    int InstalledCount() const { return int(m_installed.size()); }

    const QString &From(int direction) const { return m_languages[size_t(direction)]; }
    const QString &To(int direction) const { return m_languages[size_t(1 - direction)]; }
    /// The name of the dictionary that its name tells to be the one for a direction; empty without one.
    QString Guessed(int direction) const;
    /// The dictionaries that can be chosen; one that was chosen and is gone stays among them.
    QStringList Names() const;
    int Choice(int direction) const;
    void Choose(int direction, int choice);

    DictionarySettings values;

private:
    std::array<QString, Directions> m_languages;
    CLanguageNames m_names;
    std::vector<InstalledDictionary> m_installed;
};
