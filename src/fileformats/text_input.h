// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"

#include <QByteArray>
#include <QStringDecoder>

#include <vector>

class QIODevice;

/// Decodes a text piece by piece, no more of it than the device held at the beginning.
class CTextInput
{
public:
    /// The device, of random access, must outlive this. A mark of the encoding at its start is skipped.
    CTextInput(QIODevice &device, TextEncoding encoding);

    /// Puts the next piece behind the first `used` units, and makes room where there is too little. Returns how
    /// many units came; 0 at the end, or when the device failed.
    qsizetype Read(std::vector<char16_t> &units, qsizetype used);
    /// True when the end was not the end of the text but an error of its device.
    bool Failed() const { return m_failed; }
    /// True once bytes were no characters of the encoding; U+FFFD stands for them.
    bool HasDamage() const { return m_decoder.hasError(); }

private:
    static constexpr qsizetype PieceSize = 65536;

    QIODevice &m_device;
    TextEncoding m_encoding;
    QStringDecoder m_decoder;
    QByteArray m_bytes;
    qint64 m_bytesLeft = 0;
    bool m_failed = false;
};
