// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/last_answer.h"

#include <QWidget>

class CTexts;
class QLabel;
class QTextEdit;

/// Shows quietly how the last answer was: whether it was right, the entry, and what was wrong. Keeps its room
/// while there is nothing to show, so that nothing moves; what finds no room scrolls.
class CFeedbackPanel : public QWidget
{
    Q_OBJECT

public:
    CFeedbackPanel(const CTexts &texts, QWidget *parent);

    void showAnswer(const std::optional<LastAnswer> &answer);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    QSize sizeOf(int lines) const;
    void fill();

    std::optional<LastAnswer> m_answer;
    QLabel *m_icon;
    QTextEdit *m_text;
};
