// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_descriptor.h"

#include <QIODevice>
#include <QString>

#include <memory>

/// Writes a whole file so that what was there before is lost only when the new content is complete: the content
/// goes to a new file beside it, which takes its name at the end. A symbolic link stays, and its target is
/// replaced. Owner, group, access list, extended attributes and permissions stay as they were.
///
/// Where a new file can't have them, the file has several names, or the folder allows no new file, the old one
/// is overwritten in place by Commit(), and put back as it was when that fails. While that goes on, its old
/// content lies in the folder for backups (see CKeptCopies), and stays there when the program is killed.
class CSafeFile
{
public:
    CSafeFile() = default;
    ~CSafeFile() { Cancel(); }
    CSafeFile(const CSafeFile &) = delete;
    CSafeFile &operator=(const CSafeFile &) = delete;

    /// Returns false when there is no way to write the file. Without a folder for backups nothing is
    /// overwritten: the file is replaced as well as it can be.
    [[nodiscard]] bool Open(const QString &path, const QString &backupFolder = {});
    /// Where the content goes; writes to it are checked again by Commit().
    QIODevice &Device() { return *m_device; }
    /// Puts the file in place, on the disk and not only in its cache. Returns false when anything failed.
    /// Remains of saves that were interrupted are removed on the way: temporary files beside it that are older
    /// than a day, and backups of this file.
    [[nodiscard]] bool Commit();
    /// Gives up; the old file stays.
    void Cancel();

private:
    class CTemporaryFileDevice;

    enum class Way { Replace, Overwrite, None };

    /// How the file can be written. Makes the temporary file for replacing it.
    Way FindWay();
    void RemoveTemporary();
    bool Replace();
    bool Overwrite();
    void RemoveStrays() const;

    QString m_path;
    QString m_backupFolder;
    QByteArray m_folderName;
    QByteArray m_name;
    CFileDescriptor m_folder; // A place alone: who may write in a folder may not always list it.
    CFileDescriptor m_temporary;
    QByteArray m_temporaryName; // Empty while there is none.
    QByteArray m_content; // For overwriting in place.
    std::unique_ptr<QIODevice> m_device;
    bool m_failed = false;
};
