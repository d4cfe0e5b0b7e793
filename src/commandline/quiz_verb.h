// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/verb.h"

/// "quiz": the standard quiz, line by line.
VerbResult RunQuiz(const CArguments &arguments, const VerbServices &services);
std::span<const Option> QuizOptions();
