// SPDX-License-Identifier: MIT
#include "platform/thread.h"

#include <QtDebug>

CThread::~CThread()
{
    if (IsStarted()) {
        qDebug("CThread: Warning: Stopping thread in CThread destructor");
    }
    Stop(true);
}

void CThread::Start()
{
    Stop(true);
    m_keepRunning = true;
    m_isStarted = true;
    m_thread = std::thread([this] {
        try {
            Run();
        } catch (...) {
            qDebug("CThread: Warning. Run() thrown an exception. Thread will terminate.");
        }
        m_keepRunning = false;
        m_isStarted = false;
    });
}

void CThread::Stop(bool wait)
{
    m_keepRunning = false;
    if (wait && m_thread.joinable()) {
        m_thread.join();
    }
}
