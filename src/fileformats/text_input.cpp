// SPDX-License-Identifier: MIT
#include "fileformats/text_input.h"

#include "fileformats/text_detection.h"
#include "platform/windows_1252.h"

#include <QIODevice>

#include <algorithm>

namespace {

/// Windows-1252 is decoded by our own table; its decoder is never used.
QStringDecoder MakeDecoder(TextEncoding encoding)
{
    // A mark behind the one at the start is a character.
    constexpr auto Flags = QStringConverter::Flag::ConvertInitialBom;
    switch (encoding) {
    case TextEncoding::Utf16BigEndian:
        return QStringDecoder(QStringDecoder::Utf16BE, Flags);
    case TextEncoding::Utf16LittleEndian:
        return QStringDecoder(QStringDecoder::Utf16LE, Flags);
    default:
        return QStringDecoder(QStringDecoder::Utf8, Flags);
    }
}

}

CTextInput::CTextInput(QIODevice &device, TextEncoding encoding)
    : m_device(device), m_encoding(encoding), m_decoder(MakeDecoder(encoding)), m_bytes(PieceSize, '\0')
{
    m_device.seek(0);
    const auto mark = FindTextMark(m_device.read(3));
    const qint64 start = mark && mark->encoding == encoding ? mark->size : 0;
    m_failed = !m_device.seek(start);
    m_bytesLeft = m_device.size() - start;
}

qsizetype CTextInput::Read(std::vector<char16_t> &units, qsizetype used)
{
    // A piece may hold no complete character.
    while (true) {
        const qint64 wanted = std::min<qint64>(PieceSize, m_bytesLeft);
        const qint64 read = wanted > 0 && !m_failed ? m_device.read(m_bytes.data(), wanted) : 0;
        if (read <= 0) {
            m_failed = m_failed || wanted > 0;
            return 0;
        }
        m_bytesLeft -= read;
        const QByteArrayView bytes = QByteArrayView(m_bytes).first(read);
        const qsizetype room = m_encoding == TextEncoding::Ansi ? read : m_decoder.requiredSpace(read);
        if (used + room > qsizetype(units.size())) {
            units.resize(size_t(std::max(used + room, 2 * used)));
        }
        char16_t *const end = units.data() + used;
        if (m_encoding == TextEncoding::Ansi) {
            std::transform(
                bytes.begin(), bytes.end(), end, [](char byte) { return DecodeWindows1252(uchar(byte)); });
            return read;
        }
        auto *const characters = reinterpret_cast<QChar *>(end);
        const qsizetype count = m_decoder.appendToBuffer(characters, bytes) - characters;
        if (count > 0) {
            return count;
        }
    }
}
