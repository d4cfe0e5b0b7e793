// SPDX-License-Identifier: MIT
#pragma once

#include "document/text_numbers.h"
#include "editor/text_numbers.h"
#include "games/text_numbers.h"
#include "platform/user_prompt.h"
#include "settings/text_numbers.h"
#include "shell/text_numbers.h"
#include "tools/text_numbers.h"

#include <QList>

#include <optional>

/// How a text is shown: its icon, and for a question its buttons and the one that Enter presses.
struct PromptForm
{
    int number;
    PromptIcon icon;
    std::optional<PromptButtons> buttons = {};
    PromptAnswer defaultAnswer = {};

    bool operator==(const PromptForm &) const = default;
};

/// Every message and question that tests may meet. A feedback of a quiz has one of two icons, so it has no row.
inline const QList<PromptForm> &PromptForms()
{
    using enum PromptIcon;
    using enum PromptButtons;
    using enum PromptAnswer;
    static const QList<PromptForm> forms = {
        {Text::CannotOpenHelp, Warning},
        {Text::DuplicatesBeforeQuiz, Question, YesNoCancel, No},
        {Text::CannotSave, Warning},
        {Text::ProposeCorrection, Information, YesNo, Yes},
        {Text::OneFileAtATime, Information},
        {Text::CannotOpen, Error},
        {Text::NoDictionaryInstalled, Information},
        {Text::ReadAsPlainText, Warning},
        {Text::NotAllRead, Warning},
        {Text::NotAllPasted, Warning},
        {Text::NoText, Error},
        {Text::NewerVersion, Warning},
        {Text::FlagLimitsContradict, Information},
        {Text::TimeIsUp, Information},
        {Text::ReallyEndQuiz, Question, YesNoCancel, No},
        {Text::ReallyAssociate, Information, YesNoCancel, Yes},
        {Text::ReallyReset, Information, YesNoCancel, No},
        {Text::Associated, Information},
        {Text::CannotAssociate, Warning},
        {Text::LanguageFromNextStart, Information},
        {Text::EntriesMerged, Information},
        {Text::NothingFound, Information},
        {Text::NoDuplicates, Information},
        {Text::AllDuplicatesSeen, Information},
        {Text::SelectDuplicates, Question, YesNoCancel, Yes},
        {Text::ReallyMergeAll, Warning, YesNo, No},
        {Text::SelectSimilar, Question, YesNo, Yes},
        {Text::ReallyDelete, Warning, YesNoCancel, Yes},
        {Text::SaveChanges, Warning, YesNoCancel, Yes},
        {Text::CannotStartMail, Warning},
        {Text::OverwriteForeignChange, Warning, YesNoCancel, No},
        {Text::OnlyFiles, Error},
        {Text::ReadAgain, Question, YesNo, Yes},
        {Text::RecoverChanges, Question, YesNoCancel, Yes},
        {Text::RecoverPart, Question, YesNoCancel, Yes},
        {Text::RecoverOverwritten, Question, YesNoCancel, Yes},
        {Text::HoldsWholeList, Warning},
        {Text::NothingToAnswer, Information},
        {Text::SavedWithoutCharacters, Warning},
        {Text::SaveChangedEntry, Question, YesNoCancel, Yes},
        {Text::FileTooLarge, Error},
        {Text::LineTooLong, Error},
        {Text::EntriesNotSaved, Warning},
        {Text::FolderMissing, Warning},
        {Text::PrintFailed, Warning},
    };
    return forms;
}
