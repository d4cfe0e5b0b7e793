// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/accept_offer.h"

#include <QWidget>

class CElidedLabel;
class CTexts;
class QPushButton;

/// The button "I was right", with a key that works everywhere in its window, and the line below it that says
/// what was accepted.
class CAcceptAnswerBar : public QWidget
{
    Q_OBJECT

public:
    CAcceptAnswerBar(const CTexts &texts, QWidget *window);

    /// Without an offer the button is disabled.
    void showOffer(const AcceptOffer &offer);
    /// The line that says what was accepted; empty while nothing was.
    QString shownLine() const;

Q_SIGNALS:
    void pressed();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    /// The caption as far as there is room for it.
    void showCaption();

    const CTexts &m_texts;
    QString m_caption;
    QPushButton *m_button;
    CElidedLabel *m_line;
};
