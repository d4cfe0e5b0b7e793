// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <array>

/// Reads a text file line by line, in the encoding that its byte-order mark tells; without a mark it is ANSI.
/// CR LF, a lone CR and a lone LF each end one line. Nothing is validated and nothing is refused: surrogates
/// pass unchanged, UTF-8 continuation bytes are not checked, other lead bytes give U+FFFD and consume one byte,
/// and a character cut off by the end of the file is dropped.
class CTextFileReader
{
public:
    CTextFileReader() = default;
    CTextFileReader(const CTextFileReader &) = delete;
    CTextFileReader &operator=(const CTextFileReader &) = delete;

    /// Opens a regular file and detects its encoding. Returns false when it can't be opened.
    [[nodiscard]] bool Open(const QString &path);
    /// Reads from an open, random-access device, which the caller keeps.
    void Open(QIODevice &device);
    bool IsOpen() const { return m_device != nullptr && m_device->isOpen(); }
    void Close();
    /// Back to the first line.
    void Rewind();

    TextEncoding Encoding() const { return m_encoding; }
    /// True once a read has run past the end of the file.
    bool AtEnd() const { return m_atEnd; }
    /// True when the end was not the end of the file but an error of its device.
    bool Failed() const { return m_failed; }
    /// True once ReadNarrowLine() met a character that is not in the code page.
    bool Lossy() const { return m_lossy; }

    /// The length of the file in bytes.
    qint64 Size() const { return m_device->size(); }

    /// Both return false at the end of the file and leave `line` empty then. Nothing follows the last line end.
    bool ReadLine(QString &line);
    /// The line in the code page.
    bool ReadNarrowLine(QByteArray &line);

private:
    void Detect();
    /// Decodes the next piece of the file. Returns false at its end.
    bool Fill();
    void DecodeUtf8(const uchar *bytes, qsizetype count);
    /// Skips `unit` when it is the next one.
    bool Skip(char16_t unit);

    static constexpr qsizetype BufferSize = 1024;

    QFile m_file;
    QIODevice *m_device = nullptr;
    TextEncoding m_encoding = TextEncoding::Ansi;
    std::array<char, BufferSize> m_bytes;
    qsizetype m_keptBytes = 0; // Bytes at the start of m_bytes that begin a character not yet complete.
    std::array<char16_t, BufferSize> m_units; // Every unit comes from one byte or more.
    qsizetype m_position = 0;
    qsizetype m_count = 0;
    bool m_atEnd = false;
    bool m_failed = false;
    bool m_atStart = true;
    bool m_lossy = false;
};
