// SPDX-License-Identifier: MIT
#include "games/ui/answer_keys.h"

#include "platform/ui/digit_key.h"

#include <QKeyEvent>
#include <QWidget>

CAnswerKeys::CAnswerKeys(int count, QWidget *window) : QObject(window), m_count(count)
{
    window->installEventFilter(this);
    for (QWidget *const part : window->findChildren<QWidget *>()) {
        part->installEventFilter(this);
    }
}

std::optional<int> CAnswerKeys::numberOf(const QKeyEvent &key) const
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    // Some layouts give digits with Shift only.
    const bool isShiftedDigit =
        modifiers == Qt::ShiftModifier && key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9;
    if (modifiers != Qt::NoModifier && !isShiftedDigit) {
        return std::nullopt;
    }
    const std::optional<int> digit = DigitOfKey(key);
    return digit && *digit >= 1 && *digit <= m_count ? std::optional(*digit - 1) : std::nullopt;
}

bool CAnswerKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // Accepted, it keeps the key from shortcuts.
        if (numberOf(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (const auto number = numberOf(*static_cast<QKeyEvent *>(event))) {
            if (!static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
                m_pressed.insert(*number);
            }
            return true;
        }
        break;
    case QEvent::KeyRelease:
        if (release(*static_cast<QKeyEvent *>(event))) {
            return true;
        }
        break;
    case QEvent::WindowDeactivate:
        forget();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool CAnswerKeys::release(const QKeyEvent &key)
{
    // Modifiers pressed meanwhile don't matter.
    const std::optional<int> digit = DigitOfKey(key);
    const auto pressed = digit ? m_pressed.find(*digit - 1) : m_pressed.end();
    if (pressed == m_pressed.end()) {
        return false;
    }
    if (!key.isAutoRepeat()) {
        const int number = *pressed;
        forget();
        Q_EMIT chosen(number);
    }
    return true;
}
