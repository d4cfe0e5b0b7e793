// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <mutex>
#include <utility>
#include <vector>

/// What a worker has to tell another thread, in order. It is passed by value under a lock, so that both threads
/// never hold the same thing. The worker tells by a queued signal that there is something, not more often than
/// anybody could follow.
template<class Message>
class CThreadQueue
{
public:
    /// Returns whether the receiver is to be told now: not if it was told and has not come yet, nor right after
    /// the last time, unless it is the last message.
    [[nodiscard]] bool Post(Message message, bool isLast = false)
    {
        const std::lock_guard lock(m_mutex);
        m_messages.push_back(std::move(message));
        const auto now = std::chrono::steady_clock::now();
        if (!isLast && (m_isTold || now - m_lastTold < Pause)) {
            return false;
        }
        m_isTold = true;
        m_lastTold = now;
        return true;
    }
    std::vector<Message> TakeAll()
    {
        const std::lock_guard lock(m_mutex);
        m_isTold = false;
        return std::exchange(m_messages, {});
    }

private:
    static constexpr std::chrono::milliseconds Pause{50};

    std::mutex m_mutex;
    std::vector<Message> m_messages;
    bool m_isTold = false;
    std::chrono::steady_clock::time_point m_lastTold;
};
