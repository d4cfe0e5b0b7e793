// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/answer_check.h"

#include <QPushButton>

class CTexts;
class CWrappedText;
class QLabel;

/// An answer to choose: its digit, and a term that takes as many lines as it needs. It can be marked as right
/// or wrong, and keeps the room for that.
class CAnswerButton : public QPushButton
{
    Q_OBJECT

public:
    /// `number` counts from 0. `texts` must live as long as the button.
    CAnswerButton(const CTexts &texts, int number, const QFont &font, QWidget *parent);

    /// Takes a mark away. `spoken` is how it is read out.
    void showAnswer(const QString &answer, const QString &spoken);
    void mark(AnswerVerdict verdict);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QLabel *addLabel(const QString &text);

    const CTexts &m_texts;
    CWrappedText *m_answer;
    QLabel *m_icon;
    QLabel *m_verdict;
};
