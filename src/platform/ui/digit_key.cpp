// SPDX-License-Identifier: MIT
#include "platform/ui/digit_key.h"

#include <QGuiApplication>
#include <QKeyEvent>

std::optional<int> DigitOfKey(const QKeyEvent &event)
{
    // The codes of the row of digits; elsewhere the codes are others.
    constexpr quint32 CodeOf1 = 10;
    constexpr quint32 CodeOf0 = 19;
    const QString platform = QGuiApplication::platformName();
    const quint32 code = event.nativeScanCode();
    if ((platform == QStringLiteral("xcb") || platform.startsWith(QStringLiteral("wayland"))) && code >= CodeOf1
        && code <= CodeOf0) {
        return int(code - CodeOf1 + 1) % 10;
    }
    if (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9) {
        return event.key() - Qt::Key_0;
    }
    return {};
}
