// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/ui/quiz_windows.h"

/// The windows of all kinds: those of quizzes and those of games.
QuizWindowMakers quizAndGameWindowMakers();
