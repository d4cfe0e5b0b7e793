// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sound_thread.h"

/// The desktop's way to play short sounds. Without a sound server or a sound card nothing is heard or said, and
/// it is looked for again with each sound. Takes uncompressed WAV files and Ogg Vorbis.
SoundOutput OpenDesktopSounds();
