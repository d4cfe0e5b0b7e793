// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/answer_check.h"

#include <QPushButton>

#include <optional>

class CTexts;

/// An answer to choose: its digit, and a term that takes as many lines as it needs. It can be marked as right
/// or wrong, and keeps the room for that.
class CAnswerButton : public QPushButton
{
    Q_OBJECT

public:
    /// `number` counts from 0. `texts` must live as long as the button.
    CAnswerButton(const CTexts &texts, int number, QWidget *parent);

    /// Takes a mark away. `spoken` is how it is read out.
    void showAnswer(const QString &answer, const QString &spoken);
    void mark(AnswerVerdict verdict);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont boldFont() const;
    QString verdictText(AnswerVerdict verdict) const;
    int gap() const { return fontMetrics().averageCharWidth(); }
    /// Beside the term: for the digit, and for the mark.
    int digitWidth() const;
    int markWidth() const;
    int lineHeight() const { return fontMetrics().lineSpacing(); }

    const CTexts &m_texts;
    QString m_digit;
    QString m_answer;
    std::optional<AnswerVerdict> m_verdict;
};
