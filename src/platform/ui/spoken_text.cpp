// SPDX-License-Identifier: MIT
#include "platform/ui/spoken_text.h"

#include "platform/plain_text.h"

#include <QAccessibleWidget>
#include <QEvent>

#include <utility>

namespace {

/// Screen readers read out a notification that shows itself.
QAccessibleInterface *MakeNotification(const QString & /*className*/, QObject *object)
{
    auto *const spoken = qobject_cast<CSpokenText *>(object);
    return spoken != nullptr ? new QAccessibleWidget(spoken, QAccessible::Notification) : nullptr;
}

}

CSpokenText::CSpokenText(QWidget *window) : QWidget(window)
{
    QAccessible::installFactory(MakeNotification);
    setObjectName(QStringLiteral("spokenText"));
    setFixedSize(0, 0);
    window->installEventFilter(this);
}

void CSpokenText::Say(const QString &text)
{
    setAccessibleName(ShownShort(text));
    show(); // It may have been made after its window was shown.
    m_waits = !window()->isActiveWindow();
    if (!m_waits) {
        Tell();
    }
}

bool CSpokenText::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && std::exchange(m_waits, false)) {
        QMetaObject::invokeMethod(this, &CSpokenText::TellBehindFocus, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

void CSpokenText::TellBehindFocus()
{
    // The focus has come back now; which cell of a list has it is told from the event loop, and spoken first.
    QMetaObject::invokeMethod(this, &CSpokenText::Tell, Qt::QueuedConnection);
}

void CSpokenText::Tell()
{
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

void SayInWindowOf(const QWidget &widget, const QString &text)
{
    auto *spoken = widget.window()->findChild<CSpokenText *>();
    spoken = spoken != nullptr ? spoken : new CSpokenText(widget.window());
    spoken->Say(text);
}
