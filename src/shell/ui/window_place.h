// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>

class ISettingsStore;
class QMainWindow;

/// Restores and saves where the main window stands and how its bars are arranged. Where the display system lets
/// no program place its windows, size and maximised state alone.
class CWindowPlace
{
public:
    /// Neither is owned. `root` is the path of sections of the settings.
    CWindowPlace(QMainWindow &window, ISettingsStore &store, const QString &root);

    /// Call it before the window is shown. Returns false when nothing was stored.
    bool Restore();
    /// Call it while the window is there.
    void Save();
    /// Shows the window as it was stored: maximised or not.
    void Show() const;
    /// Call it when the window was moved or resized.
    void Moved();

private:
    QMainWindow &m_window;
    ISettingsStore &m_store;
    QString m_root;
    bool m_maximised = false;
    QPoint m_frame; // From the frame's corner to the window's, while it is in its normal state.
};
