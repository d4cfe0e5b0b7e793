// SPDX-License-Identifier: MIT
#include "platform/ui/scrolling_page.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>

namespace {

class CFirstShow : public QObject
{
public:
    explicit CFirstShow(QWidget &window) : QObject(&window), m_window(window)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &m_window && event->type() == QEvent::Show && !event->spontaneous()) {
            constexpr double Share = 0.9; // The rest is for the window's frame and panels.
            m_window.resize(m_window.sizeHint().boundedTo(m_window.screen()->availableSize() * Share));
            m_window.removeEventFilter(this); // From now on it has the size that the user gives it.
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget &m_window;
};

}

CScrollingPage::CScrollingPage(QWidget *page, QWidget *parent) : QScrollArea(parent)
{
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus); // Its controls have it.
    // The page keeps the background of what it stands in.
    viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    // The toolkit does it for Tab alone, not for a control that is chosen by its letter.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget * /*before*/, QWidget *now) {
        if (widget() != nullptr && widget()->isAncestorOf(now)
            && QGuiApplication::mouseButtons() == Qt::NoButton) { // A click goes to what is under the pointer.
            ensureWidgetVisible(now);
        }
    });
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
    new CFirstShow(window);
}
