// SPDX-License-Identifier: MIT
#include "quiz/ui/standard_quiz.h"

#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QuizParts Parts = QuizPart::Skip | QuizPart::Answer | QuizPart::Change | QuizPart::Result
    | QuizPart::WordLine | QuizPart::RightLine | QuizPart::AcceptAnswer | QuizPart::LastAnswer;

}

CStandardQuiz::CStandardQuiz(const QuizWindowServices &services, std::unique_ptr<CStandardQuizForm> form)
    : CWordByWordDialog(services, *form, Parts), m_form(std::move(form)), m_answerField(new QLineEdit(this))
{
    m_answerField->setObjectName(QStringLiteral("answer"));
    m_answerField->setAccessibleName(texts().Get(Text::QuizAnswer));
    m_answerField->setPlaceholderText(texts().Get(Text::QuizAnswer));
    m_answerField->setFont(largeFont());
    fields()->addWidget(m_answerField);
    connect(button(QuizPart::Answer), &QPushButton::clicked, this, &CStandardQuiz::answer);
}

void CStandardQuiz::showCurrentWord()
{
    CWordByWordDialog::showCurrentWord();
    m_answerField->setText(m_form->prefilledAnswer());
    m_answerField->selectAll();
}

void CStandardQuiz::updateStatistics()
{
    CWordByWordDialog::updateStatistics();
    // In place of the placeholder, which is the field's name.
    m_answerField->setAccessibleDescription(m_form->wordProgress()->text);
}

void CStandardQuiz::focusInput()
{
    m_answerField->setFocus();
}

bool CStandardQuiz::isAnswerEmpty() const
{
    return m_answerField->text().trimmed().isEmpty();
}

void CStandardQuiz::answer()
{
    answered(m_form->answer(m_answerField->text()));
}
