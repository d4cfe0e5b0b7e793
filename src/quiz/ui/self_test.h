// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/self_test_form.h"
#include "quiz/ui/word_by_word_dialog.h"

class CShownText;

/// The window of the self-test. Enter shows the answer, and then goes on.
class CSelfTest : public CWordByWordDialog
{
    Q_OBJECT

public:
    CSelfTest(const QuizWindowServices &services, std::unique_ptr<CSelfTestForm> form);

protected:
    void showCurrentWord() override;
    void focusInput() override;
    bool isHastyAnswer(const QKeyEvent &key) const override { return pressesButton(key); }

private:
    void showAnswer();
    /// Gives Enter and the focus to one of the two buttons.
    void makeNext(QPushButton &next);

    std::unique_ptr<CSelfTestForm> m_form;
    CShownText *m_answer;
};
