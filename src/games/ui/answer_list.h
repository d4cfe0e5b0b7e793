// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ui/scrolling_page.h"

class QVBoxLayout;

/// Answers below one another. They get the height that their terms need where there is room for it, else they
/// scroll.
class CAnswerList : public CScrollingPage
{
    Q_OBJECT

public:
    explicit CAnswerList(QWidget *parent);

    void addAnswer(QWidget *answer);
    /// The beginning of one that finds no room.
    void bringIntoSight(QWidget &answer);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSizeHint() const override;

private:
    QVBoxLayout *m_layout;
};
