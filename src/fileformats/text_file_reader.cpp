// SPDX-License-Identifier: MIT
#include "fileformats/text_file_reader.h"

#include "platform/regular_file.h"
#include "platform/windows_1252.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <bit>

bool CTextFileReader::Open(const QString &path)
{
    Close();
    if (!OpenRegularFile(m_file, path)) {
        return false;
    }
    Open(m_file);
    return true;
}

void CTextFileReader::Open(QIODevice &device)
{
    Open(device, false);
}

void CTextFileReader::OpenUtf8(QIODevice &device)
{
    Open(device, true);
}

void CTextFileReader::Open(QIODevice &device, bool isValidUtf8)
{
    m_device = &device;
    m_isValidUtf8 = isValidUtf8;
    m_size = device.size();
    m_lossy = false;
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
    m_failed = false;
    m_lineTooLong = false;
    m_atStart = true;
    Detect();
}

void CTextFileReader::Detect()
{
    m_device->seek(0);
    if (m_isValidUtf8) {
        m_encoding = TextEncoding::Utf8;
        m_bytesLeft = m_size;
        return;
    }
    const QByteArray start = m_device->read(std::min<qint64>(3, m_size));
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
    m_bytesLeft = m_size - markSize;
}

bool CTextFileReader::Fill()
{
    m_bytes.resize(size_t(PieceSize));
    m_units.resize(std::max(m_units.size(), size_t(m_count - m_position + PieceSize)));
    if (m_position > 0) {
        std::copy(m_units.begin() + m_position, m_units.begin() + m_count, m_units.begin());
        m_count -= m_position;
        m_position = 0;
    }
    // A piece may hold no complete character, so it can take several.
    for (const qsizetype before = m_count; m_count == before;) {
        const qint64 wanted = std::min<qint64>(PieceSize - m_keptBytes, m_bytesLeft);
        const qint64 read =
            wanted == 0 ? 0 : m_device->read(reinterpret_cast<char *>(m_bytes.data()) + m_keptBytes, wanted);
        if (read <= 0) {
            m_atEnd = true;
            m_failed = wanted > 0; // Also a file that became shorter: half of it is not taken for the whole.
            return false;
        }
        m_bytesLeft -= read;
        Decode(m_bytes.data(), m_keptBytes + read);
    }
    return true;
}

void CTextFileReader::Decode(const uchar *bytes, qsizetype count)
{
    char16_t *const units = m_units.data() + m_count;
    switch (m_encoding) {
    case TextEncoding::Ansi:
        std::transform(bytes, bytes + count, units,
            [](uchar byte) { return byte < 0x80 ? char16_t(byte) : DecodeWindows1252(byte); });
        m_count += count;
        return;
    case TextEncoding::Utf8:
        DecodeUtf8(bytes, count);
        return;
    case TextEncoding::Utf16BigEndian:
        qFromBigEndian<char16_t>(bytes, count / 2, units);
        break;
    case TextEncoding::Utf16LittleEndian:
        qFromLittleEndian<char16_t>(bytes, count / 2, units);
        break;
    }
    m_count += count / 2;
    m_keptBytes = count % 2;
    m_bytes[0] = bytes[count - 1];
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
        } else if (length == 4 && m_isValidUtf8) {
            if (i + length > count) {
                break;
            }
            used = length;
            const char32_t character = (bytes[i] & 0x07U) << 18 | (bytes[i + 1] & 0x3FU) << 12
                | (bytes[i + 2] & 0x3FU) << 6 | (bytes[i + 3] & 0x3FU);
            m_units[size_t(m_count++)] = QChar::highSurrogate(character);
            unit = QChar::lowSurrogate(character);
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
    std::copy(bytes + i, bytes + count, m_bytes.begin());
}

void CTextFileReader::Skip(char16_t unit)
{
    if ((m_position < m_count || Fill()) && m_units[size_t(m_position)] == unit) {
        ++m_position;
    }
}

bool CTextFileReader::ReadLine(QStringView &line)
{
    line = {};
    if (m_lineTooLong) {
        return false;
    }
    if (!m_atStart) {
        // The end of the line before is still there: CR LF is skipped as one, LF CR is not.
        Skip(u'\r');
        Skip(u'\n');
    }
    m_atStart = false;
    for (qsizetype length = 0;;) {
        const char16_t *const begin = m_units.data() + m_position;
        const char16_t *const end = m_units.data() + m_count;
        const char16_t *const lineEnd =
            std::find_if(begin + length, end, [](char16_t unit) { return unit == u'\n' || unit == u'\r'; });
        length = lineEnd - begin;
        if (length > LongestLine) {
            m_lineTooLong = true;
            return false;
        }
        if (lineEnd != end || !Fill()) {
            line = QStringView(m_units.data() + m_position, length);
            m_position += length;
            return length > 0 || m_position < m_count;
        }
    }
}

bool CTextFileReader::ReadLine(QString &line)
{
    QStringView view;
    const bool read = ReadLine(view);
    line = view.toString();
    return read;
}

bool CTextFileReader::ReadNarrowLine(QByteArray &line)
{
    line.clear();
    QStringView wide;
    if (!ReadLine(wide)) {
        return false;
    }
    if (!AppendWindows1252(wide, line)) {
        m_lossy = true;
    }
    return true;
}
