// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_result.h"
#include "quiz/result_order.h"
#include "quiz/ui/quiz_dialog.h"
#include "quiz/wrong_answers_model.h"

#include <memory>

class CAcceptAnswerBar;
class QCheckBox;
class QListView;
class QTableView;

/// The window that shows how a quiz went, word by word, and what was wrong. After a quiz OK changes the flags
/// of its words; during a quiz the right answers are left out and no flags can be changed.
class CQuizResultDialog : public QDialog
{
    Q_OBJECT

public:
    /// The session is shared, so that it lasts as long as the window. Nothing else is owned.
    CQuizResultDialog(std::shared_ptr<CQuizSession> session, const QuizWindowServices &services,
        ResultMode mode, QWidget *parent);

    void accept() override;
    /// After accept(): whether the words answered wrong are to be asked in a new quiz.
    bool asksMistakesAgain() const { return m_asksAgain; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void makeList();
    QLayout *makeOrderLine();
    QWidget *makeWrongAnswers();
    QLayout *makeFlagLine();
    QLayout *makeButtons();
    QPushButton *makeButton(int text, const char *name);
    void selectFirstMistake();
    void selectWord(int position);
    void showWord(int position);
    void filter(bool onlyMistakes);
    void askAgain();
    void answerSelected();
    void updateAcceptOffer();
    void updateTotals();
    void takeAcceptOffer();
    void copyTable();
    void openFlagSettings();

    std::shared_ptr<CQuizSession> m_session;
    QuizWindowServices m_services;
    CQuizResult m_result;
    CResultOrder m_order;
    CWrongAnswersModel m_wrongAnswers;
    QTableView *m_list;
    QListView *m_answers = nullptr;
    CAcceptAnswerBar *m_accept = nullptr;
    bool m_offersTakeBack = false; // Until another word or answer is looked at.
    QLabel *m_summary;
    QProgressBar *m_share;
    QCheckBox *m_selectMistakes = nullptr;
    QLabel *m_flagLine = nullptr;
    QPushButton *m_saveMistakes = nullptr;
    QPushButton *m_askAgain = nullptr;
    bool m_asksAgain = false;
};
