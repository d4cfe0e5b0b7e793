// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

/// Shows a page whole where there is room, and scrolls it up and down where there isn't.
class CScrollingPage : public QScrollArea
{
    Q_OBJECT

public:
    /// Owns the page.
    explicit CScrollingPage(QWidget *page, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

/// Gives a window the size of its contents when it is shown first, as far as its screen has room for it: the
/// toolkit leaves a third of the screen free.
void FitToScreen(QWidget &window);
