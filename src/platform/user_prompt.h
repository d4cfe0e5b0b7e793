// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A text to show: its number in the string table, and the text with its placeholders filled.
struct PromptText
{
    int number = 0;
    QString text;
};

enum class PromptIcon {
    Information,
    Question,
    Warning,
    Error,
    PlainInformation ///< Looks like Information, without the sound that a desktop may add to it.
};
enum class PromptButtons { YesNo, YesNoCancel };
enum class PromptAnswer { Yes, No, Cancel };

/// Tells the user something or asks something, and waits for the answer. Whatever decides is handed one of
/// these; the one in tests answers by script. Texts are plain text: nothing in them is taken as markup.
class IUserPrompt
{
public:
    IUserPrompt() = default;
    virtual ~IUserPrompt() = default;
    IUserPrompt(const IUserPrompt &) = delete;
    IUserPrompt &operator=(const IUserPrompt &) = delete;

    virtual void Tell(const PromptText &text, PromptIcon icon) = 0;
    /// Closing the question without an answer is Cancel, or No where there is no such button.
    virtual PromptAnswer Ask(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer) = 0;

    /// Ask() for a question that interrupts someone who types and may not look at the screen: keys are no
    /// answer to it until typing has paused, and what was typed goes on when it is answered.
    virtual PromptAnswer AskTypist(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer)
    {
        return Ask(text, icon, buttons, defaultAnswer);
    }
    /// Whether something that was typed during such a question is still to go on, or does right now.
    virtual bool TypingGoesOn() const { return false; }
    /// What was typed during such a question and has not gone on yet, as lines: the keys that end an edit end
    /// one. For an end of the program that leaves no time to let it go on.
    virtual QString TypedMeanwhile() const { return {}; }

    /// For questions on which any answer but Yes leaves everything as it is: true for Yes alone.
    bool Confirm(const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer)
    {
        return Ask(text, icon, buttons, defaultAnswer) == PromptAnswer::Yes;
    }
};
