// SPDX-License-Identifier: MIT
#include "quiz/ui/whole_round_dialog.h"

#include "platform/plain_text.h"
#include "platform/ui/contrast.h"
#include "platform/ui/wait_cursor.h"
#include "quiz/round_model.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/round_table.h"
#include "resources/texts.h"

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

/// In the accent colour of the desktop, as far as letters can be read on it.
QPalette accented(QPalette palette)
{
    constexpr int AsStylesPaint = 130; // In percent; they make a button lighter than its colour.
    constexpr int Step = 110;
    QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const auto contrastTo = [&](const QColor &letters) {
        return std::min(Contrast(letters, accent), Contrast(letters, accent.lighter(AsStylesPaint)));
    };
    const bool light = contrastTo(Qt::white) > contrastTo(Qt::black);
    const QColor letters = light ? Qt::white : Qt::black;
    while (contrastTo(letters) < TextContrast) {
        accent = light ? accent.darker(Step) : accent.lighter(Step);
    }
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Button, accent);
        palette.setColor(group, QPalette::ButtonText, letters);
    }
    return palette;
}

}

CWholeRoundDialog::CWholeRoundDialog(
    const QuizWindowServices &services, std::shared_ptr<CWholeRoundForm> form, const Setup &setup)
    : CQuizDialog(services, *form, setup.parts), m_form(std::move(form)), m_table(setup.table),
      m_model(new CRoundModel(*m_form, texts(), setup.markedText, this)), m_markedText(setup.markedText),
      m_continue(button(setup.continues)), m_caption(m_continue->text()), m_isDefault(m_continue->isDefault())
{
    m_table->setModel(m_model);
    content()->addWidget(m_table, 1);
    connect(m_table, &CRoundTable::rowSelected, this, &CWholeRoundDialog::selectRow);
    connect(m_table, &CRoundTable::searchTyped, this, [this](const QString &start, int row) {
        if (const auto found = m_form->findRow(start, row)) {
            m_table->showRow(*found);
        }
    });
    // Spoken behind the name of the table.
    const auto speakRow = [this] { speak(currentRowText()); };
    connect(m_table, &CRoundTable::reachedByTab, this, speakRow, Qt::QueuedConnection);
}

CWholeRoundDialog::~CWholeRoundDialog()
{
    delete m_table; // It asks the form until its end.
}

QString CWholeRoundDialog::currentRowText() const
{
    const int row = m_form->currentRow();
    if (row >= m_form->rowCount()) {
        return {};
    }
    const QString first = ShownShort(m_form->cell(row, 0));
    const QString second = ShownShort(m_form->cell(row, 1));
    const QString text = second.isEmpty() ? first : texts().Fill(Text::AskedEntry, {first, second});
    return m_markedText != 0 && m_form->hasMark(row, 0) ? texts().Fill(m_markedText, {text}) : text;
}

void CWholeRoundDialog::selectRow(int row)
{
    if (row != m_form->currentRow()) {
        m_form->selectRow(row);
        showQuestion();
        showCurrentAnswer();
        updateStatistics();
    }
}

void CWholeRoundDialog::showCurrentWord()
{
    m_model->refresh();
    m_table->showRow(m_form->currentRow());
    showQuestion();
    if (m_form->isChecked()) {
        focusInput(); // Before a field that has the focus is disabled.
        showState();
    } else {
        showState();
        focusInput();
    }
}

void CWholeRoundDialog::showState()
{
    const bool checked = m_form->isChecked();
    m_continue->setText(checked ? texts().Get(Text::ContinueButton) : m_caption);
    m_continue->setPalette(checked ? accented(palette()) : QPalette());
    m_continue->setDefault(checked || m_isDefault);
    button(QuizPart::Change)->setEnabled(m_form->mayChangeEntries() && !checked);
}

void CWholeRoundDialog::focusInput()
{
    if (m_form->isChecked()) {
        m_continue->setFocus();
    } else {
        focusAnswers();
    }
}

void CWholeRoundDialog::focusAnswers()
{
    m_table->setFocus();
}

bool CWholeRoundDialog::isHastyAnswer(const QKeyEvent &key) const
{
    return m_form->isChecked() ? pressesButton(key) : CQuizDialog::isHastyAnswer(key);
}

void CWholeRoundDialog::check()
{
    const CWholeRoundForm::Outcome outcome = [this] {
        const CWaitCursor wait;
        return m_form->check();
    }();
    showCurrentAnswer();
    showCurrentWord();
    updateStatistics();
    showFeedback(outcome.verdict, outcome.feedback, outcome.summary);
    if (m_form->isChecked()) {
        showNextWord();
    } else {
        goOn();
    }
}

void CWholeRoundDialog::goOn()
{
    if (m_form->startRound()) {
        showCurrentAnswer();
        showNextWord();
    } else {
        accept();
    }
}

void CWholeRoundDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange && m_form->isChecked()) {
        showState();
    }
    CQuizDialog::changeEvent(event);
}
