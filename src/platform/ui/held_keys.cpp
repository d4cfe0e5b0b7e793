// SPDX-License-Identifier: MIT
#include "platform/ui/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace {

/// A release waits for what follows it: a press of the same key at the same time shows that it was none.
class CHeldKeyFilter : public QObject
{
public:
    explicit CHeldKeyFilter(QObject *parent) : QObject(parent)
    {
        constexpr int Wait = 40; // Milliseconds.
        m_timer.setSingleShot(true);
        m_timer.setInterval(Wait);
        connect(&m_timer, &QTimer::timeout, this, &CHeldKeyFilter::SendRelease);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
            const auto *const key = static_cast<QKeyEvent *>(event);
            if (m_release != nullptr && key->key() == m_release->key()
                && key->timestamp() == m_release->timestamp()) {
                m_release.reset();
            }
            SendRelease();
        } else if (event->type() == QEvent::KeyRelease && !m_sends) {
            const auto *const key = static_cast<QKeyEvent *>(event);
            // Only events of the display have a time.
            if (!key->isAutoRepeat() && key->timestamp() != 0) {
                SendRelease();
                m_release.reset(key->clone());
                m_target = watched;
                m_timer.start();
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void SendRelease()
    {
        m_timer.stop();
        const std::unique_ptr<QKeyEvent> release = std::move(m_release);
        if (release != nullptr && m_target != nullptr) {
            m_sends = true;
            QCoreApplication::sendEvent(m_target, release.get());
            m_sends = false;
        }
    }

    QTimer m_timer;
    std::unique_ptr<QKeyEvent> m_release; // Not sent on yet.
    QPointer<QObject> m_target;
    bool m_sends = false;
};

}

void JoinRepeatedKeys(QWidget &window)
{
    auto *const filter = new CHeldKeyFilter(&window);
    window.installEventFilter(filter);
    for (QWidget *const part : window.findChildren<QWidget *>()) {
        part->installEventFilter(filter);
    }
}
