// SPDX-License-Identifier: MIT
#include "games/ui/memory_game.h"

#include "games/text_numbers.h"
#include "games/ui/game_clock.h"
#include "games/ui/memory_table.h"
#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "resources/texts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using Event = CMemoryForm::Event;
using std::chrono::milliseconds;

namespace {

constexpr QuizParts Parts = QuizPart::Change | QuizPart::Result | QuizPart::WordLine | QuizPart::RightLine;

constexpr milliseconds ClockInterval{50};

}

CMemoryGame::CMemoryGame(const QuizWindowServices &services, std::unique_ptr<CMemoryForm> form)
    : CQuizDialog(services, *form, Parts), m_form(std::move(form)),
      m_clock(new CGameClock(services.clock, ClockInterval, this)), m_moves(MakeLabel({}, this)),
      m_table(new CMemoryTable(*m_form, texts(), this))
{
    m_moves->setObjectName(QStringLiteral("moves"));
    auto *const line = new QHBoxLayout;
    QLabel *const task = MakeWrappedLabel(texts().Get(Text::FindPairs), this);
    line->addWidget(task, 1);
    line->addWidget(m_moves);
    content()->addLayout(line);
    content()->addWidget(m_table, 1);
    m_table->deal();
    for (QPushButton *const button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false); // Enter is for the cards.
    }
    connect(m_table, &CMemoryTable::cardPressed, this, &CMemoryGame::turn);
    connect(m_clock, &CGameClock::passed, this, [this](milliseconds time) {
        if (!isBlocked(*this)) {
            handle(m_form->timePassed(time), {});
        }
    });
}

void CMemoryGame::showCurrentWord()
{
    m_table->refresh();
    m_clock->run(m_form->waits());
}

void CMemoryGame::updateStatistics()
{
    CQuizDialog::updateStatistics();
    m_moves->setText(texts().Fill(Text::Moves, {QString::number(m_form->moves())}));
}

void CMemoryGame::focusInput()
{
    m_table->focusCard();
}

bool CMemoryGame::isHastyAnswer(const QKeyEvent &key) const
{
    return pressesButton(key);
}

QString CMemoryGame::spokenQuestion() const
{
    return texts().Get(Text::FindPairs) + u' '
        + texts().Fill(Text::CardsOnBoard, {QString::number(m_form->cardCount())});
}

void CMemoryGame::turn(int card)
{
    const bool wasUp = card < m_form->cardCount() && m_form->isUp(card);
    const Event event = m_form->turn(card);
    const bool turned = event != Event::NewBoard && event != Event::Over && !wasUp && m_form->isUp(card);
    handle(event, turned ? ShownShort(m_form->text(card)) : QString());
}

void CMemoryGame::handle(Event event, const QString &turned)
{
    switch (event) {
    case Event::Nothing:
        return;
    case Event::Over:
        accept();
        return;
    case Event::NewBoard:
        m_table->deal();
        showNextWord();
        return;
    case Event::Pair:
        showFeedback(AnswerVerdict::Right, std::nullopt);
        break;
    case Event::Mistake:
        showFeedback(AnswerVerdict::Wrong, std::nullopt);
        break;
    case Event::Changed:
    case Event::NoPair:
        break;
    }
    m_table->refresh();
    updateStatistics();
    m_clock->run(m_form->waits());
    if (event == Event::NoPair) {
        speak(turned + QStringLiteral(". ") + texts().Get(Text::NoPair));
    } else if (!turned.isEmpty()) {
        speak(turned);
    }
}
