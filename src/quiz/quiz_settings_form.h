// SPDX-License-Identifier: MIT
#pragma once

#include "platform/number_range.h"
#include "settings/quiz_settings.h"

#include <QStringList>

#include <array>

class CTexts;
class IFileChooser;
class ISoundPlayer;

/// What the pages of quiz settings show and decide. They change a copy of the settings, which accept() stores.
/// Nothing handed in is owned.
class CQuizSettingsForm
{
public:
    static constexpr NumberRange NumberOfWords = {1, 1000};
    /// Whether a flagged word is asked is not certain.
    static constexpr NumberRange Probability = {1, 99};
    /// Rounds, repeats and shares.
    static constexpr NumberRange Others = {1, 100};
    /// The values of `requiz` in the order of their buttons.
    static constexpr std::array RequizButtons = {Requiz::None, Requiz::AtOnce, Requiz::AfterRound};

    /// `languages` are the two names of the list.
    CQuizSettingsForm(QuizSettings &settings, const std::array<QString, 2> &languages, const CTexts &texts,
        IFileChooser &chooser, ISoundPlayer &sounds, const QStringList &dataFolders);

    /// What the controls show; within the ranges.
    QuizSettings values;

    const CTexts &texts() const { return m_texts; }
    QString directionCaption(QuizDirection direction) const;

    // Which rows of controls can be used.
    bool isNumberUsed() const;
    bool isShareUsed() const;
    bool isProbabilityUsed() const;
    bool isRequizMaxUsed() const;
    bool isRequizNumberUsed() const;

    /// Lets the user choose a file for one of the sounds and returns what its field is to show.
    QString browseSound(const QString &current) const;
    void playSound(const QString &file) const;
    void accept() { m_settings = values; }

private:
    QuizSettings &m_settings;
    std::array<QString, 2> m_languages;
    const CTexts &m_texts;
    IFileChooser &m_chooser;
    ISoundPlayer &m_sounds;
    QStringList m_dataFolders;
};
