// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/word_by_word_form.h"

#include <string>
#include <vector>

/// The hangman game: the letters of the answer are hidden until they are guessed. One letter that does not
/// occur in it makes the answer wrong. Letters are single code points; everything else is shown from the start.
class CHangmanForm : public CWordByWordForm
{
public:
    explicit CHangmanForm(const QuizStart &start) : CWordByWordForm(start) { }

    /// Hides the letters of the word on screen; each time that it is shown. The letters tried are still known
    /// when it is asked again at once.
    void startWord();
    /// The answer without its comments: what is guessed.
    const QString &word() const { return m_word; }
    /// It with a hyphen for each hidden letter.
    QString maskedWord() const;
    /// It letter by letter, as it is read out.
    QString spelledWord() const;
    /// The question and the word, as they are read out.
    QString spoken() const;
    /// The letters tried so far, with those marked that are not in the word; empty before the first.
    QString triedLetters() const;
    /// Of a miss, the letters that were it: an empty answer is recorded for them.
    std::optional<LastAnswer> shownAnswer() const override;

    /// Reveals letters. Returns nothing while the word is to be guessed on; after a miss, or when all is
    /// revealed, the answer has been recorded.
    std::optional<Outcome> guess(const QString &letters);

private:
    bool isMiss(char32_t letter) const;

    QString m_word;
    // Code point by code point:
    std::u32string m_characters;
    std::u32string m_compared; // As far as case counts.
    std::vector<bool> m_hidden;
    std::u32string m_tried; // Each letter once.
    QString m_misses; // Of the word that was missed last.
};
