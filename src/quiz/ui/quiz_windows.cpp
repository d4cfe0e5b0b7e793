// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_windows.h"

#include "quiz/ui/self_test.h"
#include "quiz/ui/standard_quiz.h"
#include "quiz/ui/table_quiz.h"

QuizWindowMakers quizWindowMakers()
{
    QuizWindowMakers makers;
    makers[size_t(QuizKind::Standard)] = makeQuizWindow<CStandardQuiz, CStandardQuizForm>;
    makers[size_t(QuizKind::Table)] = makeQuizWindow<CTableQuiz, CTableQuizForm>;
    makers[size_t(QuizKind::SelfTest)] = makeQuizWindow<CSelfTest, CSelfTestForm>;
    return makers;
}
