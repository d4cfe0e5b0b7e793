// SPDX-License-Identifier: MIT
#include "games/ui/hangman_game.h"

#include "games/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/elided_label.h"
#include "platform/ui/label.h"
#include "quiz/ui/shown_text.h"
#include "resources/texts.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QuizParts Parts = QuizPart::Answer | QuizPart::Change | QuizPart::Result | QuizPart::WordLine
    | QuizPart::RightLine | QuizPart::LastAnswer;

}

CHangmanGame::CHangmanGame(const QuizWindowServices &services, std::unique_ptr<CHangmanForm> form)
    : CWordByWordDialog(services, *form, Parts), m_form(std::move(form)),
      m_word(new CShownText("word", texts().Get(Text::HangmanWord), this)), m_guess(new QLineEdit(this)),
      m_tried(new CElidedLabel(this))
{
    const QString caption = texts().Get(Text::GuessLetters);
    QLabel *const label = MakeWrappedLabel(caption, this);
    label->setBuddy(m_guess);
    constexpr int Longest = 1000; // A guess for every letter.
    m_guess->setMaxLength(Longest);
    m_guess->setObjectName(QStringLiteral("guess"));
    m_guess->setAccessibleName(CaptionReadOut(caption));
    m_guess->setFont(largeFont());
    m_tried->setObjectName(QStringLiteral("tried"));
    fields()->addWidget(m_word);
    fields()->addWidget(label);
    fields()->addWidget(m_guess);
    fields()->addWidget(m_tried);
    connect(button(QuizPart::Answer), &QPushButton::clicked, this, &CHangmanGame::guess);
}

void CHangmanGame::showCurrentWord()
{
    CWordByWordDialog::showCurrentWord();
    m_form->startWord();
    m_guess->clear();
    showWord();
}

void CHangmanGame::showWord()
{
    QFont font = largeFont();
    if (!HoldsOtherDirections(m_form->word())) { // Their letters are joined.
        constexpr qreal Spacing = 150; // Percent: that hyphens can be counted.
        font.setLetterSpacing(QFont::PercentageSpacing, Spacing);
    }
    m_word->setFont(font);
    m_word->showText(m_form->maskedWord(), m_form->word());
    m_word->setAccessibleDescription(m_form->spelledWord());
    m_tried->ShowText(m_form->triedLetters());
}

void CHangmanGame::updateStatistics()
{
    CWordByWordDialog::updateStatistics();
    m_guess->setAccessibleDescription(m_form->wordProgress()->text);
}

void CHangmanGame::focusInput()
{
    m_guess->setFocus();
}

bool CHangmanGame::isAnswerEmpty() const
{
    return m_guess->text().trimmed().isEmpty();
}

void CHangmanGame::guess()
{
    const auto outcome = m_form->guess(m_guess->text());
    showWord();
    if (outcome) {
        answered(*outcome);
    } else {
        m_guess->clear();
        focusInput();
        speak(m_form->spelledWord());
    }
}
