// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sound_player.h"

#include <memory>

class QSoundEffect;

/// The sounds of the program: uncompressed WAV files. Looks for a sound device at each sound, so that one that
/// was plugged in later is used, and so that a program's start never waits for one.
class CSoundEffectPlayer : public ISoundPlayer
{
public:
    CSoundEffectPlayer();
    ~CSoundEffectPlayer() override;

    void Play(const QString &file) override;

private:
    std::unique_ptr<QSoundEffect> m_effect;
};
