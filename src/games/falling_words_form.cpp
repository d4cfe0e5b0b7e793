// SPDX-License-Identifier: MIT
#include "games/falling_words_form.h"

#include "games/text_numbers.h"
#include "model/term_syntax.h"
#include "platform/random.h"
#include "resources/texts.h"

#include <algorithm>

using std::chrono::milliseconds;

namespace {

/// A text of several paragraphs on one line.
QString onOneLine(const QString &text)
{
    QString line;
    for (const QString &part : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QString paragraph = part.trimmed();
        if (paragraph.isEmpty()) {
            continue;
        }
        if (!line.isEmpty()) {
            line += line.endsWith(u':') ? QStringLiteral(" ") : QStringLiteral(" · ");
        }
        line += paragraph;
    }
    return line;
}

}

CFallingWordsForm::CFallingWordsForm(const QuizStart &start) : CWordByWordForm(start)
{
    dropWord();
}

void CFallingWordsForm::dropWord()
{
    constexpr int Places = 1000;
    m_place = double(DrawBelow(start().random, Places + 1)) / Places;
    m_fallen = 0;
    m_sinceStep = {};
    m_lastTry.clear();
}

QString CFallingWordsForm::term() const
{
    if (m_isOver || session()->roundSize() == 0) {
        return {};
    }
    const QuizQuestion question = currentQuestion();
    const QString term = question.entry.GetText(question.questionColumn);
    return term.isEmpty() ? texts().Get(Text::EmptyFallingWord) : term;
}

bool CFallingWordsForm::timePassed(milliseconds time)
{
    if (m_isPaused || m_isOver) {
        return false;
    }
    m_lineLeft -= time;
    if (m_lineLeft <= milliseconds(0)) {
        m_line.clear();
    }
    milliseconds moving = time;
    if (m_isStepwise) {
        m_sinceStep += time;
        moving = m_sinceStep / StepTime * StepTime;
        m_sinceStep -= moving;
    }
    if (m_distance > 0) {
        m_fallen = std::min(m_fallen + speed() * double(moving.count()) / 1000 / m_distance, 1.0);
    }
    constexpr double Rounding = 1e-9; // Of many small ways.
    return m_fallen >= 1 - Rounding;
}

void CFallingWordsForm::showLine(const std::optional<FeedbackText> &feedback)
{
    if (feedback) {
        m_line = onOneLine(feedback->text);
        m_lineLeft = LineTime;
    }
}

std::optional<CFallingWordsForm::Outcome> CFallingWordsForm::answer(const QString &typed)
{
    const QString answer = NormalizeTerm(typed);
    if (m_isPaused || m_isOver || answer.isEmpty()) {
        return std::nullopt;
    }
    if (session()->judge(session()->positionOfRound(roundPosition()), answer) == AnswerVerdict::Wrong) {
        m_lastTry = answer;
        return std::nullopt;
    }
    const Outcome outcome = recordAnswer(answer);
    showLine(outcome.feedback);
    return outcome;
}

CFallingWordsForm::Outcome CFallingWordsForm::land()
{
    const Outcome outcome = recordAnswer(m_lastTry);
    showLine(outcome.feedback);
    return outcome;
}

CFallingWordsForm::Next CFallingWordsForm::advance(AnswerVerdict verdict)
{
    const Next next = CWordByWordForm::advance(verdict);
    m_isOver = next == Next::Over;
    dropWord();
    return next;
}
