// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/word_by_word_form.h"

#include <vector>

/// The alternatives game: four answers to choose from, one of them that of the word on screen.
class CAlternativesForm : public CWordByWordForm
{
public:
    static constexpr int MostAnswers = 4;

    explicit CAlternativesForm(const QuizStart &start) : CWordByWordForm(start) { }

    /// Draws other answers for the word on screen, from all entries of the list; each time that it is shown.
    void drawAnswers();
    /// Fewer than MostAnswers only in a list that is shorter.
    int answerCount() const { return int(m_entries.size()); }
    /// An answer from the top, 0 to answerCount() - 1: a whole term.
    QString answer(int number) const;
    /// Whether it would be judged right. Where other entries have the same answer, more than one is.
    bool isRight(int number) const;
    /// The question and the answers, as they are read out.
    QString spoken() const;
    /// An answer as it is read out.
    QString spokenAnswer(int number) const;

    /// Judges and records an answer.
    Outcome choose(int number) { return recordAnswer(answer(number)); }

private:
    std::vector<int> m_entries; // Of the answers from the top, as indices into the list.
};
