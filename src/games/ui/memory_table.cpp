// SPDX-License-Identifier: MIT
#include "games/ui/memory_table.h"

#include "games/text_numbers.h"
#include "games/ui/memory_card.h"
#include "platform/plain_text.h"
#include "resources/texts.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr double BestShape = 1.5; // The width of a card by its height.

int rowsFor(int cards, int columns)
{
    return (cards + columns - 1) / columns;
}

}

CMemoryTable::CMemoryTable(const CMemoryForm &form, const CTexts &texts, QWidget *parent)
    : QWidget(parent), m_form(form), m_texts(texts)
{
    setObjectName(QStringLiteral("memoryTable"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CMemoryTable::deal()
{
    while (int(m_cards.size()) > m_form.cardCount()) {
        // Later, since it may be the one that was pressed.
        m_cards.back()->hide();
        m_cards.back()->setObjectName({});
        m_cards.back()->deleteLater();
        m_cards.pop_back();
    }
    while (int(m_cards.size()) < m_form.cardCount()) {
        auto *const card = new CMemoryCard(this);
        const int number = int(m_cards.size());
        card->setObjectName(QStringLiteral("card%1").arg(number));
        card->installEventFilter(this);
        connect(card, &CMemoryCard::clicked, this, [this, number] { Q_EMIT cardPressed(number); });
        card->show();
        m_cards.push_back(card);
    }
    updateGeometry();
    placeCards();
    showCards(true);
    setCurrent(0);
    focusCard();
}

void CMemoryTable::refresh()
{
    showCards(false);
}

void CMemoryTable::showCards(bool areNew)
{
    for (int card = 0; card < int(m_cards.size()); ++card) {
        const bool isQuestion = m_form.side(card) == CMemoryForm::Side::Question;
        const bool isUp = m_form.isUp(card);
        m_cards[size_t(card)]->showLook(
            {.sign = m_texts.Get(isQuestion ? Text::QuestionCard : Text::AnswerCard),
                .language = m_form.language(card),
                .isQuestion = isQuestion,
                .text = isUp ? m_form.text(card) : QString(),
                .isUp = isUp,
                .isSolved = m_form.isSolved(card),
                .isMistake = m_form.isMistake(card)},
            areNew);
        m_cards[size_t(card)]->setAccessibleName(spokenName(card));
    }
}

QString CMemoryTable::spokenName(int card) const
{
    const QString row = QString::number(card / m_columns + 1);
    const QString column = QString::number(card % m_columns + 1);
    if (!m_form.isUp(card)) {
        return m_texts.Fill(Text::SpokenCard, {row, column, ShownShort(m_form.language(card))});
    }
    return m_texts.Fill(m_form.isSolved(card) ? Text::SpokenSolvedCard : Text::SpokenTurnedCard,
        {row, column, ShownShort(m_form.text(card))});
}

int CMemoryTable::columnsFor(QSize size) const
{
    // The number with which the cards are largest, if each had the best shape.
    const int cards = int(m_cards.size());
    int best = 1;
    double largest = 0;
    for (int columns = 1; columns <= cards; ++columns) {
        const double width = double(size.width()) / columns;
        const double height = double(size.height()) / rowsFor(cards, columns);
        const double worth = std::min(width / BestShape, height);
        if (worth > largest) {
            largest = worth;
            best = columns;
        }
    }
    return best;
}

void CMemoryTable::placeCards()
{
    const int cards = int(m_cards.size());
    if (cards == 0) {
        return;
    }
    m_columns = columnsFor(size());
    const int rows = rowsFor(cards, m_columns);
    for (int card = 0; card < cards; ++card) {
        const int row = card / m_columns;
        const int column = card % m_columns;
        // Each edge by itself, so that no rounding adds up.
        const QPoint topLeft(width() * column / m_columns, height() * row / rows);
        const QPoint end(width() * (column + 1) / m_columns, height() * (row + 1) / rows);
        m_cards[size_t(card)]->setGeometry(QRect(topLeft, end - QPoint(1, 1)));
        m_cards[size_t(card)]->setAccessibleName(spokenName(card));
    }
}

QSize CMemoryTable::sizeFor(QSize card) const
{
    const int cards = std::max(int(m_cards.size()), 1);
    const int columns = std::min(cards, cards > 12 ? 5 : 4);
    return {card.width() * columns, card.height() * rowsFor(cards, columns)};
}

QSize CMemoryTable::sizeHint() const
{
    return m_cards.empty() ? QSize() : sizeFor(m_cards.front()->sizeHint());
}

QSize CMemoryTable::minimumSizeHint() const
{
    return m_cards.empty() ? QSize() : sizeFor(m_cards.front()->minimumSizeHint());
}

void CMemoryTable::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeCards();
}

void CMemoryTable::setCurrent(int card)
{
    m_current = card;
    // One stop of the Tab key is enough for all cards.
    for (int other = 0; other < int(m_cards.size()); ++other) {
        m_cards[size_t(other)]->setFocusPolicy(other == card ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void CMemoryTable::focusCard()
{
    if (m_current < int(m_cards.size())) {
        m_cards[size_t(m_current)]->setFocus();
    }
}

void CMemoryTable::keyPressEvent(QKeyEvent *event)
{
    const int column = m_current % m_columns;
    int next = m_current;
    switch (event->key()) {
    case Qt::Key_Left:
        next -= column > 0 ? 1 : 0;
        break;
    case Qt::Key_Right:
        next += column + 1 < m_columns ? 1 : 0;
        break;
    case Qt::Key_Up:
        next -= m_columns;
        break;
    case Qt::Key_Down:
        next += m_columns;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (next >= 0 && next < int(m_cards.size()) && next != m_current) {
        setCurrent(next);
        focusCard();
    }
}

bool CMemoryTable::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        const auto card = std::ranges::find(m_cards, watched);
        if (card != m_cards.end()) {
            setCurrent(int(card - m_cards.begin()));
        }
    }
    return QWidget::eventFilter(watched, event);
}
