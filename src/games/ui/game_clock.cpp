// SPDX-License-Identifier: MIT
#include "games/ui/game_clock.h"

#include <QApplication>
#include <QWidget>

#include <utility>

CGameClock::CGameClock(Clock clock, std::chrono::milliseconds interval, QObject *parent)
    : QObject(parent), m_clock(std::move(clock))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &CGameClock::bringUpToDate);
}

void CGameClock::run(bool runs)
{
    if (runs && !m_timer.isActive()) {
        m_told = m_clock();
        m_timer.start();
    } else if (!runs) {
        m_timer.stop();
    }
}

void CGameClock::bringUpToDate()
{
    if (m_timer.isActive()) {
        const auto now = m_clock();
        Q_EMIT passed(now - std::exchange(m_told, now));
    }
}

bool isBlocked(const QWidget &window)
{
    const QWidget *const modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != &window;
}
