// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_form.h"

#include <chrono>

/// The sizes of the boards that a round of so many words is cut into: nearly equal, none too large to remember.
std::vector<int> memoryBoards(int words);

/// Memory: the words of a board lie as cards with their faces down, one for the question and one for the answer
/// of each; two at a time are turned. Is told how much time passed.
class CMemoryForm : public CQuizForm
{
public:
    static constexpr int MostPairs = 10;
    /// How long two cards that don't belong together stay turned, and a board that is done stays in view.
    static constexpr std::chrono::milliseconds TurnedTime{1500};
    /// How long all cards show in learning mode.
    static constexpr std::chrono::milliseconds LearningTime{3000};

    explicit CMemoryForm(const QuizStart &start);

    enum class Side { Question, Answer };

    // The cards of the board, in the order in which they lie.
    int cardCount() const { return int(m_cards.size()); }
    Side side(int card) const { return m_cards[size_t(card)].side; }
    /// The name of its language.
    QString language(int card) const;
    /// The term as it is stored.
    QString text(int card) const;
    /// Whether its text can be seen.
    bool isUp(int card) const;
    bool isSolved(int card) const { return m_cards[size_t(card)].partner.has_value(); }
    /// Whether it is one of two that were a mistake, and still turned.
    bool isMistake(int card) const;

    enum class Event {
        Nothing,
        Changed, ///< Cards have turned.
        Pair, ///< So they have, and a right answer was recorded.
        NoPair, ///< So they have, and nothing was recorded.
        Mistake, ///< So they have, and a wrong answer was recorded.
        NewBoard, ///< Other cards lie there.
        Over
    };
    /// The user points at a card.
    Event turn(int card);
    /// Whether timePassed() has something to count.
    bool waits() const { return m_state != State::Open && m_state != State::Over; }
    Event timePassed(std::chrono::milliseconds time);
    /// How often two cards were turned in this quiz.
    int moves() const { return m_moves; }

    /// Of the card turned last, else of the first one that isn't solved.
    int currentEntry() const override;
    /// Cards that don't belong together any more lie with their faces down again.
    void entriesChanged() override;
    /// How many pairs of the round are found.
    std::optional<QuizProgress> wordProgress() const override;

private:
    enum class State {
        Learning, ///< All cards show.
        Open, ///< The user is to turn a card; one may be turned.
        Closing, ///< Two cards that are no pair are still turned.
        Done, ///< All pairs of the board are found.
        Over
    };
    struct Card
    {
        int roundPosition = 0;
        Side side = Side::Question;
        bool wasSeen = false; // Turned by the user.
        std::optional<int> partner = {}; // The card that it was found to belong to.
    };

    bool isTurned(int card) const { return card == m_first || card == m_second; }
    bool isPair(int card, int other) const;
    bool isPartnerKnown(int card) const;
    int solvedCount() const;
    Event turnSecond(int card);
    void turnBack();
    void dealRound();
    void deal();
    Event nextBoard();
    void wait(State state, std::chrono::milliseconds time);

    std::vector<int> m_boards; // Their sizes in pairs.
    size_t m_board = 0;
    int m_boardStart = 0; // The round position of its first word.
    std::vector<Card> m_cards;
    State m_state = State::Open;
    std::chrono::milliseconds m_timeLeft{0};
    std::optional<int> m_first;
    std::optional<int> m_second;
    std::optional<int> m_lastTurned;
    bool m_isMistake = false;
    int m_moves = 0;
};
