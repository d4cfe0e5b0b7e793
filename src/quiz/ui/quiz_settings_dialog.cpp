// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings_dialog.h"

#include "quiz/text_numbers.h"
#include "quiz/ui/quiz_settings1.h"
#include "quiz/ui/quiz_settings2.h"
#include "quiz/ui/quiz_settings3.h"
#include "resources/texts.h"

CQuizSettingsDialog::CQuizSettingsDialog(const CQuizSettingsForm &form, QWidget *parent)
    : CSettingsSheet(form.texts().Get(Text::QuizSettingsTitle), parent), m_form(form)
{
    const CTexts &texts = m_form.texts();
    AddPage(new CQuizSettings1(m_form), texts.Get(Text::QuizSettingsGeneralPage));
    AddPage(new CQuizSettings2(m_form), texts.Get(Text::QuizSettingsWordsPage));
    AddPage(new CQuizSettings3(m_form), texts.Get(Text::QuizSettingsMistakesPage));
}
