// SPDX-License-Identifier: MIT
#include "platform/ui/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <memory>

namespace {

/// Sees the keys before any control of the window. A release waits for what follows it: a press of the same key
/// at the same time shows that it was none.
class CHeldKeyFilter : public QObject
{
public:
    explicit CHeldKeyFilter(QWidget &window) : QObject(&window), m_widget(window)
    {
        constexpr int Wait = 40; // Milliseconds.
        m_timer.setSingleShot(true);
        m_timer.setInterval(Wait);
        connect(&m_timer, &QTimer::timeout, this, &CHeldKeyFilter::SendRelease);
        window.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == &m_widget) {
            if (event->type() == QEvent::Show && !event->spontaneous()) {
                m_window = m_widget.windowHandle();
                m_window->installEventFilter(this);
            }
            return false;
        }
        switch (event->type()) {
        case QEvent::ShortcutOverride: // Announces a press.
            EndWait(*static_cast<QKeyEvent *>(event));
            return false;
        case QEvent::KeyPress:
            return DropsPress(*static_cast<QKeyEvent *>(event));
        case QEvent::KeyRelease:
            return KeepsRelease(*static_cast<QKeyEvent *>(event));
        default:
            return false;
        }
    }

private:
    bool Repeats(const QKeyEvent &press) const
    {
        return press.isAutoRepeat()
            || (m_releasedAt != 0 && press.timestamp() == m_releasedAt && press.key() == m_releasedKey);
    }
    void EndWait(const QKeyEvent &press)
    {
        if (Repeats(press)) {
            m_release.reset();
        }
        SendRelease();
    }
    bool DropsPress(const QKeyEvent &press)
    {
        EndWait(press);
        return (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) && Repeats(press);
    }
    bool KeepsRelease(const QKeyEvent &release)
    {
        // Only events of the display have a time.
        if (m_sends || release.isAutoRepeat() || release.timestamp() == 0) {
            return false;
        }
        SendRelease();
        m_release.reset(release.clone());
        m_releasedKey = release.key();
        m_releasedAt = release.timestamp();
        m_timer.start();
        return true;
    }
    void SendRelease()
    {
        m_timer.stop();
        const std::unique_ptr<QKeyEvent> release = std::move(m_release);
        if (release != nullptr && m_window != nullptr) {
            m_sends = true;
            QCoreApplication::sendEvent(m_window, release.get());
            m_sends = false;
        }
    }

    QWidget &m_widget;
    QPointer<QWindow> m_window;
    QTimer m_timer;
    std::unique_ptr<QKeyEvent> m_release; // Not sent on yet.
    int m_releasedKey = 0;
    quint64 m_releasedAt = 0;
    bool m_sends = false;
};

}

void NoticeHeldKeys(QWidget &window)
{
    new CHeldKeyFilter(window); // The window owns it.
}
