// SPDX-License-Identifier: MIT
#include "shell/ui/menu_bar_focus.h"

#include <QApplication>
#include <QEvent>

CMenuBarFocus::CMenuBarFocus(QMenuBar &bar) : QObject(&bar), m_bar(bar)
{
    bar.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, const QWidget *now) {
        if (now == &m_bar) {
            m_before = before;
        }
    });
}

bool CMenuBarFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Shortcut && m_bar.hasFocus() && m_before != nullptr) {
        m_before->setFocus(Qt::MenuBarFocusReason); // Which is what the menu bar notes now.
    }
    return QObject::eventFilter(watched, event);
}
