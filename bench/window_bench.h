// SPDX-License-Identifier: MIT
#pragma once

#include "measure.h"
#include "platform/user_prompt.h"

#include <functional>
#include <vector>

// What measuring windows without a display needs.

/// Says yes to every question.
class CYesPrompt : public IUserPrompt
{
public:
    void Tell(const PromptText &text, PromptIcon icon) override;
    PromptAnswer Ask(
        const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer) override;
};

/// Until everything is painted.
void Settle();

/// A line with the milliseconds that it took.
void Print(const char *name, const Measurement &measured);

/// The sizes that the arguments of the program name, else the usual ones, measured one after the other with an
/// application that has no display.
int MeasureSizes(
    int argc, char *argv[], const std::vector<int> &usualSizes, const std::function<void(int)> &run);
