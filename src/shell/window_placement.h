// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <optional>

class ISettingsStore;

/// Where a main window stands: its place by its frame, its size without it, in pixels of the desktop.
struct WindowPlacement
{
    QRect rectangle;
    bool maximised = false;
};

/// The desktop at the moment.
struct DesktopGeometry
{
    /// All screens together.
    QRect screens;
    /// What panels leave of the first screen.
    QRect workArea;
};

/// The placement that SaveWindowPlacement() stored, with its corner moved in so that at least the size of an
/// icon lies inside the right and the bottom edge, and no larger than all screens together. None when a value
/// is missing or no size is left.
std::optional<WindowPlacement> LoadWindowPlacement(
    const ISettingsStore &store, const QString &root, const DesktopGeometry &desktop);
/// Stores the rectangle relative to the work area, in the section "Winpos" below `root`.
void SaveWindowPlacement(ISettingsStore &store, const QString &root, const WindowPlacement &placement,
    const DesktopGeometry &desktop);
