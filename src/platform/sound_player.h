// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// Plays sounds. Whatever decides is handed one of these; the one in tests notes what was played.
class ISoundPlayer
{
public:
    ISoundPlayer() = default;
    virtual ~ISoundPlayer() = default;
    ISoundPlayer(const ISoundPlayer &) = delete;
    ISoundPlayer &operator=(const ISoundPlayer &) = delete;

    /// Begins to play a file and doesn't wait for its end; a sound that still plays is cut off. Where the file
    /// or a sound device is missing, nothing is heard.
    virtual void Play(const QString &file) = 0;
};
