// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class CAppSettings;
class CRecentFiles;
class CTexts;
class ISettingsStore;
class QLocale;
struct MiscSettings;

/// What happens at the start before there is a window: settings and language, and which file is opened.
class CStartUp
{
public:
    /// Neither is owned. `chooseLanguage` asks for the language in a first run, before any other window exists.
    CStartUp(CAppSettings &settings, CTexts &texts, std::function<void()> chooseLanguage);

    /// Loads the settings and the language module that they name. One that is missing, damaged or made for
    /// another version is left alone without a word, and stays chosen.
    void Prepare();
    /// The file of the language module in use; empty for the program's own language.
    const QString &ModulePath() const { return m_modulePath; }
    /// The file to open again once the main window is shown; empty for none. `namedFile` is the command line's.
    QString FileToReopen(const QString &namedFile, const CRecentFiles &recent) const;

private:
    CAppSettings &m_settings;
    CTexts &m_texts;
    std::function<void()> m_chooseLanguage;
    QString m_modulePath;
};

/// The language settings alone, without storing anything: for runs that only answer the command line. Before a
/// language was chosen they name that of `locale`, if a module for it is in the `folders`.
MiscSettings LoadLanguageSettings(const ISettingsStore &store, const QString &root, const CTexts &texts,
    const QStringList &folders, const QLocale &locale);
/// Lets `texts` speak the language that the settings name. Returns the module's file, empty when it is the
/// program's own language or the module can't be used.
QString LoadLanguage(const MiscSettings &settings, CTexts &texts);
