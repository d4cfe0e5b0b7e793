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
        if (event->type() == QEvent::KeyPress) {
            const auto *const key = static_cast<QKeyEvent *>(event);
            if (key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)) {
                return true;
            }
        }
        return QObject::eventFilter(watched, event);
    }
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
