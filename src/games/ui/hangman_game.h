// SPDX-License-Identifier: MIT
#pragma once

#include "games/hangman_form.h"
#include "quiz/ui/word_by_word_dialog.h"

class CElidedLabel;
class CShownText;
class QLineEdit;

/// The window of the hangman game.
class CHangmanGame : public CWordByWordDialog
{
    Q_OBJECT

public:
    CHangmanGame(const QuizWindowServices &services, std::unique_ptr<CHangmanForm> form);

protected:
    void showCurrentWord() override;
    void updateStatistics() override;
    void focusInput() override;
    bool isAnswerEmpty() const override;
    QString spokenQuestion() const override { return m_form->spoken(); }

private:
    void guess();
    /// The word as it is revealed now, and the letters tried.
    void showWord();

    std::unique_ptr<CHangmanForm> m_form;
    CShownText *m_word;
    QLineEdit *m_guess;
    CElidedLabel *m_tried;
};
