// SPDX-License-Identifier: MIT
#include "platform/safe_file.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace {

/// Replaces the bytes of an open file from its start on. The file is cut to size at the very end, so until then
/// the room that the old content takes can't be lost to others.
bool WriteOver(QFile &file, const QByteArray &content)
{
    return file.seek(0) && file.write(content) == content.size() && file.flush() && file.resize(content.size())
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
    const bool folderIsClosed = !QFileInfo(info.absolutePath()).isWritable();
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
    return m_buffer ? Overwrite() : m_file.commit();
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
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    const QByteArray before = file.readAll();
    if (before.size() != file.size()) {
        return false;
    }
    if (WriteOver(file, m_content)) {
        return true;
    }
    // The old content found room in this file a moment ago, and finds it again.
    file.unsetError();
    WriteOver(file, before);
    return false;
}
