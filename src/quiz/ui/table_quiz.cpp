// SPDX-License-Identifier: MIT
#include "quiz/ui/table_quiz.h"

#include "platform/ui/drawn_icon.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/round_table.h"
#include "quiz/ui/shown_text.h"
#include "resources/texts.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QuizParts Parts =
    QuizPart::Answer | QuizPart::Check | QuizPart::Change | QuizPart::Result | QuizPart::RightLine;

}

CTableQuiz::CTableQuiz(const QuizWindowServices &services, std::shared_ptr<CTableQuizForm> form)
    : CWholeRoundDialog(services, form,
        {.parts = Parts,
            .continues = QuizPart::Answer,
            .table = new CRoundTable(services.texts.Get(Text::WordsOfRound))}),
      m_form(std::move(form)), m_question(new CShownText("question", texts().Get(Text::QuizQuestion), this)),
      m_answerField(new QLineEdit(this))
{
    table()->setMark(DrawnIcon(QStringLiteral(":/icons/document-edit.svg")));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25);
    m_question->setFont(large);
    constexpr int Lines = 3;
    m_question->setFixedHeight(QFontMetrics(large).lineSpacing() * Lines + m_question->margins());
    m_answerField->setObjectName(QStringLiteral("answer"));
    m_answerField->setAccessibleName(texts().Get(Text::QuizAnswer));
    m_answerField->setPlaceholderText(texts().Get(Text::QuizAnswer));
    m_answerField->setFont(large);
    content()->addWidget(m_question);
    content()->addWidget(m_answerField);
    setTabOrder(table(), m_answerField);
    setTabOrder(m_answerField, m_question);
    connect(button(QuizPart::Answer), &QPushButton::clicked, this, &CTableQuiz::answerOrGoOn);
    connect(button(QuizPart::Check), &QPushButton::clicked, this, &CTableQuiz::checkRound);
}

void CTableQuiz::showQuestion()
{
    m_question->showText(m_form->question());
}

void CTableQuiz::showCurrentAnswer()
{
    m_answerField->setText(m_form->currentAnswer());
    if (m_form->selectsAnswer()) {
        m_answerField->selectAll();
    }
}

void CTableQuiz::showState()
{
    CWholeRoundDialog::showState();
    m_answerField->setEnabled(!m_form->isChecked());
    button(QuizPart::Check)->setEnabled(!m_form->isChecked());
}

void CTableQuiz::focusAnswers()
{
    m_answerField->setFocus();
}

bool CTableQuiz::isAnswerEmpty() const
{
    return m_answerField->text().trimmed().isEmpty();
}

QString CTableQuiz::spokenQuestion() const
{
    return m_form->isChecked() ? QString() : m_form->question();
}

void CTableQuiz::answerOrGoOn()
{
    if (m_form->isChecked()) {
        goOn();
        return;
    }
    m_form->answer(m_answerField->text());
    showCurrentAnswer();
    showCurrentWord();
    speak(m_form->question());
}

void CTableQuiz::checkRound()
{
    m_form->storeAnswer(m_answerField->text());
    check();
}
