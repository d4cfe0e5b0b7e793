// SPDX-License-Identifier: MIT
#include "quiz/ui/standard_quiz.h"

#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

CStandardQuiz::CStandardQuiz(
    const QuizWindowServices &services, CQuizSession &session, const QuizSettings &settings)
    : CQuizDialog(services, m_form), m_form(session, settings, services.texts),
      m_question(new QPlainTextEdit(this)), m_answerField(new QLineEdit(this))
{
    m_question->setObjectName(QStringLiteral("question"));
    m_question->setAccessibleName(texts().Get(Text::QuizQuestion));
    m_question->setReadOnly(true);
    m_question->setTabChangesFocus(true);
    // It is to be read, so it doesn't look like a field to write in.
    m_question->setFrameShape(QFrame::NoFrame);
    m_question->viewport()->setBackgroundRole(QPalette::Window);
    m_answerField->setObjectName(QStringLiteral("answer"));
    m_answerField->setAccessibleName(texts().Get(Text::QuizAnswer));
    m_answerField->setPlaceholderText(texts().Get(Text::QuizAnswer));

    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    m_question->setFont(large);
    m_answerField->setFont(large);
    m_question->setMinimumHeight(QFontMetrics(large).lineSpacing() * 3);
    fields()->addWidget(m_question, 1);
    fields()->addWidget(m_answerField);
    resize(sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * 80, 0)));

    connect(answerButton(), &QPushButton::clicked, this, &CStandardQuiz::answer);
    CStandardQuiz::showCurrentWord();
}

void CStandardQuiz::showCurrentWord()
{
    m_question->setPlainText(m_form.question());
    updateStatistics();
    m_answerField->setText(m_form.prefilledAnswer());
    m_answerField->selectAll();
    m_answerField->setFocus();
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
    const CStandardQuizForm::Outcome outcome = m_form.answer(m_answerField->text());
    showFeedback(outcome.verdict, outcome.feedback);
    proceed(m_form.advance(outcome.verdict));
}
