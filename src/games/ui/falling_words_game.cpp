// SPDX-License-Identifier: MIT
#include "games/ui/falling_words_game.h"

#include "games/text_numbers.h"
#include "games/ui/game_clock.h"
#include "games/ui/play_field.h"
#include "platform/input_guard.h"
#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/reduced_motion.h"
#include "resources/texts.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSlider>

#include <algorithm>
#include <initializer_list>

using Next = CWordByWordForm::Next;
using std::chrono::milliseconds;

namespace {

constexpr QuizParts Parts =
    QuizPart::Skip | QuizPart::Change | QuizPart::Result | QuizPart::WordLine | QuizPart::RightLine;

constexpr int Slowest = 10;
constexpr int Fastest = 250;

/// The time between two pictures of a screen.
milliseconds pictureTime(const QWidget &window)
{
    const double rate = std::clamp(window.screen()->refreshRate(), 24.0, 240.0);
    return milliseconds(int(1000 / rate));
}

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr
        || key == Qt::Key_Meta || key == Qt::Key_CapsLock || key == Qt::Key_NumLock;
}

}

CFallingWordsGame::CFallingWordsGame(
    const QuizWindowServices &services, std::unique_ptr<CFallingWordsForm> form)
    : CQuizDialog(services, *form, Parts), m_form(std::move(form)), m_now(services.clock),
      m_clock(new CGameClock(services.clock, pictureTime(*this), this)),
      m_field(new CPlayField(texts().Get(Text::FallingPaused), this)), m_answerField(new QLineEdit(this)),
      m_pause(addButton(Text::PauseButton, "pauseButton")), m_speedLine(new QWidget(this))
{
    m_field->setAccessibleName(texts().Get(Text::PlayField));
    m_answerField->setObjectName(QStringLiteral("answer"));
    m_answerField->setAccessibleName(texts().Get(Text::QuizAnswer));
    m_answerField->setPlaceholderText(texts().Get(Text::QuizAnswer));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    m_answerField->setFont(large);
    m_speedLine->setLayout(makeSpeedLine());
    content()->addWidget(m_field, 1);
    content()->addWidget(m_answerField);
    content()->addWidget(m_speedLine);
    // Enter belongs to the answer; without this it would press the first button.
    for (QPushButton *const button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false);
    }
    m_form->setStepwise(WantsReducedMotion(*this));

    connect(button(QuizPart::Skip), &QPushButton::clicked, this, [this] { goOn(m_form->skip()); });
    connect(m_pause, &QPushButton::clicked, this, [this] {
        m_isOnPause = !m_isOnPause;
        m_pause->setText(texts().Get(m_isOnPause ? Text::ContinueGame : Text::PauseButton));
        updatePause();
        focusInput();
        speak(m_isOnPause ? texts().Get(Text::FallingPaused) : spokenQuestion());
    });
    connect(m_clock, &CGameClock::passed, this, &CFallingWordsGame::timePassed);
    connect(m_field, &CPlayField::resized, this, &CFallingWordsGame::place);
    connect(m_field, &CPlayField::clicked, this, &CFallingWordsGame::endReading);
}

QLayout *CFallingWordsGame::makeSpeedLine()
{
    auto *const slider = new QSlider(Qt::Horizontal, this);
    slider->setObjectName(QStringLiteral("speed"));
    slider->setRange(Slowest, Fastest);
    slider->setPageStep(20);
    slider->setFocusPolicy(Qt::TabFocus); // A click leaves the focus where answers are typed.
    slider->setValue(m_form->speed());
    QLabel *const label = MakeLabel(texts().Get(Text::Speed), this);
    label->setBuddy(slider);
    slider->setAccessibleName(CaptionReadOut(label->text()));
    QLabel *const number = MakeLabel(QString::number(slider->value()), this);
    number->setMinimumWidth(fontMetrics().horizontalAdvance(QString::number(Fastest)));
    connect(slider, &QSlider::valueChanged, this, [this, number](int speed) {
        m_clock->bringUpToDate(); // What passed so far was at the other speed.
        m_form->setSpeed(speed);
        number->setText(QString::number(speed));
    });
    auto *const line = new QHBoxLayout;
    line->setContentsMargins({});
    line->addWidget(label);
    line->addWidget(slider, 1);
    line->addWidget(number);
    return line;
}

void CFallingWordsGame::showCurrentWord()
{
    updatePause();
    m_field->showWord(m_form->fallingText(), m_form->isPaused());
    place();
}

void CFallingWordsGame::place()
{
    m_form->setFallDistance(m_field->fallDistance());
    m_field->placeWord(m_form->place(), m_form->fallen());
}

void CFallingWordsGame::updatePause()
{
    const bool waits = m_form->waitsForReader();
    m_form->setPaused(!waits && (m_isOnPause || !isActiveWindow() || isMinimized() || isBlocked(*this)));
    m_field->showWord(m_form->fallingText(), m_form->isPaused());
    place();
    m_clock->run(!m_form->isPaused());
    if (!isActiveWindow() && isVisible()) {
        speak(spokenQuestion()); // When the window is active again, and the word comes back.
    }
}

bool CFallingWordsGame::event(QEvent *event)
{
    const bool handled = CQuizDialog::event(event);
    switch (event->type()) {
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
    case QEvent::WindowStateChange:
    case QEvent::WindowBlocked:
    case QEvent::WindowUnblocked:
        updatePause();
        break;
    default:
        break;
    }
    return handled;
}

void CFallingWordsGame::timePassed(milliseconds time)
{
    const bool landed = m_form->timePassed(time);
    m_field->timePassed(time);
    place();
    if (landed) {
        if (!WantsReducedMotion(*this)) {
            m_field->playEffect(CPlayField::Effect::Miss);
        }
        takeAnswer(m_form->land());
    } else if (!m_form->waitsForReader()) {
        m_field->showLine(m_form->line(), {});
    }
}

void CFallingWordsGame::focusInput()
{
    if (m_form->waitsForReader()) {
        m_field->setFocus();
    } else {
        m_answerField->setFocus();
    }
}

bool CFallingWordsGame::isAnswerEmpty() const
{
    return m_answerField->text().trimmed().isEmpty();
}

void CFallingWordsGame::answer()
{
    m_clock->bringUpToDate(); // It may come too late; then the field is empty now.
    if (m_form->isPaused() || isAnswerEmpty()) {
        return;
    }
    if (const auto outcome = m_form->answer(m_answerField->text())) {
        if (!WantsReducedMotion(*this)) {
            m_field->playEffect(CPlayField::Effect::Hit);
        }
        takeAnswer(*outcome);
    } else {
        m_answerField->selectAll();
        speak(texts().Get(Text::AnswerIsWrong));
    }
}

void CFallingWordsGame::takeAnswer(const CWordByWordForm::Outcome &outcome)
{
    showFeedback(outcome.verdict, std::nullopt);
    if (outcome.feedback) {
        takeUnspokenVerdict(); // The line tells it too.
        m_unspokenLine = m_form->line();
    }
    goOn(m_form->advance(outcome.verdict));
}

void CFallingWordsGame::goOn(Next next)
{
    m_answerField->clear();
    if (next != Next::Over) {
        m_field->showLine(m_form->line(), {});
        showNextWord();
        m_unspokenLine.clear();
    } else if (m_form->waitsForReader()) {
        waitForReader();
    } else {
        accept();
    }
}

void CFallingWordsGame::waitForReader()
{
    m_endedAt = m_now();
    m_field->showWord({}, false);
    m_field->showLine(m_form->line(), texts().Get(Text::AnyKeyGoesOn));
    for (QWidget *const widget : std::initializer_list<QWidget *>{m_answerField, m_speedLine, m_pause,
             button(QuizPart::Skip), button(QuizPart::Change), button(QuizPart::Result)}) {
        widget->setEnabled(false);
    }
    m_field->setFocusPolicy(Qt::StrongFocus);
    focusInput();
    const QString hint = texts().Get(Text::AnyKeyGoesOn);
    speak(m_unspokenLine.isEmpty() ? hint : m_unspokenLine + QStringLiteral(". ") + hint);
}

void CFallingWordsGame::endReading()
{
    // What was typed or clicked so far was meant for the word.
    if (m_form->waitsForReader() && m_now() - m_endedAt >= CInputGuard::Pause) {
        accept();
    }
}

QString CFallingWordsGame::spokenQuestion() const
{
    // A window that is not active yet keeps it until it is.
    const QString word = m_isOnPause ? QString() : m_form->term();
    const QString joint = m_unspokenLine.isEmpty() || word.isEmpty() ? QString() : QStringLiteral(". ");
    return m_unspokenLine + joint + word;
}

void CFallingWordsGame::keyPressEvent(QKeyEvent *event)
{
    if (m_form->waitsForReader()) {
        if (!event->isAutoRepeat() && !isModifier(event->key())) {
            endReading();
        }
        return;
    }
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        CQuizDialog::keyPressEvent(event);
    } else if (auto *const pressed = qobject_cast<QPushButton *>(focusWidget())) {
        pressed->click();
    } else {
        answer();
    }
}

void CFallingWordsGame::reject()
{
    if (m_form->waitsForReader()) {
        accept();
    } else {
        CQuizDialog::reject();
    }
}
