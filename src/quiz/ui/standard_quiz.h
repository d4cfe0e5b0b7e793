// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/standard_quiz_form.h"
#include "quiz/ui/word_by_word_dialog.h"

class QLineEdit;

/// The window of the standard quiz.
class CStandardQuiz : public CWordByWordDialog
{
    Q_OBJECT

public:
    CStandardQuiz(const QuizWindowServices &services, std::unique_ptr<CStandardQuizForm> form);

protected:
    void showCurrentWord() override;
    void updateStatistics() override;
    void focusInput() override;
    bool isAnswerEmpty() const override;

private:
    void answer();

    std::unique_ptr<CStandardQuizForm> m_form;
    QLineEdit *m_answerField;
};
