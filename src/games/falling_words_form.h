// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/word_by_word_form.h"

#include <chrono>

/// Falling words: each word is to be answered before it reaches the floor. Wrong tries before don't count. Is
/// told how much time passed and how far it is to fall.
class CFallingWordsForm : public CWordByWordForm
{
public:
    /// How long the text about an answer stands.
    static constexpr std::chrono::milliseconds LineTime{3000};
    /// How often a word moves where movement is not wanted.
    static constexpr std::chrono::milliseconds StepTime{1000};

    explicit CFallingWordsForm(const QuizStart &start);

    /// The term that is asked, as it is stored; a mark for an empty one, and nothing at the end.
    QString term() const;
    /// The term while it may be seen: not during a pause.
    QString fallingText() const { return m_isPaused ? QString() : term(); }
    /// From 0 at the left to 1 at the right.
    double place() const { return m_place; }
    /// How far the word has fallen: from 0 at the top to 1 on the floor.
    double fallen() const { return m_fallen; }
    /// From the top to the floor, in logical pixels; it may change while a word falls.
    void setFallDistance(double pixels) { m_distance = pixels; }
    /// Without movement, the word takes a step each second.
    void setStepwise(bool stepwise) { m_isStepwise = stepwise; }

    /// In logical pixels per second.
    int speed() const { return start().kindSettings.fallingWord.speed; }
    void setSpeed(int speed) { start().kindSettings.fallingWord.speed = speed; }

    bool isPaused() const { return m_isPaused; }
    void setPaused(bool paused) { m_isPaused = paused; }
    /// Counts only while there is no pause. Returns true when the word is on the floor; land() comes next.
    bool timePassed(std::chrono::milliseconds time);

    /// Tidies and judges what was typed, and records it unless it is wrong. Nothing for a wrong try, which is
    /// kept for land(), and during a pause.
    std::optional<Outcome> answer(const QString &typed);
    /// Records the last try, or that there was none.
    Outcome land();
    /// Lets the next word fall, or the same one again.
    Next advance(AnswerVerdict verdict) override;

    /// The text about an answer, on one line, for as long as it stands.
    QString line() const { return m_line; }
    /// After the last word: whether the line is still to be read.
    bool waitsForReader() const { return m_isOver && !m_line.isEmpty(); }

private:
    void dropWord();
    void showLine(const std::optional<FeedbackText> &feedback);

    double m_place = 0;
    double m_fallen = 0;
    double m_distance = 0;
    std::chrono::milliseconds m_sinceStep{0};
    bool m_isStepwise = false;
    bool m_isPaused = false;
    bool m_isOver = false;
    QString m_lastTry;
    QString m_line;
    std::chrono::milliseconds m_lineLeft{0};
};
