// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_dialog.h"

#include "platform/sound_player.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/input_guard_filter.h"
#include "platform/ui/label.h"
#include "platform/ui/spoken_text.h"
#include "platform/user_prompt.h"
#include "quiz/quiz_form.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/change_entry_dialog.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "resources/texts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>

#include <utility>

namespace {

bool isEnter(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}

void openHelpOnF1(QWidget &window, const QuizWindowServices &services)
{
    auto *const shortcut = new QShortcut(Qt::Key_F1, &window);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, services.showHelp);
}

CQuizDialog::CQuizDialog(const QuizWindowServices &services, CQuizForm &form, QuizParts parts)
    : m_services(services), m_form(form), m_parts(parts), m_guard(new CInputGuardFilter(services.clock, this)),
      m_spoken(new CSpokenText(this)), m_content(new QVBoxLayout), m_buttonColumn(new QVBoxLayout)
{
    setWindowTitle(texts().Get(Text::QuizTitle));
    setWindowModality(Qt::WindowModal);
    if (m_services.font) {
        setFont(*m_services.font);
    }
    setWindowFlags(Qt::Window | Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint
        | Qt::WindowMaximizeButtonHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);

    auto *left = new QVBoxLayout;
    left->addLayout(m_content, 1);
    left->addWidget(makeStatistics());
    m_buttonColumn->addStretch(1);
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addLayout(m_buttonColumn);
    makeButtons();
    NoticeHeldKeys(*this);
    openHelpOnF1(*this, m_services);
}

QSize CQuizDialog::sizeHint() const
{
    return QDialog::sizeHint().expandedTo({fontMetrics().averageCharWidth() * 80, 0});
}

void CQuizDialog::makeButtons()
{
    const auto addPart = [&](QuizPart part, int text, const char *name) {
        if (m_parts.testFlag(part)) {
            m_buttons[part] = addButton(text, name);
        }
        return button(part);
    };
    addPart(QuizPart::Skip, Text::SkipButton, "skipButton");
    addPart(QuizPart::Flag, Text::FlagButton, "flagButton");
    if (auto *const answer = addPart(QuizPart::Answer, Text::AnswerButton, "answerButton")) {
        answer->setDefault(true);
    }
    addPart(QuizPart::Check, Text::CheckButton, "checkButton");
    auto *const cancel = addButton(Text::Cancel, "cancelButton");
    connect(cancel, &QPushButton::clicked, this, &CQuizDialog::reject);
    if (auto *const change = addPart(QuizPart::Change, Text::ChangeButton, "changeButton")) {
        change->setEnabled(m_form.mayChangeEntries());
        connect(change, &QPushButton::clicked, this, &CQuizDialog::changeEntry);
    }
    if (auto *const result = addPart(QuizPart::Result, Text::ResultButton, "resultButton")) {
        connect(result, &QPushButton::clicked, this, &CQuizDialog::showResult);
    }
}

QPushButton *CQuizDialog::addButton(int text, const char *name)
{
    auto *button = new QPushButton(texts().Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setFocusPolicy(Qt::TabFocus); // A click leaves the focus where answers are typed.
    m_buttonColumn->insertWidget(m_buttonColumn->count() - 1, button);
    return button;
}

QWidget *CQuizDialog::makeStatistics()
{
    auto *frame = new QGroupBox(texts().Get(Text::Statistics), this);
    frame->setObjectName(QStringLiteral("statistics"));
    auto *grid = new QGridLayout(frame);
    grid->setColumnStretch(1, 1);
    const auto makeLabel = [&](const char *name) {
        QLabel *const label = MakeLabel({}, frame);
        label->setObjectName(QLatin1StringView(name));
        return label;
    };
    const auto makeLine = [&](QuizPart part, const char *label, const char *bar, int accessibleName) {
        if (!m_parts.testFlag(part)) {
            return Line();
        }
        const Line line = {makeLabel(label), new QProgressBar(frame)};
        line.bar->setObjectName(QLatin1StringView(bar));
        line.bar->setAccessibleName(texts().Get(accessibleName));
        line.bar->setTextVisible(false);
        const int row = grid->rowCount();
        grid->addWidget(line.label, row, 0);
        grid->addWidget(line.bar, row, 1);
        return line;
    };
    m_roundText = makeLabel("roundText");
    grid->addWidget(m_roundText, 0, 0, 1, 2);
    m_wordLine = makeLine(QuizPart::WordLine, "wordText", "wordBar", Text::QuizWordProgress);
    m_rightLine = makeLine(QuizPart::RightLine, "rightText", "rightBar", Text::QuizRightProgress);
    return frame;
}

void CQuizDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous() && !std::exchange(m_wasShown, true)) {
        showNextWord();
        layout()->activate(); // It has not seen the texts yet.
        if (layout()->hasHeightForWidth()) {
            // A layout leaves out that labels need more lines where there is little room.
            const int narrowest = layout()->totalMinimumSize().width();
            setMinimumHeight(layout()->totalMinimumHeightForWidth(narrowest));
        }
    }
    QDialog::showEvent(event);
}

void CQuizDialog::showNextWord()
{
    showCurrentWord();
    focusInput();
    updateStatistics();
    speak(spokenQuestion());
    m_guard->QuestionAppeared(*this, [this](const QKeyEvent &key) { return isHastyAnswer(key); });
}

bool CQuizDialog::isHastyAnswer(const QKeyEvent &key) const
{
    return isEnter(key) && isAnswerEmpty();
}

bool CQuizDialog::pressesButton(const QKeyEvent &key)
{
    return isEnter(key) || key.key() == Qt::Key_Space || key.modifiers().testFlag(Qt::AltModifier);
}

void CQuizDialog::speak(const QString &text)
{
    const QString verdict = takeUnspokenVerdict();
    const QString end = verdict.isEmpty() || text.isEmpty() ? QString()
        : verdict.endsWith(u'.')                            ? QStringLiteral(" ")
                                                            : QStringLiteral(". ");
    if (const QString spoken = verdict + end + text; !spoken.isEmpty()) {
        m_spoken->Say(spoken);
    }
}

void CQuizDialog::showProgress(const Line &line, const QuizProgress &progress)
{
    line.label->setText(progress.text);
    // A range from 0 to 0 would show a bar of unknown length.
    line.bar->setRange(0, std::max(progress.maximum, 1));
    line.bar->setValue(progress.value);
}

void CQuizDialog::updateStatistics()
{
    m_roundText->setText(m_form.roundText());
    if (const auto progress = m_form.wordProgress(); progress && m_parts.testFlag(QuizPart::WordLine)) {
        showProgress(m_wordLine, *progress);
    }
    if (m_parts.testFlag(QuizPart::RightLine)) {
        showProgress(m_rightLine, m_form.rightProgress());
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

void CQuizDialog::showFeedback(
    AnswerVerdict verdict, const std::optional<FeedbackText> &feedback, const QString &spoken)
{
    const QString sound = m_form.sound(verdict, m_services.dataFolders);
    if (!sound.isEmpty()) {
        m_services.sounds.Play(sound);
    }
    const int word = verdict == AnswerVerdict::Wrong ? Text::AnswerIsWrong : Text::AnswerIsRight;
    m_verdict = spoken.isEmpty() ? texts().Get(word) : spoken;
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
    auto *dialog = new CChangeEntryDialog(*m_form.session(), texts(), prompt(), m_form.currentEntry(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (m_services.font) {
        dialog->setFont(*m_services.font);
    }
    openHelpOnF1(*dialog, m_services);
    connect(dialog, &QDialog::finished, this, [this] {
        m_form.entriesChanged();
        showNextWord(); // It may be asked in other words.
    });
    dialog->open();
}

void CQuizDialog::showResult()
{
    auto *dialog = new CQuizResultDialog(m_form.session(), m_services, ResultMode::DuringQuiz, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, &CQuizDialog::focusInput);
    dialog->open();
}
