// SPDX-License-Identifier: MIT
#include "platform/ui/scrolling_page.h"

#include <QScreen>
#include <QScrollBar>

CScrollingPage::CScrollingPage(QWidget *page, QWidget *parent) : QScrollArea(parent)
{
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus); // Its controls have it, and bring themselves into sight.
    // The page keeps the background of what it stands in.
    viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
}

QSize CScrollingPage::sizeHint() const
{
    return widget()->sizeHint().expandedTo(minimumSizeHint());
}

QSize CScrollingPage::minimumSizeHint() const
{
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
        fontMetrics().lineSpacing() * 5};
}

void FitToScreen(QWidget &window)
{
    constexpr double Share = 0.9; // The rest is for the window's frame and panels.
    window.resize(window.sizeHint().boundedTo(window.screen()->availableSize() * Share));
}
