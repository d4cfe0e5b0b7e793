// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/console.h"
#include "platform/user_prompt.h"

class CTexts;

/// Tells on standard error, and asks where there is a terminal to answer at; elsewhere nothing but a default
/// answer is given. Nothing is owned.
class CConsolePrompt : public IUserPrompt
{
public:
    CConsolePrompt(CConsole &console, const CTexts &texts) : m_console(console), m_texts(texts) { }

    void Tell(const PromptText &text, PromptIcon icon) override;
    PromptAnswer Ask(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer) override;

private:
    CConsole &m_console;
    const CTexts &m_texts;
};
