// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_chooser.h"
#include "platform/user_prompt.h"
#include "support/prompt_forms.h"
#include "support/test.h"

#include <QList>
#include <QStringList>

#include <functional>

/// Fails the running test.
inline void FailTest(const QString &why)
{
    QTest::qFail(qPrintable(why), __FILE__, __LINE__);
}

/// Answers questions by script and records which texts were shown. A test fails where a text is not shown as
/// PromptForms() says, and where nobody asked for an answer of the script.
class CScriptedPrompt : public IUserPrompt
{
public:
    ~CScriptedPrompt() override
    {
        if (!answers.isEmpty()) {
            FailTest(QStringLiteral("%1 answers were not asked for").arg(answers.size()));
        }
    }

    void Tell(const PromptText &text, PromptIcon icon) override
    {
        // A feedback with the program's own sound is shown without that of the desktop.
        const bool isFeedback = (text.number >= Text::AnswerAfterSkip && text.number <= Text::AnswerAfterWrong)
            || text.number == Text::AllWordsRight;
        if (!isFeedback || (icon != PromptIcon::Information && icon != PromptIcon::PlainInformation)) {
            Check({text.number, icon});
        }
        Record(text, icon);
        duringMessage();
    }
    PromptAnswer Ask(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer) override
    {
        Check({text.number, icon, buttons, defaultAnswer});
        Record(text, icon);
        return answers.isEmpty() ? PromptAnswer::Cancel : answers.takeFirst();
    }

    bool TypingGoesOn() const override { return typingGoesOn; }
    QString TypedMeanwhile() const override { return typedMeanwhile; }

    bool typingGoesOn = false;
    QString typedMeanwhile;
    QList<PromptAnswer> answers;
    QList<int> numbers;
    QStringList texts;
    QList<PromptIcon> icons;
    /// Called while a message is on screen.
    std::function<void()> duringMessage = [] {};

private:
    static void Check(const PromptForm &form)
    {
        if (!PromptForms().contains(form)) {
            FailTest(
                QStringLiteral("Text %1 is shown in another form than in prompt_forms.h").arg(form.number));
        }
    }
    void Record(const PromptText &text, PromptIcon icon)
    {
        numbers.append(text.number);
        texts.append(text.text);
        icons.append(icon);
    }
};

/// Chooses the files of a script; an empty path is a cancelled dialog. Several stand with "|" between them.
class CScriptedChooser : public IFileChooser
{
public:
    ~CScriptedChooser() override
    {
        if (!paths.isEmpty()) {
            FailTest(QStringLiteral("Nobody chose %1").arg(paths.join(u' ')));
        }
    }

    QString ChooseFileToOpen(const FileChoice &choice) override { return Take(choice); }
    QStringList ChooseFilesToOpen(const FileChoice &choice) override
    {
        return Take(choice).split(u'|', Qt::SkipEmptyParts);
    }
    QString ChooseFolder(const FileChoice &choice) override { return Take(choice); }
    ChosenFile ChooseFileToSave(const FileChoice &choice) override { return {Take(choice), filter}; }

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
