// SPDX-License-Identifier: MIT
#include "platform/thread.h"
#include "support/test.h"

#include <QSemaphore>

#include <functional>
#include <stdexcept>

namespace {

class CWorker : public CThread
{
public:
    explicit CWorker(std::function<void(const std::atomic<bool> &)> work) : m_work(std::move(work)) { }
    ~CWorker() override { Stop(true); }
    CWorker(const CWorker &) = delete;
    CWorker &operator=(const CWorker &) = delete;

protected:
    void Run() override { m_work(KeepRunning()); }

private:
    std::function<void(const std::atomic<bool> &)> m_work;
};

}

class ThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsByItselfAndStartsAgain()
    {
        int runs = 0; // Without a lock: who waits for the end sees what the thread did.
        CWorker worker([&](const std::atomic<bool> &) {
            if (++runs == 2) {
                throw std::runtime_error("work");
            }
        });
        QVERIFY(!worker.IsRunning() && !worker.IsStarted());
        worker.Stop(true);
        for (int round = 1; round <= 3; ++round) {
            worker.Start();
            QTRY_VERIFY(!worker.IsRunning() && !worker.IsStarted());
            worker.Stop(true);
            QCOMPARE(runs, round);
        }
        worker.Start();
        worker.Start(); // Waits for the one before.
        worker.Stop(true);
        QCOMPARE(runs, 5);
    }

    void isStopped()
    {
        QSemaphore begun;
        QSemaphore mayEnd;
        bool sawStop = false;
        CWorker worker([&](const std::atomic<bool> &keepRunning) {
            begun.release();
            while (keepRunning) {
                std::this_thread::yield();
            }
            sawStop = true;
            mayEnd.acquire();
        });
        worker.Start();
        begun.acquire();
        QVERIFY(worker.IsRunning() && worker.IsStarted());
        worker.Stop(false);
        QVERIFY(!worker.IsRunning() && worker.IsStarted()); // Asked, not waited for.
        mayEnd.release();
        worker.Stop(true);
        QVERIFY(sawStop && !worker.IsStarted());
        mayEnd.release();
        worker.Start(); // And its destructor ends it.
    }
};

QTEST_GUILESS_MAIN(ThreadTest)
#include "thread_test.moc"
