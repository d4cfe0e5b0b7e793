// SPDX-License-Identifier: MIT
#include "quiz/quiz_settings_form.h"

#include "document/file_filters.h"
#include "platform/file_chooser.h"
#include "platform/plain_text.h"
#include "platform/sound_player.h"
#include "quiz/answer_sound.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

CQuizSettingsForm::CQuizSettingsForm(QuizSettings &settings, const std::array<QString, 2> &languages,
    const CTexts &texts, IFileChooser &chooser, ISoundPlayer &sounds, const QStringList &dataFolders)
    : values(settings), m_settings(settings), m_languages(languages), m_texts(texts), m_chooser(chooser),
      m_sounds(sounds), m_dataFolders(dataFolders)
{
    // Some are stored without bounds.
    values.numberOfWords = NumberOfWords.Clamped(values.numberOfWords);
    values.includeFlaggedProbability = Probability.Clamped(values.includeFlaggedProbability);
    for (int *const value : {&values.quizNumber, &values.partOfWords, &values.requizNumber}) {
        *value = Others.Clamped(*value);
    }
}

QString CQuizSettingsForm::directionCaption(QuizDirection direction) const
{
    const bool first = direction == QuizDirection::FromLanguage1;
    return m_texts.Fill(first ? Text::QuizSettingsFromLanguage1 : Text::QuizSettingsFromLanguage2,
        {ShownInCaption(m_languages[first ? 0 : 1]), ShownInCaption(m_languages[first ? 1 : 0])});
}

bool CQuizSettingsForm::isNumberUsed() const
{
    return values.wordsToQuiz == WordsToQuiz::FixedNumber;
}

bool CQuizSettingsForm::isShareUsed() const
{
    return values.wordsToQuiz == WordsToQuiz::FixedShare;
}

bool CQuizSettingsForm::isProbabilityUsed() const
{
    return values.includeFlaggedWords == IncludeFlagged::Sometimes;
}

bool CQuizSettingsForm::isRequizMaxUsed() const
{
    return values.requiz == Requiz::AfterRound;
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

void CQuizSettingsForm::playSound(const QString &file) const
{
    if (const QString found = findSound(file, m_dataFolders); !found.isEmpty()) {
        m_sounds.Play(found);
    }
}
