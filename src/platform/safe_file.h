// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QSaveFile>

#include <memory>

/// Writes a whole file so that what was there before is lost only when the new content is complete: the content
/// goes to a new file beside it, which takes its name at the end. A symbolic link stays, and its target is
/// replaced. Where the folder allows no new file, but the old one may be changed, it is overwritten in place by
/// Commit(), and put back as it was when that fails; while that goes on, a copy of it lies in the folder for
/// temporary files.
class CSafeFile
{
public:
    CSafeFile() = default;
    CSafeFile(const CSafeFile &) = delete;
    CSafeFile &operator=(const CSafeFile &) = delete;

    /// Returns false when there is no way to write the file.
    [[nodiscard]] bool Open(const QString &path);
    /// Where the content goes; writes to it are checked again by Commit().
    QIODevice &Device();
    /// Puts the file in place, on the disk and not only in its cache. Returns false when anything failed.
    [[nodiscard]] bool Commit();
    /// Gives up; the old file stays.
    void Cancel();

private:
    bool Overwrite();

    QSaveFile m_file;
    QByteArray m_content; // For overwriting in place.
    std::unique_ptr<QIODevice> m_buffer;
};
