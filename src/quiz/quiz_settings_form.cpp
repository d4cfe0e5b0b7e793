// SPDX-License-Identifier: MIT
#include "quiz/quiz_settings_form.h"

#include "document/file_filters.h"
#include "platform/file_chooser.h"
#include "platform/plain_text.h"
#include "quiz/answer_sound.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

namespace {

// Values of the settings `wordsToQuiz`, `includeFlaggedWords` and `requiz`.
constexpr int FixedNumber = 1;
constexpr int FixedShare = 2;
constexpr int Sometimes = 2;
constexpr int RoundsAfter = 1;

}

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

QString CQuizSettingsForm::DirectionCaption(int direction) const
{
    return m_texts.Fill(direction == 0 ? Text::QuizSettingsFromLanguage1 : Text::QuizSettingsFromLanguage2,
        {ShownInCaption(m_languages[size_t(direction)]), ShownInCaption(m_languages[size_t(1 - direction)])});
}

bool CQuizSettingsForm::IsNumberUsed() const
{
    return values.wordsToQuiz == FixedNumber;
}

bool CQuizSettingsForm::IsShareUsed() const
{
    return values.wordsToQuiz == FixedShare;
}

bool CQuizSettingsForm::IsProbabilityUsed() const
{
    return values.includeFlaggedWords == Sometimes;
}

bool CQuizSettingsForm::IsRequizMaxUsed() const
{
    return values.requiz == RoundsAfter;
}

bool CQuizSettingsForm::IsRequizNumberUsed() const
{
    return IsRequizMaxUsed() && values.requizMax;
}

QString CQuizSettingsForm::BrowseSound(const QString &current) const
{
    const QString chosen = m_chooser.ChooseFileToOpen({.title = m_texts.Get(Text::OpenTitle),
        .filters = FileFilters(m_texts.Get(Text::SoundFilters)),
        .start = findSound(current, m_dataFolders)});
    return chosen.isEmpty() ? current : chosen;
}
