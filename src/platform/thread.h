// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <thread>

/// Base of the worker threads. A worker reports by queued signals, works on its own copy of what it needs, and
/// is stopped cooperatively: Run() looks at IsRunning() now and then, or hands KeepRunning() to what it calls.
/// All operations but these two belong to the thread that owns the object.
class CThread
{
public:
    CThread() = default;
    CThread(const CThread &) = delete;
    CThread &operator=(const CThread &) = delete;
    /// A derived class stops its thread in its own destructor, before its members go; this is the last resort.
    virtual ~CThread();

    /// Starts Run() on a new thread, after waiting for one that is about to end.
    void Start();
    /// False once the thread was asked to stop, and after its end.
    bool IsRunning() const { return m_keepRunning; }
    /// The same as a flag, for readers and writers that look at one between two records.
    const std::atomic<bool> &KeepRunning() const { return m_keepRunning; }
    /// True from Start() to the end of Run().
    bool IsStarted() const { return m_isStarted; }
    /// Asks the thread to stop and, with `wait`, waits for its end without a limit.
    void Stop(bool wait);

protected:
    /// The work, on the thread. An exception that escapes is swallowed.
    virtual void Run() = 0;

private:
    std::thread m_thread;
    std::atomic<bool> m_keepRunning = false;
    std::atomic<bool> m_isStarted = false;
};
