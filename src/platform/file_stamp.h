// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What tells whether another program changed a file: the size and times can be put back, the change of the
/// file's own record can't.
struct FileStamp
{
    qint64 size = -1; ///< In bytes; -1 while there is no file.
    quint64 inode = 0;
    qint64 modified = 0; ///< Times in nanoseconds since 1970.
    qint64 changed = 0;
    bool operator==(const FileStamp &) const = default;

    static FileStamp Of(const QString &path);
};
