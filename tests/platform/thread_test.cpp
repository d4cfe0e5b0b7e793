// SPDX-License-Identifier: MIT
#include "platform/sound_thread.h"
#include "platform/thread.h"
#include "support/test.h"

#include <QSemaphore>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <semaphore>
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

/// A sound system that lets wait until a test lets it go on.
struct SlowSounds
{
    std::binary_semaphore opens{0};
    std::counting_semaphore<> plays{0};
    std::counting_semaphore<> begun{0};
    QStringList played;

    SoundOutput Open()
    {
        opens.acquire();
        return [this](const QString &file) {
            played.append(file);
            begun.release();
            plays.acquire();
        };
    }
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

    void nobodyWaits()
    {
        const auto sounds = std::make_shared<SlowSounds>();
        const auto ended = std::make_shared<std::binary_semaphore>(0);
        {
            CSoundThread player([sounds, ended] {
                const SoundOutput output = sounds->Open();
                ended->release();
                return output;
            });
            player.Play(u"a"_s);
            player.Play(u"b"_s);
        }
        sounds->opens.release();
        ended->acquire();
        QVERIFY(sounds->played.isEmpty()); // The program was about to end.
    }

    void theLatestCounts()
    {
        SlowSounds sounds;
        sounds.opens.release();
        std::atomic<std::chrono::milliseconds> now{};
        CSoundThread player([&sounds] { return sounds.Open(); }, [&now] { return now.load(); });
        player.Play(u"a"_s);
        sounds.begun.acquire();
        player.Play(u"b"_s);
        player.Play(u"c"_s);
        sounds.plays.release();
        sounds.begun.acquire();
        player.Play(u"too late"_s);
        now = std::chrono::seconds(2);
        sounds.plays.release();
        player.Play(u"d"_s);
        sounds.plays.release();
        sounds.begun.acquire();
        QCOMPARE(sounds.played, (QStringList{u"a"_s, u"c"_s, u"d"_s}));
    }
};

QTEST_GUILESS_MAIN(ThreadTest)
#include "thread_test.moc"
