// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <thread>

/// Base of the worker threads. A worker reports by queued signals, works on its own copy of what it needs, and
/// is stopped cooperatively: Run() looks at IsRunning() now and then. All operations but IsRunning() belong to
/// the thread that owns the object.
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
    /// True while a thread is there, from Start() until it was waited for.
    bool IsStarted() const { return m_thread.joinable(); }
    /// Asks the thread to stop and, with `wait`, waits for its end without a limit.
    void Stop(bool wait);

protected:
    /// The work, on the thread. An exception that escapes is swallowed.
    virtual void Run() = 0;

private:
    std::thread m_thread;
    std::atomic<bool> m_keepRunning = false;
};
