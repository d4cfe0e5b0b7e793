// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/whole_round_form.h"

/// The table quiz: the questions of a round stand in a table, and the answers are typed in any order.
class CTableQuizForm : public CWholeRoundForm
{
public:
    explicit CTableQuizForm(const QuizStart &start);

    int rowCount() const override;
    QString cell(int row, int column) const override;
    /// An answer that was given is marked.
    bool hasMark(int row, int column) const override;

    /// The question of the current row; how the round was while its mistakes are shown.
    QString question() const;
    /// What was answered for the current row so far.
    QString currentAnswer() const;
    bool selectsAnswer() const { return settings().learning; }
    /// Tidies what was typed and keeps it as the answer of the current row, until the round is checked.
    void storeAnswer(const QString &typed);
    /// The same, and goes on to the next row, or from the last one to the first.
    void answer(const QString &typed);

protected:
    QString answerOf(int row) const override { return m_answers[size_t(row)]; }
    void fillRound() override;
    bool fillMistakes(const std::vector<AnswerVerdict> &verdicts) override;

private:
    static constexpr int Separator = -1;

    std::vector<QString> m_answers; // By round position.
    std::vector<int> m_checkedRows; // Round positions, or a Separator.
};
