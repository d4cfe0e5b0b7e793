// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>
#include <sys/types.h>
#include <utility>

/// Owns an open file of the system and closes it.
class CFileDescriptor
{
public:
    CFileDescriptor() = default;
    ~CFileDescriptor() { Close(); }
    CFileDescriptor(CFileDescriptor &&other) noexcept : m_number(other.Release()) { }
    CFileDescriptor &operator=(CFileDescriptor &&other) noexcept;
    CFileDescriptor(const CFileDescriptor &) = delete;
    CFileDescriptor &operator=(const CFileDescriptor &) = delete;

    /// Opens a file by its bytes, with the flags of the system's call. What was open is closed.
    bool Open(const QByteArray &path, int flags);
    /// The same for a name in an open folder.
    bool OpenIn(const CFileDescriptor &folder, const QByteArray &name, int flags, mode_t mode = 0);
    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }
    /// Hands the open file to the caller.
    int Release() { return std::exchange(m_number, -1); }
    /// Returns false when the system tells of a write that failed late.
    bool Close();

    /// Writes every byte, or returns false.
    bool Write(QByteArrayView bytes) const;
    /// What stands from the position on; none when it is more than `most` bytes or can't be read.
    std::optional<QByteArray> Read(qint64 most) const;

private:
    int m_number = -1;
};
