// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_chooser.h"
#include "platform/user_prompt.h"

#include <QList>
#include <QStringList>

/// Answers questions by script and records which texts were shown.
class CScriptedPrompt : public IUserPrompt
{
public:
    void Tell(const PromptText &text, PromptIcon icon) override { Record(text, icon); }
    PromptAnswer Ask(const PromptText &text, PromptIcon icon, PromptButtons /*buttons*/,
        PromptAnswer /*defaultAnswer*/) override
    {
        Record(text, icon);
        return answers.isEmpty() ? PromptAnswer::Cancel : answers.takeFirst();
    }

    QList<PromptAnswer> answers;
    QList<int> numbers;
    QStringList texts;
    QList<PromptIcon> icons;

private:
    void Record(const PromptText &text, PromptIcon icon)
    {
        numbers.append(text.number);
        texts.append(text.text);
        icons.append(icon);
    }
};

/// Chooses the files of a script; an empty path is a cancelled dialog.
class CScriptedChooser : public IFileChooser
{
public:
    QString ChooseFileToOpen(const FileChoice &choice) override { return Take(choice); }
    QString ChooseFileToSave(const FileChoice &choice, qsizetype *chosenFilter) override
    {
        if (chosenFilter != nullptr) {
            *chosenFilter = filter;
        }
        return Take(choice);
    }

    QStringList paths;
    qsizetype filter = 0;
    QList<FileChoice> asked;

private:
    QString Take(const FileChoice &choice)
    {
        asked.append(choice);
        return paths.isEmpty() ? QString() : paths.takeFirst();
    }
};
