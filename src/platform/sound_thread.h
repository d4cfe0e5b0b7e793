// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/sound_player.h"

#include <functional>
#include <memory>

/// Begins to play a file in place of what still plays.
using SoundOutput = std::function<void(const QString &file)>;

/// Plays sounds on a thread of its own, which nobody waits for: a sound system may take long to answer, or
/// never do. The thread begins with the first sound; one that comes too late to mean anything is left out.
class CSoundThread : public ISoundPlayer
{
public:
    /// `open` is called on the thread, before the first sound. It, the output and the clock, which both threads
    /// read, may outlive the player.
    explicit CSoundThread(std::function<SoundOutput()> open, Clock clock = SteadyClock);
    /// Leaves a thread behind that the sound system keeps waiting.
    ~CSoundThread() override;

    void Play(const QString &file) override;

private:
    struct Shared;

    std::function<SoundOutput()> m_open;
    Clock m_clock;
    std::shared_ptr<Shared> m_shared; // With the thread, once it runs.
};
