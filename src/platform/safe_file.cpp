// SPDX-License-Identifier: MIT
#include "platform/safe_file.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <unistd.h>

namespace {

/// Replaces the bytes of an open file from its start on. The file is cut to size at the very end, so until then
/// the room that the old content takes can't be lost to others.
bool WriteOver(QFile &file, const QByteArray &content)
{
    return file.seek(0) && file.write(content) == content.size() && file.resize(content.size())
        && fsync(file.handle()) == 0;
}

}

bool CSafeFile::Open(const QString &path)
{
    m_file.setFileName(path);
    m_buffer.reset();
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        return false; // A device or a pipe would be replaced by a file of its name.
    }
    if (m_file.open(QIODevice::WriteOnly)) {
        return true;
    }
    const QString folder = QFileInfo(info.canonicalFilePath()).absolutePath(); // Of a link's target, too.
    const bool folderIsClosed = !QFileInfo(folder).isWritable();
    if (!info.isFile() || !info.isWritable() || !folderIsClosed) {
        return false;
    }
    m_buffer = std::make_unique<QBuffer>(&m_content);
    return m_buffer->open(QIODevice::WriteOnly | QIODevice::Truncate);
}

QIODevice &CSafeFile::Device()
{
    return m_buffer ? *m_buffer : m_file;
}

bool CSafeFile::Commit()
{
    if (m_buffer) {
        return Overwrite();
    }
    // The toolkit syncs too, but takes no notice when that fails.
    if (!m_file.flush() || fsync(m_file.handle()) != 0) {
        m_file.cancelWriting();
    }
    return m_file.commit();
}

void CSafeFile::Cancel()
{
    if (m_buffer) {
        m_buffer.reset();
    } else {
        m_file.cancelWriting();
    }
}

bool CSafeFile::Overwrite()
{
    QFile file(m_file.fileName());
    // Without a buffer, whose rest a failed write would leave in the way of the old content.
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return false;
    }
    const QByteArray before = file.readAll();
    if (before.size() != file.size()) {
        return false;
    }
    // Whoever is killed in the middle finds the old content here.
    QTemporaryFile backup(
        QDir(QDir::tempPath()).filePath(QStringLiteral("XXXXXX-") + QFileInfo(file.fileName()).fileName()));
    backup.setAutoRemove(false);
    if (!backup.open() || backup.write(before) != before.size() || !backup.flush()
        || fsync(backup.handle()) != 0) {
        backup.remove();
        return false;
    }
    const bool written = WriteOver(file, m_content);
    if (!written) {
        // The old content found room in this file a moment ago, and finds it again.
        file.unsetError();
    }
    if (written || WriteOver(file, before)) {
        backup.remove();
    }
    return written;
}
