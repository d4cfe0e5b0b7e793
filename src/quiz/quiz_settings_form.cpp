// SPDX-License-Identifier: MIT
#include "quiz/quiz_settings_form.h"

#include "document/file_filters.h"
#include "platform/file_chooser.h"
#include "platform/plain_text.h"
#include "quiz/answer_sound.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

CQuizSettingsForm::CQuizSettingsForm(QuizSettings &settings, const std::array<QString, 2> &languages,
    const CTexts &texts, IFileChooser &chooser, const QStringList &dataFolders)
    : values(settings), m_settings(settings), m_languages(languages), m_texts(texts), m_chooser(chooser),
      m_dataFolders(dataFolders)
{
    // Some are stored without bounds.
    values.numberOfWords = NumberOfWords.Clamped(values.numberOfWords);
    for (int *const value :
        {&values.quizNumber, &values.partOfWords, &values.includeFlaggedProbability, &values.requizNumber}) {
        *value = Others.Clamped(*value);
    }
}

QString CQuizSettingsForm::directionCaption(int direction) const
{
    return m_texts.Fill(direction == 0 ? Text::QuizSettingsFromLanguage1 : Text::QuizSettingsFromLanguage2,
        {ShownInCaption(m_languages[size_t(direction)]), ShownInCaption(m_languages[size_t(1 - direction)])});
}

bool CQuizSettingsForm::isNumberUsed() const
{
    return values.wordsToQuiz == QuizSettings::FixedNumber;
}

bool CQuizSettingsForm::isShareUsed() const
{
    return values.wordsToQuiz == QuizSettings::FixedShare;
}

bool CQuizSettingsForm::isProbabilityUsed() const
{
    return values.includeFlaggedWords == QuizSettings::Sometimes;
}

bool CQuizSettingsForm::isRequizMaxUsed() const
{
    return values.requiz == QuizSettings::RequizAfterRound;
}

bool CQuizSettingsForm::isRequizNumberUsed() const
{
    return isRequizMaxUsed() && values.requizMax;
}

QString CQuizSettingsForm::browseSound(const QString &current) const
{
    const QString chosen = m_chooser.ChooseFileToOpen({.title = m_texts.Get(Text::OpenTitle),
        .filters = FileFilters(m_texts.Get(Text::SoundFilters)),
        .start = findSound(current, m_dataFolders)});
    return chosen.isEmpty() ? current : chosen;
}
