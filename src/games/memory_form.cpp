// SPDX-License-Identifier: MIT
#include "games/memory_form.h"

#include "document/win32_doc.h"
#include "games/text_numbers.h"
#include "platform/random.h"
#include "resources/texts.h"

#include <algorithm>

using std::chrono::milliseconds;

std::vector<int> memoryBoards(int words)
{
    const int count = (words + CMemoryForm::MostPairs - 1) / CMemoryForm::MostPairs;
    std::vector<int> boards;
    boards.reserve(size_t(count));
    for (int board = 0; board < count; ++board) {
        boards.push_back(words / count + (board < words % count ? 1 : 0));
    }
    return boards;
}

CMemoryForm::CMemoryForm(const QuizStart &start) : CQuizForm(start)
{
    dealRound();
}

void CMemoryForm::dealRound()
{
    m_boards = memoryBoards(session()->roundSize());
    m_board = 0;
    m_boardStart = 0;
    deal();
}

void CMemoryForm::deal()
{
    const int pairs = m_board < m_boards.size() ? m_boards[m_board] : 0;
    m_cards.clear();
    for (int word = 0; word < pairs; ++word) {
        for (const Side side : {Side::Question, Side::Answer}) {
            m_cards.push_back({.roundPosition = m_boardStart + word, .side = side});
        }
    }
    ShuffleEvenly(m_cards, start().random);
    m_lastTurned.reset();
    turnBack();
    if (settings().learning) {
        wait(State::Learning, LearningTime);
    }
}

void CMemoryForm::turnBack()
{
    m_first.reset();
    m_second.reset();
    m_isMistake = false;
    m_state = State::Open;
}

void CMemoryForm::wait(State state, milliseconds time)
{
    m_state = state;
    m_timeLeft = time;
}

CMemoryForm::Event CMemoryForm::nextBoard()
{
    m_boardStart += m_boards[m_board];
    ++m_board;
    if (m_board < m_boards.size()) {
        deal();
    } else if (session()->startRound()) {
        dealRound();
    } else {
        m_state = State::Over;
        return Event::Over;
    }
    return Event::NewBoard;
}

QString CMemoryForm::language(int card) const
{
    const int answers = session()->answerColumn();
    return session()->document().List().GetLanguage(side(card) == Side::Answer ? answers : 1 - answers);
}

QString CMemoryForm::text(int card) const
{
    const QuizQuestion question = session()->questionOfRound(m_cards[size_t(card)].roundPosition);
    return question.entry.GetText(
        side(card) == Side::Answer ? question.answerColumn() : question.questionColumn);
}

bool CMemoryForm::isUp(int card) const
{
    return isSolved(card) || isTurned(card) || m_state == State::Learning;
}

bool CMemoryForm::isMistake(int card) const
{
    return m_isMistake && isTurned(card);
}

bool CMemoryForm::isPair(int card, int other) const
{
    if (side(card) == side(other)) {
        return false;
    }
    const int position = m_cards[size_t(card)].roundPosition;
    const int otherPosition = m_cards[size_t(other)].roundPosition;
    const auto answer = [this](int roundPosition) {
        const QuizQuestion question = session()->questionOfRound(roundPosition);
        return question.entry.GetText(question.answerColumn());
    };
    return position == otherPosition || answer(position) == answer(otherPosition);
}

bool CMemoryForm::isPartnerKnown(int card) const
{
    for (int other = 0; other < cardCount(); ++other) {
        if (m_cards[size_t(other)].wasSeen && !isSolved(other) && isPair(card, other)) {
            return true;
        }
    }
    return false;
}

int CMemoryForm::solvedCount() const
{
    int count = 0;
    for (int card = 0; card < cardCount(); ++card) {
        count += isSolved(card) ? 1 : 0;
    }
    return count;
}

void CMemoryForm::entriesChanged()
{
    CQuizForm::entriesChanged();
    for (int card = 0; card < cardCount(); ++card) {
        if (const auto partner = m_cards[size_t(card)].partner; partner && !isPair(card, *partner)) {
            m_cards[size_t(card)].partner.reset();
            m_cards[size_t(*partner)].partner.reset();
        }
    }
    if (m_state == State::Done && solvedCount() < cardCount()) {
        m_state = State::Open;
    }
}

CMemoryForm::Event CMemoryForm::turn(int card)
{
    if (m_state == State::Done) {
        return nextBoard();
    }
    if (m_state == State::Learning || m_state == State::Over || card < 0 || card >= cardCount()) {
        return Event::Nothing;
    }
    const bool wasTurned = isTurned(card);
    const bool closes = m_state == State::Closing;
    if (closes) {
        turnBack();
    }
    if (wasTurned || isSolved(card)) {
        return closes ? Event::Changed : Event::Nothing;
    }
    m_lastTurned = card;
    if (m_first) {
        return turnSecond(card);
    }
    m_first = card;
    m_cards[size_t(card)].wasSeen = true;
    return Event::Changed;
}

CMemoryForm::Event CMemoryForm::turnSecond(int card)
{
    const int first = *m_first;
    const bool isKnown = isPartnerKnown(first);
    m_second = card;
    m_cards[size_t(card)].wasSeen = true;
    ++m_moves;
    const bool firstAsks = side(first) == Side::Question;
    const int asked = m_cards[size_t(firstAsks ? first : card)].roundPosition;
    const QString answer = text(firstAsks ? card : first);
    if (isPair(first, card)) {
        session()->recordAnswer(asked, answer);
        m_cards[size_t(first)].partner = card;
        m_cards[size_t(card)].partner = first;
        turnBack();
        if (solvedCount() == cardCount()) {
            wait(State::Done, TurnedTime);
        }
        return Event::Pair;
    }
    wait(State::Closing, TurnedTime);
    // An answer that another word has too, as one of several, is none that is wrong.
    m_isMistake = side(first) != side(card) && isKnown
        && session()->judge(session()->positionOfRound(asked), answer) == AnswerVerdict::Wrong;
    if (!m_isMistake) {
        return Event::NoPair;
    }
    session()->recordAnswer(asked, answer);
    return Event::Mistake;
}

CMemoryForm::Event CMemoryForm::timePassed(milliseconds time)
{
    if (!waits()) {
        return Event::Nothing;
    }
    m_timeLeft -= time;
    if (m_timeLeft > milliseconds(0)) {
        return Event::Nothing;
    }
    if (m_state == State::Done) {
        return nextBoard();
    }
    turnBack();
    return Event::Changed;
}

int CMemoryForm::currentEntry() const
{
    const auto unsolved = std::ranges::find_if(m_cards, [](const Card &card) { return !card.partner; });
    const Card card = m_lastTurned  ? m_cards[size_t(*m_lastTurned)]
        : unsolved != m_cards.end() ? *unsolved
                                    : Card();
    return session()->entryOfRound(card.roundPosition);
}

std::optional<QuizProgress> CMemoryForm::wordProgress() const
{
    const int found = m_boardStart + solvedCount() / 2;
    const int pairs = session()->roundSize();
    return QuizProgress{
        texts().Fill(Text::PairsFound, {QString::number(found), QString::number(pairs)}), found, pairs};
}
