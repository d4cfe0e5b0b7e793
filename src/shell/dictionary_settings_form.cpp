// SPDX-License-Identifier: MIT
#include "shell/dictionary_settings_form.h"

#include "dictionaries/dictionary_choices.h"

void CDictionarySettingsForm::Load(const DictionarySettings &settings)
{
    values = settings;
    FindInstalled();
}

void CDictionarySettingsForm::FindInstalled()
{
    m_installed = FindDictionaries(DictionaryFolders(values.folder), m_names);
}

QString CDictionarySettingsForm::Guessed(int direction) const
{
    const InstalledDictionary *const found =
        DictionaryFor(m_installed, m_names, From(direction), To(direction));
    return found == nullptr ? QString() : found->name;
}

QStringList CDictionarySettingsForm::Names() const
{
    QStringList names;
    for (const InstalledDictionary &dictionary : m_installed) {
        names.append(dictionary.name);
    }
    const CDictionaryChoices choices(values.chosen);
    for (int direction = 0; direction < Directions; ++direction) {
        const QString chosen = choices.Chosen(From(direction), To(direction)).value_or(QString());
        if (!chosen.isEmpty() && !names.contains(chosen)) {
            names.append(chosen);
        }
    }
    return names;
}

int CDictionarySettingsForm::Choice(int direction) const
{
    const std::optional<QString> chosen =
        CDictionaryChoices(values.chosen).Chosen(From(direction), To(direction));
    if (!chosen) {
        return Automatic;
    }
    return chosen->isEmpty() ? NoDictionary : FirstDictionary + int(Names().indexOf(*chosen));
}

void CDictionarySettingsForm::Choose(int direction, int choice)
{
    CDictionaryChoices choices(values.chosen);
    std::optional<QString> name;
    if (choice == NoDictionary) {
        name = QString();
    } else if (choice >= FirstDictionary) {
        name = Names().value(choice - FirstDictionary);
    }
    choices.Choose(From(direction), To(direction), name);
    values.chosen = choices.Stored();
}
