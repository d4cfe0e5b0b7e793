// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

/// Whether the display system lets a program place its windows.
inline bool CanPlaceWindows()
{
    return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}
