// SPDX-License-Identifier: MIT
#include "fileformats/text_encoder.h"

#include "platform/windows_1252.h"

#include <QtEndian>

namespace {

/// The bytes that a code unit takes at most.
qsizetype MostBytesPerUnit(TextEncoding encoding)
{
    return encoding == TextEncoding::Ansi ? 1 : encoding == TextEncoding::Utf8 ? 3 : 2;
}

/// Unit by unit, as the reader takes them apart: surrogates are three bytes each.
char *EncodeUtf8(QStringView text, char *bytes)
{
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        if (unit < 0x80) {
            *bytes++ = char(unit);
        } else if (unit < 0x800) {
            *bytes++ = char(0xC0 | unit >> 6);
            *bytes++ = char(0x80 | (unit & 0x3F));
        } else {
            *bytes++ = char(0xE0 | unit >> 12);
            *bytes++ = char(0x80 | (unit >> 6 & 0x3F));
            *bytes++ = char(0x80 | (unit & 0x3F));
        }
    }
    return bytes;
}

}

CTextEncoder::CTextEncoder(TextEncoding encoding) : m_encoding(encoding)
{
    if (encoding != TextEncoding::Ansi) {
        Append(u"\uFEFF");
    }
}

void CTextEncoder::Reserve(qsizetype units)
{
    m_bytes.resize(m_size + MostBytesPerUnit(m_encoding) * units);
}

void CTextEncoder::Append(QStringView text)
{
    if (text.isEmpty()) {
        return;
    }
    const qsizetype needed = m_size + MostBytesPerUnit(m_encoding) * text.size();
    if (needed > m_bytes.size()) {
        m_bytes.resize(std::max(needed, 2 * m_bytes.size()));
    }
    char *const bytes = m_bytes.data() + m_size;
    switch (m_encoding) {
    case TextEncoding::Ansi:
        m_size += EncodeWindows1252(text, bytes, m_lossy);
        break;
    case TextEncoding::Utf16LittleEndian:
        qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes);
        m_size += 2 * text.size();
        break;
    case TextEncoding::Utf16BigEndian:
        qToBigEndian<char16_t>(text.utf16(), text.size(), bytes);
        m_size += 2 * text.size();
        break;
    case TextEncoding::Utf8:
        m_size = EncodeUtf8(text, bytes) - m_bytes.constData();
        break;
    }
}
