// SPDX-License-Identifier: MIT
#include "fileformats/text_file_reader.h"

#include "platform/windows_1252.h"

#include <QFileInfo>

#include <algorithm>
#include <bit>
#include <cstring>

bool CTextFileReader::Open(const QString &path)
{
    Close();
    m_file.setFileName(path);
    // A pipe or a device may never end, so only regular files are read.
    if (!QFileInfo(path).isFile() || !m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    Open(m_file);
    return true;
}

void CTextFileReader::Open(QIODevice &device)
{
    m_device = &device;
    m_lossy = false;
    m_failed = false;
    Rewind();
}

void CTextFileReader::Close()
{
    m_file.close();
    m_device = nullptr;
}

void CTextFileReader::Rewind()
{
    m_keptBytes = 0;
    m_position = 0;
    m_count = 0;
    m_atEnd = false;
    m_atStart = true;
    Detect();
}

void CTextFileReader::Detect()
{
    m_device->seek(0);
    const QByteArray start = m_device->read(3);
    qint64 markSize = 0;
    m_encoding = TextEncoding::Ansi;
    if (start.startsWith("\xFF\xFE")) {
        m_encoding = TextEncoding::Utf16LittleEndian;
        markSize = 2;
    } else if (start.startsWith("\xFE\xFF")) {
        m_encoding = TextEncoding::Utf16BigEndian;
        markSize = 2;
    } else if (start.startsWith("\xEF\xBB\xBF")) {
        m_encoding = TextEncoding::Utf8;
        markSize = 3;
    }
    m_device->seek(markSize);
}

bool CTextFileReader::Fill()
{
    m_position = 0;
    m_count = 0;
    // A piece may hold no complete character, so it can take several.
    while (m_count == 0) {
        const qint64 read = m_device->read(m_bytes.data() + m_keptBytes, BufferSize - m_keptBytes);
        if (read <= 0) {
            m_atEnd = true;
            m_failed = read < 0;
            return false;
        }
        const auto *const bytes = reinterpret_cast<const uchar *>(m_bytes.data());
        const qsizetype available = m_keptBytes + read;
        m_keptBytes = 0;
        if (m_encoding == TextEncoding::Ansi) {
            std::transform(bytes, bytes + available, m_units.begin(),
                [](uchar byte) { return byte < 0x80 ? char16_t(byte) : DecodeWindows1252(byte); });
            m_count = available;
        } else if (m_encoding == TextEncoding::Utf8) {
            DecodeUtf8(bytes, available);
        } else {
            const qsizetype high = m_encoding == TextEncoding::Utf16BigEndian ? 0 : 1;
            m_count = available / 2;
            for (qsizetype i = 0; i < m_count; ++i) {
                m_units[size_t(i)] = char16_t(bytes[2 * i + high] << 8 | bytes[2 * i + 1 - high]);
            }
            m_keptBytes = available % 2;
            m_bytes[0] = m_bytes[size_t(available - 1)];
        }
    }
    return true;
}

void CTextFileReader::DecodeUtf8(const uchar *bytes, qsizetype count)
{
    qsizetype i = 0;
    while (i < count) {
        const int length = std::countl_one(bytes[i]);
        char16_t unit = QChar::ReplacementCharacter;
        qsizetype used = 1;
        if (length == 0) {
            unit = bytes[i];
        } else if (length == 2 || length == 3) {
            if (i + length > count) {
                break;
            }
            used = length;
            unit = length == 2
                ? char16_t((bytes[i] & 0x1F) << 6 | (bytes[i + 1] & 0x3F))
                : char16_t((bytes[i] & 0x0F) << 12 | (bytes[i + 1] & 0x3F) << 6 | (bytes[i + 2] & 0x3F));
        }
        m_units[size_t(m_count++)] = unit;
        i += used;
    }
    m_keptBytes = count - i;
    std::memmove(m_bytes.data(), bytes + i, size_t(m_keptBytes));
}

bool CTextFileReader::Skip(char16_t unit)
{
    if ((m_position < m_count || Fill()) && m_units[size_t(m_position)] == unit) {
        ++m_position;
        return true;
    }
    return false;
}

bool CTextFileReader::ReadLine(QString &line)
{
    line.clear();
    if (!m_atStart) {
        // The end of the line before is still there: CR LF is skipped as one, LF CR is not.
        Skip(u'\r');
        Skip(u'\n');
    }
    m_atStart = false;
    bool any = false;
    while (m_position < m_count || Fill()) {
        any = true;
        const auto begin = m_units.begin() + m_position;
        const auto end = m_units.begin() + m_count;
        const auto lineEnd =
            std::find_if(begin, end, [](char16_t unit) { return unit == u'\n' || unit == u'\r'; });
        line.append(QStringView(begin, lineEnd));
        m_position = lineEnd - m_units.begin();
        if (lineEnd != end) {
            return true;
        }
    }
    return any;
}

bool CTextFileReader::ReadNarrowLine(QByteArray &line)
{
    line.clear();
    QString wide;
    if (!ReadLine(wide)) {
        return false;
    }
    if (!AppendWindows1252(wide, line)) {
        m_lossy = true;
    }
    return true;
}
