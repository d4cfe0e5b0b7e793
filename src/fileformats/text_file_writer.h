// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoder.h"
#include "platform/safe_file.h"

#include <QString>

/// Writes a text file with CR LF line ends. The file at `path` is replaced as a whole when Close() succeeds and
/// left alone otherwise (see CSafeFile).
class CTextFileWriter
{
public:
    CTextFileWriter() = default;
    CTextFileWriter(const CTextFileWriter &) = delete;
    CTextFileWriter &operator=(const CTextFileWriter &) = delete;

    /// Begins a file with the byte-order mark of its encoding. Returns false when it can't be created.
    /// `backupFolder` is CSafeFile's.
    [[nodiscard]] bool Open(const QString &path, TextEncoding encoding, const QString &backupFolder = {});
    /// Writes to an open device, which the caller keeps.
    void Open(QIODevice &device, TextEncoding encoding);

    /// Text that the code page lacks sets the lossy mark in an ANSI file.
    void Write(QStringView text);
    void WriteChar(QChar character) { Write(QStringView(&character, 1)); }
    void NewLine() { Write(u"\r\n"); }
    bool Lossy() const { return m_encoder.Lossy(); }

    /// Writes out what is buffered and puts the file in place. Returns false when anything failed since Open().
    [[nodiscard]] bool Close();

private:
    void Flush();

    static constexpr qsizetype PieceSize = 65536;

    CSafeFile m_file;
    QIODevice *m_device = nullptr;
    CTextEncoder m_encoder{TextEncoding::Ansi};
    bool m_ownsFile = false; // The device belongs to m_file.
    bool m_failed = false;
};
