// SPDX-License-Identifier: MIT
#pragma once

class CTexts;
class CWordList;
class IUserPrompt;
struct EditorSettings;

/// What stands before a quiz: looks for entries that share an alternative, where the settings say so, and asks
/// whether to start in spite of them. Returns whether the quiz may start.
bool mayStartQuiz(
    const CWordList &list, const EditorSettings &settings, const CTexts &texts, IUserPrompt &prompt);
