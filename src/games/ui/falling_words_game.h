// SPDX-License-Identifier: MIT
#pragma once

#include "games/falling_words_form.h"
#include "quiz/ui/quiz_dialog.h"

class CGameClock;
class CPlayField;
class QLineEdit;
class QSlider;

/// The window of the falling words.
class CFallingWordsGame : public CQuizDialog
{
    Q_OBJECT

public:
    CFallingWordsGame(const QuizWindowServices &services, std::unique_ptr<CFallingWordsForm> form);

    /// At the end there is nothing to give up.
    void reject() override;

protected:
    void showCurrentWord() override;
    void focusInput() override;
    bool isAnswerEmpty() const override;
    QString spokenQuestion() const override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    QLayout *makeSpeedLine();
    void answer();
    void takeAnswer(const CWordByWordForm::Outcome &outcome);
    void goOn(CWordByWordForm::Next next);
    void timePassed(std::chrono::milliseconds time);
    /// Brings the form up to date with what stops the word: the button, and windows above this one.
    void updatePause();
    void place();
    /// After the last word, while the line about it is read.
    void waitForReader();
    void endReading();

    std::unique_ptr<CFallingWordsForm> m_form;
    Clock m_now;
    CGameClock *m_clock;
    CPlayField *m_field;
    QLineEdit *m_answerField;
    QPushButton *m_pause;
    QWidget *m_speedLine;
    QString m_unspokenLine; // About the last answer.
    bool m_isOnPause = false; // By the button.
    std::chrono::milliseconds m_endedAt{0};
};
