// SPDX-License-Identifier: MIT
#pragma once

#include "platform/number_range.h"
#include "settings/editor_settings.h"
#include "settings/shell_settings.h"

#include <QDate>

class CTexts;
class CWordList;

// What the pages of the program's settings show and decide. Each loads its values, brought into the ranges,
// from a section and stores those alone: others of the section belong to other pages and windows.

/// The page on the start, the font, and the program's place on the desktop.
class CGeneralSettingsForm
{
public:
    static constexpr NumberRange FontSizes = {1, 200}; ///< In points.

    void Load(const MiscSettings &settings);
    void Store(MiscSettings &settings) const;
    bool IsFontUsed() const { return values.useOtherFont; }

    MiscSettings values;
};

/// The page on how entries are typed and checked.
class CEditingSettingsForm
{
public:
    static constexpr NumberRange CheckedEntries = {1, 999999};
    static constexpr NumberRange UndoSteps = {0, 1000};

    void Load(const EditorSettings &settings);
    void Store(EditorSettings &settings) const;
    bool IsMaximumUsed() const { return values.duplicateCheckBeforeQuiz; }
    /// Whether storing throws away the steps that can be undone.
    bool EmptiesHistory(const EditorSettings &settings) const { return values.undoSize < settings.undoSize; }

    EditorSettings values;
};

/// The page on the properties that new lists begin with.
class CNewListSettingsForm
{
public:
    /// `texts` is not owned.
    CNewListSettingsForm(const CTexts &texts, QDate today) : m_texts(texts), m_today(today) { }

    void Load(const EditorSettings &settings) { values = settings; }
    void Store(EditorSettings &settings) const;
    /// What a new list's comments and the name proposed for its file would be today.
    QString Comments() const;
    QString FileName() const;

    EditorSettings values;

private:
    CWordList NewList() const;

    const CTexts &m_texts;
    QDate m_today;
};

/// The page on what the main window shows.
class CViewSettingsForm
{
public:
    void Load(const EditorSettings &settings) { values = settings; }
    void Store(EditorSettings &settings) const;

    EditorSettings values;
};
