// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_form.h"
#include "quiz/quiz_kinds.h"
#include "quiz/ui/quiz_dialog.h"

#include <array>
#include <functional>
#include <memory>

/// Makes the window of one kind of quiz, with its form. It runs before the main window is hidden and may ask
/// something first; without a window there is no quiz. Empty for a kind without a window.
using QuizWindowMaker =
    std::function<std::unique_ptr<CQuizDialog>(const QuizWindowServices &services, const QuizStart &start)>;
using QuizWindowMakers = std::array<QuizWindowMaker, QuizSettings::KindCount>;

template<class Window, class Form>
std::unique_ptr<CQuizDialog> makeQuizWindow(const QuizWindowServices &services, const QuizStart &start)
{
    return std::make_unique<Window>(services, std::make_unique<Form>(start));
}

/// The windows of this folder by kind; those of games stand in theirs.
QuizWindowMakers quizWindowMakers();
