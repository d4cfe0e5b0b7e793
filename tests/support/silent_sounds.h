// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sound_player.h"

#include <QStringList>

/// Notes what was played.
class CSilentSounds : public ISoundPlayer
{
public:
    void Play(const QString &file) override { played.append(file); }

    QStringList played;
};
