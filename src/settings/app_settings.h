// SPDX-License-Identifier: MIT
#pragma once

#include "settings/editor_settings.h"
#include "settings/quiz_settings.h"
#include "settings/registry_settings.h"
#include "settings/shell_settings.h"
#include "settings/tool_settings.h"

class CTexts;
class IUserPrompt;

/// Every setting of the program, held by the application for the whole run: loaded at its start and saved at
/// its exit. Whoever needs settings is handed the struct of its section.
class CAppSettings : public CRegistrySettings
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

    MiscSettings misc;
    EditorSettings editor;
    EasyKeySettings easykey;
    QuizSettings quiz;
    QuizChallengeSettings quizChallenge;
    FallingWordSettings fallingWord;
    QuizWindowSettings quizWindows;
    ImportSettings import;
    CreateTableSettings createTable;
    FileSearchSettings filesearch;
    ResultSettings result;
    FindSettings find;
    ArrangeSettings arrange;

private:
    /// Calls `visit(section struct, section name)` for every section in the order of the exchange.
    template<class Visit>
    void ForEachSection(Visit visit);

    const CTexts &m_texts;
};
