// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/table_quiz_form.h"
#include "quiz/ui/whole_round_dialog.h"

class CShownText;
class QLineEdit;

/// The window of the table quiz.
class CTableQuiz : public CWholeRoundDialog
{
    Q_OBJECT

public:
    CTableQuiz(const QuizWindowServices &services, std::shared_ptr<CTableQuizForm> form);

protected:
    void showQuestion() override;
    void showCurrentAnswer() override;
    void showState() override;
    void focusAnswers() override;
    bool isAnswerEmpty() const override;
    QString spokenQuestion() const override;

private:
    void answerOrGoOn();
    void checkRound();

    std::shared_ptr<CTableQuizForm> m_form;
    CShownText *m_question;
    QLineEdit *m_answerField;
};
