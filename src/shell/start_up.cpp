// SPDX-License-Identifier: MIT
#include "shell/start_up.h"

#include "document/recent_files.h"
#include "platform/file_name.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "shell/language_choice.h"

MiscSettings LoadLanguageSettings(const ISettingsStore &store, const QString &root, const CTexts &texts,
    const QStringList &folders, const QLocale &locale)
{
    const QString section = root + QStringLiteral("\\misc");
    MiscSettings settings;
    if (!store.Read(section, QStringLiteral("autoOpen"))) {
        const CLanguageChoice choice(FindLanguages(texts, folders), {}, true, LanguageAbbreviation(locale));
        settings.languageFile = choice.Entries().at(choice.Selected()).path;
        return settings;
    }
    settings.languageFile = store.Read(section, QStringLiteral("languageFile")).value_or(QString());
    bool isNumber = false;
    const int use = store.Read(section, QStringLiteral("plugInUse")).value_or(QString()).toInt(&isNumber);
    settings.plugInUse = !isNumber || use != 0;
    return settings;
}

QString LoadLanguage(const MiscSettings &settings, CTexts &texts)
{
    QByteArray module;
    if (!settings.plugInUse || settings.languageFile.isEmpty()
        || TestLanguageModule(settings.languageFile, texts, module) != ModuleTest::Ok
        || !texts.LoadModule(module)) {
        return {};
    }
    return settings.languageFile;
}

CStartUp::CStartUp(CAppSettings &settings, CTexts &texts, std::function<void()> chooseLanguage)
    : m_settings(settings), m_texts(texts), m_chooseLanguage(std::move(chooseLanguage))
{
}

void CStartUp::Prepare()
{
    m_settings.Exchange(true);
    if (m_settings.isFirstRun) {
        m_chooseLanguage();
    }
    m_modulePath = LoadLanguage(m_settings.misc, m_texts);
    if (!m_modulePath.isEmpty() && m_settings.isFirstRun) {
        // The factory texts of new lists are the language's.
        m_settings.SetDefaults();
    }
}

QString CStartUp::FileToReopen(const QString &namedFile, const CRecentFiles &recent) const
{
    const MiscSettings &misc = m_settings.misc;
    if (!namedFile.isEmpty() || !misc.autoOpen || !misc.openOnClosing || recent.Paths().isEmpty()) {
        return {};
    }
    const QString file = recent.Paths().first();
    return FileExists(file) ? file : QString();
}
