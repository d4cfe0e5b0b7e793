// SPDX-License-Identifier: MIT
#include "platform/regular_file.h"

#include "platform/file_descriptor.h"
#include "platform/file_name.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

bool Open(CFileDescriptor &descriptor, const QString &path)
{
    struct stat status = {};
    return descriptor.Open(EncodeFileName(path), O_RDONLY | O_NONBLOCK | O_NOCTTY)
        && ::fstat(descriptor.Number(), &status) == 0 && S_ISREG(status.st_mode);
}

}

bool OpenRegularFile(QFile &file, const QString &path)
{
    CFileDescriptor descriptor;
    return Open(descriptor, path)
        && file.open(
            descriptor.Release(), QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
}

std::optional<QByteArray> ReadRegularFile(const QString &path, qint64 most)
{
    CFileDescriptor descriptor;
    return Open(descriptor, path) ? descriptor.Read(most) : std::nullopt;
}
