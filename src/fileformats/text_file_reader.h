// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <vector>

/// Reads a text file line by line, in the encoding that its byte-order mark tells; without a mark it is ANSI.
/// CR LF, a lone CR and a lone LF each end one line. Nothing is validated: surrogates pass unchanged, UTF-8
/// continuation bytes are not checked, other lead bytes give U+FFFD and consume one byte, and a character cut
/// off by the end of the file is dropped. No more is read than the file held when it was opened, however fast
/// it grows.
class CTextFileReader
{
public:
    /// In code units. A file with a longer line holds no words; reading ends there.
    static constexpr qsizetype LongestLine = 16'000'000;

    CTextFileReader() = default;
    CTextFileReader(const CTextFileReader &) = delete;
    CTextFileReader &operator=(const CTextFileReader &) = delete;

    /// Opens a regular file and detects its encoding. Returns false when it can't be opened.
    [[nodiscard]] bool Open(const QString &path);
    /// Reads from an open, random-access device, which the caller keeps.
    void Open(QIODevice &device);
    /// The same of a text without a mark that is known to be valid UTF-8; characters beyond U+FFFF are read
    /// too.
    void OpenUtf8(QIODevice &device);
    bool IsOpen() const { return m_device != nullptr && m_device->isOpen(); }
    void Close();
    /// Back to the first line.
    void Rewind();

    /// True once a read has run past the end of the file.
    bool AtEnd() const { return m_atEnd; }
    /// True when the end was not the end of the file but an error of its device.
    bool Failed() const { return m_failed; }
    /// True when the end was not the end of the file but a line that is too long.
    bool LineTooLong() const { return m_lineTooLong; }
    /// True once ReadNarrowLine() met a character that is not in the code page.
    bool Lossy() const { return m_lossy; }

    /// The length in bytes that the file had when it was opened.
    qint64 Size() const { return m_size; }

    /// All return false at the end of the file and leave `line` empty then. Nothing follows the last line end.
    /// The view lasts until the next call.
    bool ReadLine(QStringView &line);
    bool ReadLine(QString &line);
    /// The line in the code page.
    bool ReadNarrowLine(QByteArray &line);

private:
    void Open(QIODevice &device, bool isValidUtf8);
    void Detect();
    /// Decodes the next piece of the file behind what is not yet read, which moves to the start of the buffer.
    /// Returns false at the end.
    bool Fill();
    void Decode(const uchar *bytes, qsizetype count);
    void DecodeUtf8(const uchar *bytes, qsizetype count);
    /// Skips `unit` when it is the next one.
    void Skip(char16_t unit);

    static constexpr qsizetype PieceSize = 65536;

    QFile m_file;
    QIODevice *m_device = nullptr;
    qint64 m_size = 0;
    qint64 m_bytesLeft = 0;
    TextEncoding m_encoding = TextEncoding::Ansi;
    std::vector<uchar> m_bytes;
    qsizetype m_keptBytes = 0; // Bytes at the start of m_bytes that begin a character not yet complete.
    std::vector<char16_t> m_units; // Those from m_position up to m_count are not yet read.
    qsizetype m_position = 0;
    qsizetype m_count = 0;
    bool m_atEnd = false;
    bool m_failed = false;
    bool m_lineTooLong = false;
    bool m_atStart = true;
    bool m_lossy = false;
    bool m_isValidUtf8 = false;
};
