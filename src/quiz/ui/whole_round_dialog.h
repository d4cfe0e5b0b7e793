// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/ui/quiz_dialog.h"
#include "quiz/whole_round_form.h"

class CRoundModel;
class CRoundTable;

/// The common base of the windows that show a whole round as a table: checking it, showing its mistakes, and
/// the way to the next one.
class CWholeRoundDialog : public CQuizDialog
{
    Q_OBJECT

public:
    ~CWholeRoundDialog() override;

protected:
    struct Setup
    {
        QuizParts parts;
        /// The button that goes on to the next round while mistakes are shown, with another caption then.
        QuizPart continues;
        /// Shown by the window, above the form's own fields, and owned by it.
        CRoundTable *table;
        /// Tells of a row with a mark, as CRoundModel has it.
        int markedText = 0;
    };
    CWholeRoundDialog(
        const QuizWindowServices &services, std::shared_ptr<CWholeRoundForm> form, const Setup &setup);

    /// Shows the rows, and what can be done now.
    void showCurrentWord() override;
    void focusInput() override;
    bool isAnswerEmpty() const override { return true; }
    bool isHastyAnswer(const QKeyEvent &key) const override;

    /// Shows what is asked about the current row, or how the round was.
    virtual void showQuestion() = 0;
    /// Shows what was answered for the current row; what was typed for another one is dropped.
    virtual void showCurrentAnswer() { }
    /// Enables what is of use before a round is checked, or while its mistakes are shown.
    virtual void showState();
    /// Gives the focus to where answers are given before a round is checked.
    virtual void focusAnswers();

    void check();
    void goOn();
    CRoundTable *table() const { return m_table; }
    /// What stands in the current row, as it is read out.
    QString currentRowText() const;

    void changeEvent(QEvent *event) override;

private:
    void selectRow(int row);

    std::shared_ptr<CWholeRoundForm> m_form;
    CRoundTable *m_table;
    CRoundModel *m_model;
    int m_markedText;
    QPushButton *m_continue;
    QString m_caption; // Of that button before a round is checked.
    bool m_isDefault;
};
