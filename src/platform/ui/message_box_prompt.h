// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/user_prompt.h"

#include <memory>

class CTypeAheadFilter;

/// Asks and tells in message boxes over the active window, under the application's display name. Letters alone
/// choose no button.
class CMessageBoxPrompt : public IUserPrompt
{
public:
    explicit CMessageBoxPrompt(Clock clock = SteadyClock);
    ~CMessageBoxPrompt() override;

    void Tell(const PromptText &text, PromptIcon icon) override;
    PromptAnswer Ask(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer) override;
    PromptAnswer AskTypist(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer) override;
    bool TypingGoesOn() const override;
    QString TypedMeanwhile() const override;

private:
    std::unique_ptr<CTypeAheadFilter> m_typeAhead;
};
