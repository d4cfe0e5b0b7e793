// SPDX-License-Identifier: MIT
#include "platform/file_descriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

CFileDescriptor &CFileDescriptor::operator=(CFileDescriptor &&other) noexcept
{
    if (this != &other) {
        Close();
        m_number = other.Release();
    }
    return *this;
}

bool CFileDescriptor::Open(const QByteArray &path, int flags)
{
    Close();
    if (path.contains('\0')) {
        errno = EINVAL; // It would name another file.
        return false;
    }
    m_number = ::open(path.constData(), flags | O_CLOEXEC);
    return IsOpen();
}

bool CFileDescriptor::OpenIn(const CFileDescriptor &folder, const QByteArray &name, int flags, mode_t mode)
{
    Close();
    m_number = ::openat(folder.Number(), name.constData(), flags | O_CLOEXEC, mode);
    return IsOpen();
}

bool CFileDescriptor::Close()
{
    return !IsOpen() || ::close(Release()) == 0;
}

bool CFileDescriptor::Write(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_number, bytes.data(), size_t(bytes.size()));
        if (written > 0) {
            bytes = bytes.sliced(written);
        } else if (written == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

std::optional<QByteArray> CFileDescriptor::Read(qint64 most) const
{
    constexpr qsizetype Piece = 65536;
    struct stat status = {};
    QByteArray bytes;
    if (::fstat(m_number, &status) == 0 && status.st_size <= most) {
        bytes.reserve(status.st_size);
    }
    for (;;) {
        const qsizetype size = bytes.size();
        bytes.resize(size + Piece);
        const ssize_t count = ::read(m_number, bytes.data() + size, size_t(Piece));
        if (count < 0 && errno != EINTR) {
            return std::nullopt;
        }
        bytes.resize(size + std::max<ssize_t>(count, 0));
        if (count == 0) {
            return bytes;
        }
        if (bytes.size() > most) {
            return std::nullopt;
        }
    }
}
