// SPDX-License-Identifier: MIT
#pragma once

#include "settings/dictionary_settings.h"
#include "settings/editor_settings.h"
#include "settings/quiz_settings.h"
#include "settings/shell_settings.h"
#include "settings/tool_settings.h"

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
    DictionarySettings dictionaries;
};
