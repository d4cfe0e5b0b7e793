// SPDX-License-Identifier: MIT
#include "platform/sound_thread.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace {

/// A sound says something about what has just happened.
constexpr std::chrono::seconds Latest{1};
/// How long the end of the program waits for a thread that has nothing to wait for.
constexpr std::chrono::milliseconds Patience{200};

struct Sound
{
    QString file;
    std::chrono::milliseconds wanted;
};

}

struct CSoundThread::Shared
{
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Sound> next;
    bool isEnding = false;
    bool hasEnded = false;

    /// The next sound; none at the end.
    std::optional<Sound> Take()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return isEnding || next; });
        return isEnding ? std::nullopt : std::exchange(next, std::nullopt);
    }
    void Run(const std::function<SoundOutput()> &open, const Clock &clock)
    {
        {
            const SoundOutput output = open();
            while (const std::optional<Sound> sound = Take()) {
                if (clock() - sound->wanted <= Latest) {
                    output(sound->file);
                }
            }
        }
        const std::lock_guard lock(mutex);
        hasEnded = true;
        changed.notify_all();
    }
};

CSoundThread::CSoundThread(std::function<SoundOutput()> open, Clock clock)
    : m_open(std::move(open)), m_clock(std::move(clock))
{
}

CSoundThread::~CSoundThread()
{
    if (m_shared != nullptr) {
        std::unique_lock lock(m_shared->mutex);
        m_shared->isEnding = true;
        m_shared->changed.notify_all();
        m_shared->changed.wait_for(lock, Patience, [this] { return m_shared->hasEnded; });
    }
}

void CSoundThread::Play(const QString &file)
{
    const bool isFirst = m_shared == nullptr;
    if (isFirst) {
        m_shared = std::make_shared<Shared>();
    }
    {
        const std::lock_guard lock(m_shared->mutex);
        m_shared->next = {file, m_clock()};
        m_shared->changed.notify_all();
    }
    if (isFirst) {
        std::thread([shared = m_shared, open = m_open, clock = m_clock] { shared->Run(open, clock); }).detach();
    }
}
