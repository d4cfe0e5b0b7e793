// SPDX-License-Identifier: MIT
#include "games/ui/alternatives_game.h"

#include "games/ui/answer_button.h"
#include "games/ui/answer_keys.h"
#include "games/ui/answer_list.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace {

constexpr QuizParts Parts =
    QuizPart::Change | QuizPart::Result | QuizPart::WordLine | QuizPart::RightLine | QuizPart::LastAnswer;

}

CAlternativesGame::CAlternativesGame(
    const QuizWindowServices &services, std::unique_ptr<CAlternativesForm> form)
    : CWordByWordDialog(services, *form, Parts), m_form(std::move(form)), m_list(new CAnswerList(this))
{
    for (int number = 0; number < CAlternativesForm::MostAnswers; ++number) {
        auto *const answer = new CAnswerButton(texts(), number, m_list);
        m_list->addAnswer(answer);
        m_answers.append(answer);
        connect(answer, &QPushButton::clicked, this, [this, number] { choose(number); });
    }
    fields()->addWidget(m_list);
    // Enter presses what has the focus; elsewhere it would choose what the toolkit takes for the default.
    for (QPushButton *const button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false);
    }
    m_keys = new CAnswerKeys(CAlternativesForm::MostAnswers, this);
    connect(m_keys, &CAnswerKeys::chosen, this, [this](int number) {
        if (number < m_form->answerCount()) {
            choose(number);
        }
    });
}

void CAlternativesGame::showCurrentWord()
{
    CWordByWordDialog::showCurrentWord();
    m_form->drawAnswers();
    m_keys->forget();
    const QFont font = answerFont();
    for (int number = 0; number < int(m_answers.size()); ++number) {
        CAnswerButton *const answer = m_answers[number];
        const bool isUsed = number < m_form->answerCount();
        answer->setVisible(isUsed);
        answer->setFont(font);
        if (isUsed) {
            answer->showAnswer(m_form->answer(number), m_form->spokenAnswer(number));
        }
    }
    m_list->updateGeometry();
}

QFont CAlternativesGame::answerFont() const
{
    constexpr qsizetype Long = 60; // Longer ones would seldom be seen together in large letters.
    for (int number = 0; number < m_form->answerCount(); ++number) {
        if (m_form->answer(number).size() > Long) {
            return font();
        }
    }
    return largeFont();
}

void CAlternativesGame::focusInput()
{
    m_answers.first()->setFocus();
    m_list->bringIntoSight(*m_answers.first());
}

bool CAlternativesGame::isHastyAnswer(const QKeyEvent &key) const
{
    return pressesButton(key) || m_keys->numberOf(key);
}

void CAlternativesGame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        CWordByWordDialog::keyPressEvent(event);
    } else if (auto *const button = qobject_cast<QPushButton *>(focusWidget())) {
        button->click();
    }
}

void CAlternativesGame::choose(int number)
{
    const CWordByWordForm::Outcome outcome = m_form->choose(number);
    if (outcome.feedback) {
        markAnswers(number);
    }
    answered(outcome);
}

void CAlternativesGame::markAnswers(int chosen)
{
    for (int number = 0; number < m_form->answerCount(); ++number) {
        if (m_form->isRight(number)) {
            m_answers[number]->mark(AnswerVerdict::Right);
            m_list->bringIntoSight(*m_answers[number]);
        } else if (number == chosen) {
            m_answers[number]->mark(AnswerVerdict::Wrong);
        }
    }
}
