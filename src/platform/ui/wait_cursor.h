// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows the wait cursor for as long as it lives.
class CWaitCursor
{
public:
    CWaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~CWaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    CWaitCursor(const CWaitCursor &) = delete;
    CWaitCursor &operator=(const CWaitCursor &) = delete;
};

/// Shows the usual cursor in place of the wait cursor for as long as it lives: during a question.
class CUsualCursor
{
public:
    CUsualCursor() : m_waits(QGuiApplication::overrideCursor() != nullptr)
    {
        if (m_waits) {
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
        }
    }
    ~CUsualCursor()
    {
        if (m_waits) {
            QGuiApplication::restoreOverrideCursor();
        }
    }
    CUsualCursor(const CUsualCursor &) = delete;
    CUsualCursor &operator=(const CUsualCursor &) = delete;

private:
    bool m_waits;
};
