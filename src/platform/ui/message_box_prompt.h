// SPDX-License-Identifier: MIT
#pragma once

#include "platform/user_prompt.h"

/// Asks and tells in message boxes over the active window, under the application's display name.
class CMessageBoxPrompt : public IUserPrompt
{
public:
    void Tell(const PromptText &text, PromptIcon icon) override;
    PromptAnswer Ask(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer) override;
};
