// SPDX-License-Identifier: MIT
#include "games/ui/word_contest_game.h"

#include "games/text_numbers.h"
#include "games/ui/contest_setup_dialog.h"
#include "games/ui/contest_standing_dialog.h"
#include "games/ui/game_clock.h"
#include "games/ui/score_list.h"
#include "platform/ui/label.h"
#include "platform/ui/owner_window.h"
#include "platform/ui/wrapped_text.h"
#include "resources/texts.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using std::chrono::milliseconds;

namespace {

constexpr QuizParts Parts = QuizPart::Skip | QuizPart::Answer | QuizPart::Change | QuizPart::Result
    | QuizPart::WordLine | QuizPart::RightLine;

constexpr milliseconds ClockInterval{50};
constexpr milliseconds LastSeconds{5000}; // In which the time left stands out; it is read out once.

}

CWordContestGame::CWordContestGame(const QuizWindowServices &services, std::unique_ptr<CWordContestForm> form)
    : CWordByWordDialog(services, *form, Parts), m_form(std::move(form)), m_services(services),
      m_clock(new CGameClock(services.clock, ClockInterval, this)), m_scores(new CScoreList(texts(), this)),
      m_turn(new CWrappedText({}, this)), m_timeBar(new QProgressBar(this)), m_timeText(MakeLabel({}, this)),
      m_fields(new QStackedWidget(this)), m_answerField(new QLineEdit(this)),
      m_begin(new QPushButton(texts().Get(Text::BeginTurn), this))
{
    content()->insertLayout(0, makeTop());
    makeFields();
    showScores();
    connect(button(QuizPart::Answer), &QPushButton::clicked, this, &CWordContestGame::answer);
    connect(m_begin, &QPushButton::clicked, this, &CWordContestGame::begin);
    connect(m_clock, &CGameClock::passed, this, &CWordContestGame::timePassed);
}

QLayout *CWordContestGame::makeTop()
{
    m_turn->setObjectName(QStringLiteral("turn"));
    QFont bold = largeFont();
    bold.setBold(true);
    m_turn->setFont(bold);
    m_timeBar->setObjectName(QStringLiteral("timeBar"));
    m_timeBar->setAccessibleName(texts().Get(Text::TimeLeft));
    m_timeBar->setRange(0, int(m_form->timeAllowed().count()));
    m_timeBar->setTextVisible(false);
    m_timeText->setObjectName(QStringLiteral("timeText"));
    auto *column = new QVBoxLayout;
    column->addWidget(m_timeBar);
    column->addWidget(m_timeText);
    column->addStretch(1);
    auto *line = new QHBoxLayout;
    line->addWidget(m_scores, 3);
    line->addLayout(column, 2);
    auto *top = new QVBoxLayout;
    top->addWidget(m_turn);
    top->addLayout(line);
    return top;
}

void CWordContestGame::makeFields()
{
    m_fields->setObjectName(QStringLiteral("fields"));
    m_answerField->setObjectName(QStringLiteral("answer"));
    m_answerField->setAccessibleName(texts().Get(Text::QuizAnswer));
    m_answerField->setPlaceholderText(texts().Get(Text::QuizAnswer));
    m_answerField->setFont(largeFont());
    m_begin->setObjectName(QStringLiteral("beginButton"));
    m_begin->setFont(largeFont());
    m_begin->setAccessibleDescription(texts().Get(Text::BeginTurnHint));
    m_fields->addWidget(m_answerField);
    m_fields->addWidget(m_begin);
    m_fields->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    fields()->addWidget(m_fields);
}

void CWordContestGame::showCurrentWord()
{
    CWordByWordDialog::showCurrentWord();
    const bool isHandOver = m_form->isHandOver();
    showScores();
    showTime();
    m_turn->ShowText(m_form->turnText());
    m_answerField->clear();
    m_fields->setCurrentWidget(isHandOver ? static_cast<QWidget *>(m_begin) : m_answerField);
    m_clock->run(m_form->isThinking());
    button(QuizPart::Answer)->setEnabled(!isHandOver);
    button(QuizPart::Skip)->setEnabled(!isHandOver);
    // There is nothing to correct before the first question is shown.
    button(QuizPart::Change)->setEnabled(m_form->mayChangeEntries() && (!isHandOver || m_form->hasAnswers()));
    (isHandOver ? m_begin : button(QuizPart::Answer))->setDefault(true);
}

void CWordContestGame::showScores()
{
    m_scores->showPlayers(m_form->players(), m_form->playerOnTurn(), m_form->turnText());
}

void CWordContestGame::showTime()
{
    m_timeBar->setValue(int(m_form->timeLeft().count()));
    m_timeText->setText(m_form->timeLeftText());
    QFont textFont = largeFont();
    textFont.setBold(m_form->isThinking() && m_form->timeLeft() <= LastSeconds);
    m_timeText->setFont(textFont);
}

void CWordContestGame::focusInput()
{
    m_fields->currentWidget()->setFocus();
}

bool CWordContestGame::isAnswerEmpty() const
{
    return m_form->isHandOver() || m_answerField->text().trimmed().isEmpty();
}

bool CWordContestGame::isHastyAnswer(const QKeyEvent &key) const
{
    // The player before may still have been typing.
    return m_form->isHandOver() ? pressesButton(key) : CWordByWordDialog::isHastyAnswer(key);
}

QString CWordContestGame::spokenQuestion() const
{
    return m_form->isHandOver() ? m_form->turnText() : m_form->question();
}

void CWordContestGame::begin()
{
    m_form->begin();
    showNextWord();
}

bool CWordContestGame::clockStands() const
{
    // The window of special characters stands beside this one, and is used for answering.
    const QWidget *const active = QApplication::activeWindow();
    const bool usesOther = active != nullptr && active != this && active->windowType() != Qt::Tool;
    return isMinimized() || isBlocked(*this) || usesOther;
}

void CWordContestGame::timePassed(milliseconds time)
{
    if (clockStands()) {
        return;
    }
    const bool hadTime = m_form->timeLeft() > LastSeconds;
    const bool isUp = m_form->timePassed(time);
    showTime();
    if (hadTime && m_form->timeLeft() <= LastSeconds && !isUp) {
        speak(m_form->timeLeftText());
    }
    if (isUp) {
        takeAnswer(m_form->timeOut());
    }
}

void CWordContestGame::answer()
{
    m_clock->bringUpToDate();
    if (!m_form->isThinking()) {
        return; // It came too late.
    }
    takeAnswer(m_form->answer(m_answerField->text()));
}

void CWordContestGame::takeAnswer(const CWordByWordForm::Outcome &outcome)
{
    m_clock->run(false);
    showScores();
    answered(outcome);
}

void CWordContestGame::done(int result)
{
    m_clock->run(false);
    if (!m_form->hasAnswers() || std::exchange(m_showedStanding, true)) {
        CWordByWordDialog::done(result);
        return;
    }
    auto *const standing =
        new CContestStandingDialog(m_form->players(), m_services, takeUnspokenVerdict(), this);
    standing->setAttribute(Qt::WA_DeleteOnClose);
    connect(standing, &QDialog::finished, this, [this, result] { done(result); });
    standing->open();
}

std::unique_ptr<CQuizDialog> makeWordContest(const QuizWindowServices &services, const QuizStart &start)
{
    QuizChallengeSettings &settings = start.kindSettings.quizChallenge;
    CContestSetup setup(settings);
    QWidget *owner = OwnerWindow();
    while (owner != nullptr && !owner->isVisible()) {
        owner = owner->parentWidget(); // A result that is just closing.
    }
    CContestSetupDialog dialog(setup, services, owner);
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    setup.store(settings);
    return std::make_unique<CWordContestGame>(
        services, std::make_unique<CWordContestForm>(start, setup.players()));
}
