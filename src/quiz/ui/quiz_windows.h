// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/ui/quiz_dialog.h"
#include "settings/quiz_settings.h"

#include <array>
#include <functional>
#include <memory>

class CQuizSession;

/// Makes the window of one kind of quiz; nothing handed in is owned. Empty for a kind without a window.
using QuizWindowMaker = std::function<std::unique_ptr<CQuizDialog>(
    const QuizWindowServices &services, CQuizSession &session, const QuizSettings &settings)>;
using QuizWindowMakers = std::array<QuizWindowMaker, QuizSettings::KindCount>;

template<class Window>
QuizWindowMaker quizWindowMaker()
{
    return [](const QuizWindowServices &services, CQuizSession &session, const QuizSettings &settings) {
        return std::make_unique<Window>(services, session, settings);
    };
}

/// The table of the quizzes' windows: a new form is one line in it. Games add theirs.
QuizWindowMakers quizWindowMakers();
