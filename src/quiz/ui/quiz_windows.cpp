// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_windows.h"

#include "quiz/quiz_kinds.h"
#include "quiz/ui/standard_quiz.h"

QuizWindowMakers quizWindowMakers()
{
    QuizWindowMakers makers;
    makers[StandardQuizKind] = quizWindowMaker<CStandardQuiz>();
    return makers;
}
