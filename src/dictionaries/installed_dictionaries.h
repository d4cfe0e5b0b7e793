// SPDX-License-Identifier: MIT
#pragma once

#include "platform/language_names.h"

#include <QStringList>

#include <optional>
#include <vector>

/// A dictionary of the format of the DICT servers on this machine.
struct InstalledDictionary
{
    QString name; ///< That of its files, without suffix.
    QString index; ///< Path of the index.
    QString text; ///< Path of the articles, compressed or not.
    QString from; ///< The code of its language (ISO 639-3), guessed from its name; empty when it isn't known.
    QString to; ///< That of the language of its translations.
};

/// The folders in which dictionaries are looked for: `chosen` if it isn't empty, else where the system's
/// packages put them ("dictd" in the data folders of the XDG base directories).
QStringList DictionaryFolders(const QString &chosen);

/// The dictionaries in folders, by name. A name that was found in one folder hides the same in later ones.
std::vector<InstalledDictionary> FindDictionaries(const QStringList &folders, const CLanguageNames &languages);

/// The first of `dictionaries` that translates from one language into another, named as users write them; null
/// without one.
const InstalledDictionary *DictionaryFor(const std::vector<InstalledDictionary> &dictionaries,
    const CLanguageNames &languages, const QString &from, const QString &to);
