// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QTimer>

class QWidget;

/// Tells a game how much time passed, again and again while it runs. Its window owns it.
class CGameClock : public QObject
{
    Q_OBJECT

public:
    CGameClock(Clock clock, std::chrono::milliseconds interval, QObject *parent);

    /// What passes while it stands isn't told.
    void run(bool runs);
    /// Tells now what passed since it told the last time, while it runs.
    void bringUpToDate();

Q_SIGNALS:
    void passed(std::chrono::milliseconds time);

private:
    Clock m_clock;
    QTimer m_timer;
    std::chrono::milliseconds m_told{0};
};

/// Whether another window stands above this one and keeps it from being used.
bool isBlocked(const QWidget &window);
