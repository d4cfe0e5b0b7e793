// SPDX-License-Identifier: MIT
#include "games/ui/pair_matching.h"

#include "games/text_numbers.h"
#include "games/ui/pair_table.h"
#include "platform/ui/drawn_icon.h"
#include "platform/ui/label.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QuizParts Parts = QuizPart::Check | QuizPart::Change | QuizPart::Result | QuizPart::RightLine;

}

CPairMatchingDialog::CPairMatchingDialog(
    const QuizWindowServices &services, std::shared_ptr<CPairMatchingForm> form)
    : CPairMatchingDialog(services, std::move(form), new CPairTable(services.texts.Get(Text::WordsOfRound)))
{
}

CPairMatchingDialog::CPairMatchingDialog(
    const QuizWindowServices &services, std::shared_ptr<CPairMatchingForm> form, CPairTable *table)
    : CWholeRoundDialog(services, form,
        {.parts = Parts, .continues = QuizPart::Check, .table = table, .markedText = Text::MarkedRow}),
      m_form(std::move(form)), m_pairs(table), m_hint(MakeWrappedLabel({}, this))
{
    const QString how = texts().Get(Text::HowAnswersAreMoved);
    m_pairs->setMark(DrawnIcon(QStringLiteral(":/icons/ordelin-shuffle.svg")));
    m_pairs->setAccessibleDescription(how);
    m_hint->setObjectName(QStringLiteral("hint"));
    m_hint->setToolTip(how);
    content()->addWidget(m_hint);
    connect(
        m_pairs, &CPairTable::moveRequested, this, [this](int step) { showMoved(m_form->moveAnswer(step)); });
    connect(m_pairs, &CPairTable::exchangeRequested, this,
        [this](int from, int to) { showMoved(m_form->exchange(from, to)); });
    connect(m_pairs, &CPairTable::enterPressed, this, [this] {
        m_form->markOrExchange();
        showMoved(true);
        speak(currentRowText()); // The focus stays where it is.
    });
    connect(button(QuizPart::Check), &QPushButton::clicked, this, &CPairMatchingDialog::checkOrGoOn);
}

void CPairMatchingDialog::showQuestion()
{
    m_hint->setText(m_form->hint());
}

void CPairMatchingDialog::showState()
{
    CWholeRoundDialog::showState();
    m_pairs->setMayMove(!m_form->isChecked());
}

QString CPairMatchingDialog::spokenQuestion() const
{
    return m_form->isChecked() ? QString() : QString(m_form->hint() + u' ' + currentRowText());
}

void CPairMatchingDialog::checkOrGoOn()
{
    if (m_form->isChecked()) {
        goOn();
    } else {
        check();
    }
}

void CPairMatchingDialog::showMoved(bool moved)
{
    if (moved) {
        showCurrentWord();
    }
}
