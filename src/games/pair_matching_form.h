// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/whole_round_form.h"

/// Pair matching: the answers of a round stand shuffled beside its questions, and are moved until each stands
/// beside its own. Two answers change places; the questions stay.
class CPairMatchingForm : public CWholeRoundForm
{
public:
    explicit CPairMatchingForm(const QuizStart &start);

    int rowCount() const override { return int(m_pairs.size()); }
    QString cell(int row, int column) const override;
    bool hasMark(int row, int column) const override;

    /// What is to be done; how the round was while its mistakes are shown.
    QString hint() const;

    /// The answers of two rows change places, and `to` becomes the current row. Does nothing, and returns
    /// false, for one row twice, a row that there isn't, and while mistakes are shown.
    bool exchange(int from, int to);
    /// Moves the answer of the current row one row up or down.
    bool moveAnswer(int step) { return exchange(currentRow(), currentRow() + step); }
    /// Marks the current row, or takes the mark away from it. Where another one is marked, their answers change
    /// places.
    void markOrExchange();

protected:
    QString answerOf(int row) const override { return answerTerm(m_pairs[size_t(row)].answerPosition); }
    void fillRound() override;
    bool fillMistakes(const std::vector<AnswerVerdict> &verdicts) override;

private:
    static constexpr int AnswerColumn = 0;
    static constexpr int QuestionColumn = 1;

    /// What stands in a row, as round positions.
    struct Pair
    {
        int answerPosition = 0;
        int questionPosition = 0;
    };
    void shuffleAnswers();

    std::vector<Pair> m_pairs;
    std::optional<int> m_marked;
};
