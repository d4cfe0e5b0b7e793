// SPDX-License-Identifier: MIT
#include "shell/settings_forms.h"

#include "document/list_placeholders.h"
#include "document/text_numbers.h"
#include "model/word_list.h"
#include "resources/texts.h"

namespace {

/// Copies these members alone.
template<class Section, class... Members>
void Copy(const Section &from, Section &to, Members... members)
{
    ((to.*members = from.*members), ...);
}

}

void CGeneralSettingsForm::Load(const MiscSettings &settings)
{
    values = settings;
    values.fontSize = FontSizes.Clamped(values.fontSize);
}

void CGeneralSettingsForm::Store(MiscSettings &settings) const
{
    Copy(values, settings, &MiscSettings::autoOpen, &MiscSettings::useOtherFont,
        &MiscSettings::useOtherFontQuizOnly, &MiscSettings::fontSize, &MiscSettings::fontName);
}

void CEditingSettingsForm::Load(const EditorSettings &settings)
{
    values = settings;
    values.duplilcateCheckBeforeQuizMax = CheckedEntries.Clamped(values.duplilcateCheckBeforeQuizMax);
    values.undoSize = UndoSteps.Clamped(values.undoSize);
}

void CEditingSettingsForm::Store(EditorSettings &settings) const
{
    Copy(values, settings, &EditorSettings::lang1first, &EditorSettings::quickedit,
        &EditorSettings::sortNewWords, &EditorSettings::newwordflag, &EditorSettings::duplicateVarning,
        &EditorSettings::synonymWarning, &EditorSettings::duplicateCheckBeforeQuiz,
        &EditorSettings::duplilcateCheckBeforeQuizMax, &EditorSettings::undoSize,
        &EditorSettings::alwaysSaveInUnicode);
}

void CNewListSettingsForm::Store(EditorSettings &settings) const
{
    Copy(values, settings, &EditorSettings::language1, &EditorSettings::language2, &EditorSettings::author,
        &EditorSettings::standardComments, &EditorSettings::standardFilename);
}

CWordList CNewListSettingsForm::NewList() const
{
    CWordList list;
    list.SetProperties({.language1 = FirstGiven(values.language1, m_texts.Get(Text::Language1)),
        .language2 = FirstGiven(values.language2, m_texts.Get(Text::Language2)),
        .author = values.author});
    return list;
}

QString CNewListSettingsForm::Comments() const
{
    return ExpandListPlaceholders(values.standardComments, NewList(), m_today);
}

QString CNewListSettingsForm::FileName() const
{
    CWordList list = NewList();
    list.SetComments(Comments());
    const QString name = FirstGiven(values.standardFilename, m_texts.Get(Text::SuggestedFileName));
    return AsFileName(ExpandListPlaceholders(name, list, m_today));
}

void CViewSettingsForm::Store(EditorSettings &settings) const
{
    Copy(values, settings, &EditorSettings::showWordNumber, &EditorSettings::showNotes,
        &EditorSettings::showEditFields);
}
