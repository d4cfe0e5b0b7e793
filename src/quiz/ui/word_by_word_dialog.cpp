// SPDX-License-Identifier: MIT
#include "quiz/ui/word_by_word_dialog.h"

#include "quiz/text_numbers.h"
#include "quiz/ui/accept_answer_bar.h"
#include "quiz/ui/feedback_panel.h"
#include "quiz/ui/question_area.h"
#include "resources/texts.h"

#include <QPushButton>
#include <QVBoxLayout>

using Next = CWordByWordForm::Next;

CWordByWordDialog::CWordByWordDialog(const QuizWindowServices &services, CWordByWordForm &form, QuizParts parts)
    : CQuizDialog(services, form, parts), m_form(form),
      m_area(new CQuestionArea(texts().Get(Text::QuizQuestion), this)), m_fields(new QVBoxLayout)
{
    content()->addWidget(m_area, 1);
    m_area->fields()->addLayout(m_fields);
    if (parts.testFlag(QuizPart::LastAnswer)) {
        m_feedback = new CFeedbackPanel(texts(), this);
        m_area->fields()->addWidget(m_feedback);
    }
    if (parts.testFlag(QuizPart::AcceptAnswer)) {
        m_accept = new CAcceptAnswerBar(texts(), this);
        m_area->fields()->addWidget(m_accept);
        connect(m_accept, &CAcceptAnswerBar::pressed, this, &CWordByWordDialog::takeAcceptOffer);
    }
    if (auto *const skip = button(QuizPart::Skip)) {
        connect(skip, &QPushButton::clicked, this, [this] { goOn(m_form.skip()); });
    }
}

QFont CWordByWordDialog::largeFont() const
{
    return m_area->smallestFont();
}

void CWordByWordDialog::showCurrentWord()
{
    m_area->setQuestion(m_form.question());
}

void CWordByWordDialog::updateStatistics()
{
    CQuizDialog::updateStatistics();
    if (m_feedback != nullptr) {
        m_feedback->showAnswer(m_form.shownAnswer());
    }
    if (m_accept != nullptr) {
        m_accept->showOffer(m_form.acceptOffer());
    }
}

QString CWordByWordDialog::spokenQuestion() const
{
    return m_form.question();
}

void CWordByWordDialog::answered(const CWordByWordForm::Outcome &outcome)
{
    showFeedback(outcome.verdict, outcome.feedback);
    goOn(m_form.advance(outcome.verdict));
}

void CWordByWordDialog::goOn(Next next)
{
    if (next == Next::Over) {
        accept();
    } else {
        showNextWord(); // The same one too, which is asked afresh.
    }
}

void CWordByWordDialog::takeAcceptOffer()
{
    const Next next = m_form.takeAcceptOffer();
    if (next == Next::SameWord) {
        updateStatistics(); // What was typed for the next word stays.
        focusInput();
        speak(m_accept->shownLine());
    } else {
        goOn(next);
    }
}
