// SPDX-License-Identifier: MIT
#include "platform/file_stamp.h"

#include "platform/file_name.h"

#include <sys/stat.h>

namespace {

qint64 Nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

}

FileStamp FileStamp::Of(const QString &path)
{
    struct stat status = {};
    if (path.contains(QChar::Null) || ::stat(EncodeFileName(path).constData(), &status) != 0) {
        return {};
    }
    return {.size = status.st_size,
        .inode = status.st_ino,
        .modified = Nanoseconds(status.st_mtim),
        .changed = Nanoseconds(status.st_ctim)};
}
