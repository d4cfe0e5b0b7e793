// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QString;

/// Types text into the window of another program that has the keyboard focus, by pressing keys for it. Can do
/// so under X11 only. Lives on the thread of the windows.
class CKeySender
{
public:
    CKeySender();
    ~CKeySender();

    /// Returns false when it can't type: under another display system, or when no window has the focus. While a
    /// key like Ctrl is held, the text waits until it is released.
    [[nodiscard]] bool Send(const QString &text);
    /// Remembers which window is active, of whatever program.
    void RememberWindow();
    void ActivateRememberedWindow();

private:
    class CConnection;

    /// None where there is no such display.
    CConnection *Connection();

    std::unique_ptr<CConnection> m_connection;
};
