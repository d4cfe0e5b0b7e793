// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_form.h"

#include <vector>

/// What the forms decide that show a whole round as a table: its rows are answered in any order, then all are
/// checked at once. A row stands for the word at that round position until the mistakes are shown.
class CWholeRoundForm : public CQuizForm
{
public:
    static constexpr int ColumnCount = 2;

    virtual int rowCount() const = 0;
    /// The text of a cell as it is stored.
    virtual QString cell(int row, int column) const = 0;
    /// Whether a mark stands beside the text of a cell.
    virtual bool hasMark(int row, int column) const = 0;
    /// The name of the column's language.
    QString columnTitle(int column) const;

    /// The first one when a round begins or its mistakes are shown.
    int currentRow() const { return m_currentRow; }
    void selectRow(int row);
    int currentEntry() const override { return session()->entryOfRound(m_currentRow); }
    /// The first row from `start` on, wrapping, whose first cell begins with what was typed, case ignored. None
    /// while mistakes are shown.
    std::optional<int> findRow(const QString &typed, int start) const;

    struct Outcome
    {
        AnswerVerdict verdict = AnswerVerdict::Wrong;
        std::optional<FeedbackText> feedback;
        QString summary; ///< Says in a sentence how the round was.
    };
    /// Records the answers of all rows. What comes next are the mistakes where isChecked() says so then, else
    /// the next round.
    Outcome check();
    /// Whether the mistakes of the round are shown.
    bool isChecked() const { return m_isChecked; }
    /// Goes on to the next round; false when the quiz is over.
    bool startRound();

protected:
    /// `questionColumn` is the column of the table that holds the questions.
    CWholeRoundForm(const QuizStart &start, int questionColumn);

    int questionColumn() const { return m_questionColumn; }
    QString questionTerm(int roundPosition) const;
    QString answerTerm(int roundPosition) const;
    /// How the round was that was checked last.
    const QString &summary() const { return m_summary; }

    /// What is recorded for a row when the round is checked.
    virtual QString answerOf(int row) const = 0;
    /// Makes the rows of a new round.
    virtual void fillRound() = 0;
    /// Takes the verdicts by round position, and makes the rows that show the mistakes. Returns false where
    /// none are to be shown.
    virtual bool fillMistakes(const std::vector<AnswerVerdict> &verdicts) = 0;

private:
    int m_questionColumn;
    int m_currentRow = 0;
    bool m_isChecked = false;
    QString m_summary;
};
