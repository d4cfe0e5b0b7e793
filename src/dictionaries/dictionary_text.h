// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>

#include <optional>
#include <vector>

/// The articles of a dictionary in the format of the DICT servers: a plain file, or one that is compressed in
/// pieces of one size, so that each can be read alone (dictzip: a gzip file, RFC 1952, with an extra field
/// "RA"). An article is read with the pieces that it stands in, nothing else.
class CDictionaryText
{
public:
    /// A path that ends in ".dz" is that of a compressed file. Returns false for what can't be read.
    [[nodiscard]] bool Open(const QString &path);
    /// The bytes of an article; none when they can't be read or are more than an article can be.
    std::optional<QByteArray> Read(qint64 offset, qint64 length);

private:
    [[nodiscard]] bool ReadHeader();
    [[nodiscard]] bool ReadPieces(const QByteArray &extra);
    [[nodiscard]] bool SkipText();
    std::optional<QByteArray> ReadPiece(qint64 piece);

    QFile m_file;
    int m_pieceSize = 0; // In bytes of text; 0 for a plain file.
    qint64 m_lastPiece = -1; // The one that was read last; -1 for none.
    QByteArray m_lastText;
    std::vector<qint64> m_pieces; // Where they begin in the file, and where the last ends.
};
