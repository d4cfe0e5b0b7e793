// SPDX-License-Identifier: MIT
#include "platform/ui/held_enter.h"

#include <QKeyEvent>
#include <QWidget>

namespace {

class CHeldEnterFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto *const key = static_cast<QKeyEvent *>(event);
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                if (event->type() == QEvent::KeyPress) {
                    return key->isAutoRepeat() || (m_released != 0 && key->timestamp() == m_released);
                }
                m_released = key->timestamp();
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    // A key that repeats is released and pressed at the same time. While the computer is busy the toolkit may
    // not notice that it repeats.
    quint64 m_released = 0;
};

}

void IgnoreHeldEnter(QWidget &window)
{
    auto *const filter = new CHeldEnterFilter(&window);
    window.installEventFilter(filter);
    for (QWidget *const part : window.findChildren<QWidget *>()) {
        part->installEventFilter(filter);
    }
}
