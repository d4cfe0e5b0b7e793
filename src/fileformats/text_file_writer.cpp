// SPDX-License-Identifier: MIT
#include "fileformats/text_file_writer.h"

#include "platform/windows_1252.h"

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
    m_encoding = encoding;
    m_buffer.clear();
    m_buffer.reserve(2 * BufferSize);
    m_failed = false;
    m_lossy = false;
    if (encoding != TextEncoding::Ansi) {
        WriteChar(QChar::ByteOrderMark);
    }
}

void CTextFileWriter::Write(QStringView text)
{
    const auto append = [this](int byte) { m_buffer.append(char(byte)); };
    switch (m_encoding) {
    case TextEncoding::Ansi:
        if (!AppendWindows1252(text, m_buffer)) {
            m_lossy = true;
        }
        break;
    case TextEncoding::Utf16LittleEndian:
        for (const QChar unit : text) {
            append(unit.unicode() & 0xFF);
            append(unit.unicode() >> 8);
        }
        break;
    case TextEncoding::Utf16BigEndian:
        for (const QChar unit : text) {
            append(unit.unicode() >> 8);
            append(unit.unicode() & 0xFF);
        }
        break;
    case TextEncoding::Utf8:
        // Unit by unit, as the reader takes them apart: surrogates are three bytes each.
        for (const QChar character : text) {
            const char16_t unit = character.unicode();
            if (unit < 0x80) {
                append(unit);
            } else if (unit < 0x800) {
                append(0xC0 | unit >> 6);
                append(0x80 | (unit & 0x3F));
            } else {
                append(0xE0 | unit >> 12);
                append(0x80 | (unit >> 6 & 0x3F));
                append(0x80 | (unit & 0x3F));
            }
        }
        break;
    }
    if (m_buffer.size() >= BufferSize) {
        Flush();
    }
}

void CTextFileWriter::Flush()
{
    if (m_device->write(m_buffer) != m_buffer.size()) {
        m_failed = true;
    }
    m_buffer.clear();
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
