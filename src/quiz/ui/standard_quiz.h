// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/standard_quiz_form.h"
#include "quiz/ui/quiz_dialog.h"

class QLineEdit;
class QPlainTextEdit;

/// The window of the standard quiz.
class CStandardQuiz : public CQuizDialog
{
    Q_OBJECT

public:
    CStandardQuiz(const QuizWindowServices &services, CQuizSession &session, const QuizSettings &settings);

protected:
    void showCurrentWord() override;
    void focusInput() override;
    bool isAnswerEmpty() const override;

private:
    void answer();

    CStandardQuizForm m_form;
    QPlainTextEdit *m_question;
    QLineEdit *m_answerField;
};
