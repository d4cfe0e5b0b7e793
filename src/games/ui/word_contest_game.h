// SPDX-License-Identifier: MIT
#pragma once

#include "games/word_contest_form.h"
#include "quiz/ui/word_by_word_dialog.h"

class CGameClock;
class CScoreList;
class CWrappedText;
class QLineEdit;
class QStackedWidget;

/// The window of the word contest.
class CWordContestGame : public CWordByWordDialog
{
    Q_OBJECT

public:
    CWordContestGame(const QuizWindowServices &services, std::unique_ptr<CWordContestForm> form);

    /// Shows the final standing first, if anything was answered.
    void done(int result) override;

protected:
    void showCurrentWord() override;
    void focusInput() override;
    bool isAnswerEmpty() const override;
    bool isHastyAnswer(const QKeyEvent &key) const override;
    QString spokenQuestion() const override;

private:
    QLayout *makeTop();
    void makeFields();
    void begin();
    void answer();
    void takeAnswer(const CWordByWordForm::Outcome &outcome);
    void timePassed(std::chrono::milliseconds time);
    void showTime();
    void showScores();
    /// Whether time doesn't count now: the window can't be used, or another one of the program is.
    bool clockStands() const;

    std::unique_ptr<CWordContestForm> m_form;
    QuizWindowServices m_services;
    CGameClock *m_clock;
    CScoreList *m_scores;
    CWrappedText *m_turn;
    QProgressBar *m_timeBar;
    QLabel *m_timeText;
    QStackedWidget *m_fields;
    QLineEdit *m_answerField;
    QPushButton *m_begin;
    bool m_showedStanding = false;
};

/// Asks who takes part, and makes the window; null when there is to be no contest.
std::unique_ptr<CQuizDialog> makeWordContest(const QuizWindowServices &services, const QuizStart &start);
