// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"

#include <QByteArray>
#include <QStringEncoder>
#include <QStringView>

class QIODevice;

/// Writes a text to an open device in pieces of bounded size. Unlike a glossary file, UTF-8 has characters
/// beyond U+FFFF as they ought to be; half a one becomes U+FFFD.
class CTextOutput
{
public:
    /// The device must outlive this. Only encodings with a mark get one.
    CTextOutput(QIODevice &device, TextEncoding encoding, bool writesMark);

    void Write(QStringView text);
    void Write(char16_t unit) { m_text += QChar(unit); }
    /// Writes out what is buffered. Returns false when anything failed.
    [[nodiscard]] bool Finish();

private:
    void Flush();

    static constexpr qsizetype PieceSize = 32768; // In code units.

    QIODevice &m_device;
    TextEncoding m_encoding;
    QStringEncoder m_encoder;
    QString m_text;
    QByteArray m_bytes;
    bool m_failed = false;
};

/// Whether every character of a text can be written in the encoding.
bool CanBeWritten(QStringView text, TextEncoding encoding);
