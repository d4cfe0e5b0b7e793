// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

/// Takes some bytes, and no more.
class CSmallDevice : public QIODevice
{
public:
    explicit CSmallDevice(qint64 room) : m_room(room) { }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        const qint64 taken = std::min(size, m_room);
        m_room -= taken;
        return taken > 0 ? taken : -1;
    }

private:
    qint64 m_room;
};
