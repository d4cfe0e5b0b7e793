// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_dialog.h"

#include "platform/sound_player.h"
#include "platform/ui/held_enter.h"
#include "platform/ui/input_guard_filter.h"
#include "platform/ui/label.h"
#include "platform/user_prompt.h"
#include "quiz/quiz_form.h"
#include "quiz/ui/accept_answer_bar.h"
#include "quiz/ui/change_entry_dialog.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include <utility>

namespace {

void ShowProgress(QLabel &label, QProgressBar &bar, const QuizProgress &progress)
{
    label.setText(progress.text);
    // A range from 0 to 0 would show a bar of unknown length.
    bar.setRange(0, std::max(progress.maximum, 1));
    bar.setValue(progress.value);
}

}

CQuizDialog::CQuizDialog(const QuizWindowServices &services, CQuizForm &form)
    : m_services(services), m_form(form), m_guard(new CInputGuardFilter(services.clock, this))
{
    setWindowTitle(texts().Get(Text::QuizTitle));
    setWindowModality(Qt::WindowModal);
    if (m_services.font) {
        setFont(*m_services.font);
    }
    setWindowFlags(Qt::Window | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint
        | Qt::WindowMaximizeButtonHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);

    m_fields = new QVBoxLayout;
    auto *left = new QVBoxLayout;
    m_accept = new CAcceptAnswerBar(texts(), this);
    left->addLayout(m_fields, 1);
    left->addWidget(m_accept);
    left->addWidget(makeStatistics());

    auto *buttons = new QVBoxLayout;
    auto *skip = addButton(*buttons, Text::SkipButton, "skipButton");
    m_answer = addButton(*buttons, Text::AnswerButton, "answerButton");
    m_answer->setDefault(true);
    auto *cancel = addButton(*buttons, Text::Cancel, "cancelButton");
    m_change = addButton(*buttons, Text::ChangeButton, "changeButton");
    auto *result = addButton(*buttons, Text::ResultButton, "resultButton");
    buttons->addStretch(1);

    auto *layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addLayout(buttons);

    connect(skip, &QPushButton::clicked, this, [this] { proceed(m_form.skip()); });
    connect(cancel, &QPushButton::clicked, this, &CQuizDialog::reject);
    connect(m_change, &QPushButton::clicked, this, &CQuizDialog::changeEntry);
    connect(result, &QPushButton::clicked, this, &CQuizDialog::showResult);
    connect(m_accept, &CAcceptAnswerBar::pressed, this, &CQuizDialog::takeAcceptOffer);
}

void CQuizDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous() && !std::exchange(m_wasShown, true)) {
        ignoreHeldEnter(*this); // The form has all its fields now.
    }
    QDialog::showEvent(event);
}

QPushButton *CQuizDialog::addButton(QVBoxLayout &column, int text, const char *name)
{
    auto *button = new QPushButton(texts().Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setFocusPolicy(Qt::TabFocus); // A click leaves the focus where answers are typed.
    column.addWidget(button);
    return button;
}

QWidget *CQuizDialog::makeStatistics()
{
    auto *frame = new QGroupBox(texts().Get(Text::Statistics), this);
    frame->setObjectName(QStringLiteral("statistics"));
    const auto makeLabel = [&](const char *name) {
        QLabel *const label = MakeLabel({}, frame);
        label->setObjectName(QLatin1StringView(name));
        return label;
    };
    const auto makeBar = [&](const char *name, int accessibleName) {
        auto *bar = new QProgressBar(frame);
        bar->setObjectName(QLatin1StringView(name));
        bar->setAccessibleName(texts().Get(accessibleName));
        bar->setTextVisible(false);
        return bar;
    };
    m_roundText = makeLabel("roundText");
    m_wordText = makeLabel("wordText");
    m_rightText = makeLabel("rightText");
    m_wordBar = makeBar("wordBar", Text::QuizWordProgress);
    m_rightBar = makeBar("rightBar", Text::QuizRightProgress);

    auto *grid = new QGridLayout(frame);
    grid->addWidget(m_roundText, 0, 0, 1, 2);
    grid->addWidget(m_wordText, 1, 0);
    grid->addWidget(m_wordBar, 1, 1);
    grid->addWidget(m_rightText, 2, 0);
    grid->addWidget(m_rightBar, 2, 1);
    grid->setColumnStretch(1, 1);
    return frame;
}

void CQuizDialog::updateStatistics()
{
    m_change->setEnabled(m_form.mayChangeEntries());
    m_roundText->setText(m_form.roundText());
    ShowProgress(*m_wordText, *m_wordBar, m_form.wordProgress());
    ShowProgress(*m_rightText, *m_rightBar, m_form.rightProgress());
    m_accept->showOffer(m_form.acceptOffer());
}

void CQuizDialog::proceed(bool more)
{
    if (more) {
        showNextWord();
    } else {
        accept();
    }
}

void CQuizDialog::showNextWord()
{
    showCurrentWord();
    m_guard->QuestionAppeared(*this, [this] { return isAnswerEmpty(); });
}

void CQuizDialog::takeAcceptOffer()
{
    switch (m_form.takeAcceptOffer()) {
    case CQuizForm::Next::SameWord:
        updateStatistics(); // What was typed for the next word stays.
        focusInput();
        break;
    case CQuizForm::Next::OtherWord:
        showNextWord();
        break;
    case CQuizForm::Next::Over:
        accept();
        break;
    }
}

void CQuizDialog::reject()
{
    if (prompt().Confirm(texts().Prompt(Text::ReallyEndQuiz), PromptIcon::Question, PromptButtons::YesNoCancel,
            PromptAnswer::No)) {
        QDialog::reject();
    } else {
        focusInput();
    }
}

void CQuizDialog::showFeedback(AnswerVerdict verdict, const std::optional<FeedbackText> &feedback)
{
    const QString sound = m_form.sound(verdict, m_services.dataFolders);
    if (!sound.isEmpty()) {
        m_services.sounds.Play(sound);
    }
    if (feedback) {
        // One sound is enough.
        const PromptIcon icon = sound.isEmpty() ? PromptIcon::Information : PromptIcon::PlainInformation;
        CInputGuardFilter guard(m_services.clock);
        guard.NextDialogOpens();
        prompt().Tell({feedback->number, feedback->text}, icon);
    }
}

void CQuizDialog::changeEntry()
{
    auto *dialog = new CChangeEntryDialog(
        m_form.session(), texts(), prompt(), m_form.session().entryOfRound(m_form.roundPosition()), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (m_services.font) {
        dialog->setFont(*m_services.font);
    }
    connect(dialog, &QDialog::finished, this, [this] {
        m_form.entriesChanged();
        showCurrentWord();
    });
    dialog->open();
}

void CQuizDialog::showResult()
{
    auto *dialog =
        new CQuizResultDialog(m_form.session(), m_services, CQuizResultDialog::Mode::DuringQuiz, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &CQuizDialog::focusInput);
    dialog->open();
}
