// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/ui/quiz_dialog.h"
#include "quiz/word_by_word_form.h"

class CAcceptAnswerBar;
class CFeedbackPanel;
class CQuestionArea;

/// The common base of the windows that ask one word at a time: the question with the form's own fields below
/// it, and the way from one word to the next.
class CWordByWordDialog : public CQuizDialog
{
    Q_OBJECT

protected:
    /// `form` must live as long as the window.
    CWordByWordDialog(const QuizWindowServices &services, CWordByWordForm &form, QuizParts parts);

    /// Shows the question; a form adds to it what belongs to its own fields.
    void showCurrentWord() override;
    void updateStatistics() override;
    QString spokenQuestion() const override;

    /// For the form's own fields, below the question.
    QVBoxLayout *fields() const { return m_fields; }
    /// The font of what is learnt: larger than that of the window.
    QFont largeFont() const;
    /// After an answer: tells what there is to tell, and goes on.
    void answered(const CWordByWordForm::Outcome &outcome);
    void goOn(CWordByWordForm::Next next);

private:
    void takeAcceptOffer();

    CWordByWordForm &m_form;
    CQuestionArea *m_area;
    QVBoxLayout *m_fields;
    CFeedbackPanel *m_feedback = nullptr;
    CAcceptAnswerBar *m_accept = nullptr;
};
