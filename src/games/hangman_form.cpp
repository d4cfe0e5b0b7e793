// SPDX-License-Identifier: MIT
#include "games/hangman_form.h"

#include "games/text_numbers.h"
#include "platform/letters.h"
#include "platform/plain_text.h"
#include "resources/texts.h"

#include <algorithm>
#include <unordered_set>

namespace {

QString character(char32_t codePoint)
{
    return QString::fromUcs4(&codePoint, 1);
}

}

void CHangmanForm::startWord()
{
    const QuizQuestion question = currentQuestion();
    m_word = question.entry.GetCleanTerm(question.answerColumn());
    m_characters = m_word.toStdU32String();
    m_compared = settings().ignoreCase ? ToLowerCase(m_word).toStdU32String() : m_characters;
    m_hidden.clear();
    for (const char32_t codePoint : m_characters) {
        m_hidden.push_back(QChar::isLetter(codePoint));
    }
    if (!isAskedAgain()) {
        m_tried.clear();
    }
}

QString CHangmanForm::maskedWord() const
{
    std::u32string masked = m_characters;
    for (size_t i = 0; i < masked.size(); ++i) {
        masked[i] = m_hidden[i] ? U'-' : masked[i];
    }
    return QString::fromStdU32String(masked);
}

QString CHangmanForm::spelledWord() const
{
    constexpr size_t Longest = 100; // Nobody listens for longer.
    QStringList spelled;
    for (size_t i = 0; i < std::min(m_characters.size(), Longest); ++i) {
        if (m_hidden[i]) {
            spelled += texts().Get(Text::SpokenHiddenLetter);
        } else {
            spelled += m_characters[i] == U' ' ? texts().Get(Text::SpokenSpace) : character(m_characters[i]);
        }
    }
    return spelled.join(QStringLiteral(", "));
}

QString CHangmanForm::spoken() const
{
    constexpr qsizetype Longest = 200; // That the word is heard too.
    return ShownShort(question(), Longest) + u'\n' + spelledWord();
}

bool CHangmanForm::isMiss(char32_t letter) const
{
    return m_compared.find(letter) == std::u32string::npos;
}

QString CHangmanForm::triedLetters() const
{
    if (m_tried.empty()) {
        return {};
    }
    QStringList letters;
    for (const char32_t letter : m_tried) {
        letters += isMiss(letter) ? texts().Fill(Text::MissedLetter, {character(letter)}) : character(letter);
    }
    return texts().Fill(Text::TriedLetters, {letters.join(QStringLiteral(", "))});
}

std::optional<LastAnswer> CHangmanForm::shownAnswer() const
{
    std::optional<LastAnswer> last = CWordByWordForm::shownAnswer();
    if (last && !last->difference.isEmpty()) {
        last->difference = m_misses.toHtmlEscaped();
    }
    return last;
}

std::optional<CHangmanForm::Outcome> CHangmanForm::guess(const QString &letters)
{
    const QString compared = settings().ignoreCase ? ToLowerCase(letters) : letters;
    std::unordered_set<char32_t> guessed;
    QStringList misses;
    for (const char32_t letter : KeepLetters(compared, false).toStdU32String()) {
        if (!guessed.insert(letter).second) {
            continue;
        }
        if (m_tried.find(letter) == std::u32string::npos) {
            m_tried += letter;
        }
        if (isMiss(letter)) {
            misses += texts().Fill(Text::MissedLetter, {character(letter)});
        }
    }
    for (size_t i = 0; i < m_compared.size(); ++i) {
        m_hidden[i] = m_hidden[i] && !guessed.contains(m_compared[i]);
    }
    if (!misses.isEmpty()) {
        m_misses = misses.join(QStringLiteral(", "));
        return recordAnswer({});
    }
    if (std::ranges::find(m_hidden, true) != m_hidden.end()) {
        return std::nullopt;
    }
    recordAnswer(m_word);
    return Outcome{AnswerVerdict::Right, std::nullopt};
}
