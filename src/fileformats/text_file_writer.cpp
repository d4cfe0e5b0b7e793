// SPDX-License-Identifier: MIT
#include "fileformats/text_file_writer.h"

bool CTextFileWriter::Open(const QString &path, TextEncoding encoding, const QString &backupFolder)
{
    if (!m_file.Open(path, backupFolder)) {
        return false;
    }
    Open(m_file.Device(), encoding);
    m_ownsFile = true;
    return true;
}

void CTextFileWriter::Open(QIODevice &device, TextEncoding encoding)
{
    m_device = &device;
    m_ownsFile = false;
    m_encoder = CTextEncoder(encoding);
    m_failed = false;
}

void CTextFileWriter::Write(QStringView text)
{
    m_encoder.Append(text);
    if (m_encoder.Bytes().size() >= PieceSize) {
        Flush();
    }
}

void CTextFileWriter::Flush()
{
    const QByteArrayView bytes = m_encoder.Bytes();
    if (m_device->write(bytes.data(), bytes.size()) != bytes.size()) {
        m_failed = true;
    }
    m_encoder.Clear();
}

bool CTextFileWriter::Close()
{
    Flush();
    if (!m_ownsFile) {
        return !m_failed;
    }
    if (m_failed) {
        m_file.Cancel();
        return false;
    }
    return m_file.Commit();
}
