// SPDX-License-Identifier: MIT
#pragma once

#include "games/memory_form.h"
#include "quiz/ui/quiz_dialog.h"

class CGameClock;
class CMemoryTable;

/// The window of the memory game.
class CMemoryGame : public CQuizDialog
{
    Q_OBJECT

public:
    CMemoryGame(const QuizWindowServices &services, std::unique_ptr<CMemoryForm> form);

protected:
    void showCurrentWord() override;
    void focusInput() override;
    bool isHastyAnswer(const QKeyEvent &key) const override;
    QString spokenQuestion() const override;
    void updateStatistics() override;

private:
    void turn(int card);
    void handle(CMemoryForm::Event event, const QString &turned);

    std::unique_ptr<CMemoryForm> m_form;
    CGameClock *m_clock;
    QLabel *m_moves;
    CMemoryTable *m_table;
};
