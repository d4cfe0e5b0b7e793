// SPDX-License-Identifier: MIT
#include "fileformats/text_output.h"

#include "platform/windows_1252.h"

#include <QIODevice>

namespace {

/// Windows-1252 is encoded by our own table; its encoder is never used.
QStringEncoder MakeEncoder(TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::Utf16BigEndian:
        return QStringEncoder(QStringEncoder::Utf16BE);
    case TextEncoding::Utf16LittleEndian:
        return QStringEncoder(QStringEncoder::Utf16LE);
    default:
        return QStringEncoder(QStringEncoder::Utf8);
    }
}

}

CTextOutput::CTextOutput(QIODevice &device, TextEncoding encoding, bool writesMark)
    : m_device(device), m_encoding(encoding), m_encoder(MakeEncoder(encoding))
{
    m_text.reserve(2 * PieceSize);
    if (writesMark && encoding != TextEncoding::Ansi) {
        m_text += QChar(u'\uFEFF');
    }
}

void CTextOutput::Write(QStringView text)
{
    m_text += text;
    if (m_text.size() >= PieceSize) {
        Flush();
    }
}

void CTextOutput::Flush()
{
    m_bytes.resize(0);
    if (m_encoding == TextEncoding::Ansi) {
        AppendWindows1252(m_text, m_bytes);
    } else {
        m_bytes.resize(m_encoder.requiredSpace(m_text.size()));
        m_bytes.truncate(m_encoder.appendToBuffer(m_bytes.data(), m_text) - m_bytes.constData());
    }
    m_text.resize(0);
    m_failed = m_failed || m_device.write(m_bytes) != m_bytes.size();
}

bool CTextOutput::Finish()
{
    Flush();
    return !m_failed;
}

bool CanBeWritten(QStringView text, TextEncoding encoding)
{
    if (encoding != TextEncoding::Ansi) {
        return text.isValidUtf16();
    }
    QByteArray bytes;
    return AppendWindows1252(text, bytes);
}
