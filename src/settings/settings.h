// SPDX-License-Identifier: MIT
#pragma once

#include "settings/editor_settings.h"
#include "settings/quiz_settings.h"
#include "settings/shell_settings.h"
#include "settings/tool_settings.h"

#include <QObject>

/// Every setting of the program, by sections. Windows that need several sections are handed this; whoever
/// decides gets the struct of its section alone.
struct Settings
{
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
};

/// The sections that somebody follows while the program runs.
enum class SettingsSection { Misc, Editor, Quiz, Arrange };

/// Whoever changes a section by the user's will tells so here, after the change; whoever shows it or works by a
/// value of its own listens.
class CSettingsChanges : public QObject
{
    Q_OBJECT

public:
    void Tell(SettingsSection section) { Q_EMIT Changed(section); }

Q_SIGNALS:
    void Changed(SettingsSection section);
};
