// SPDX-License-Identifier: MIT
#include "dictionaries/dictionary_text.h"

#include "platform/regular_file.h"

#include <QtEndian>

#include <zlib.h>

#include <utility>

namespace {

constexpr qint64 LongestArticle = qint64(1) << 20;

/// The flags of a gzip header.
enum HeaderFlag : quint8 { HeaderChecksum = 2, HeaderExtra = 4, HeaderName = 8, HeaderComment = 16 };

quint16 NumberAt(const QByteArray &bytes, qsizetype place)
{
    return qFromLittleEndian<quint16>(bytes.constData() + place);
}

/// Decompresses a piece, which is a stream without an end of its own.
std::optional<QByteArray> Inflated(QByteArray compressed, int size)
{
    QByteArray text(size, Qt::Uninitialized);
    z_stream stream = {};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) {
        return {};
    }
    stream.next_in = reinterpret_cast<Bytef *>(compressed.data());
    stream.avail_in = uInt(compressed.size());
    stream.next_out = reinterpret_cast<Bytef *>(text.data());
    stream.avail_out = uInt(text.size());
    const int result = inflate(&stream, Z_SYNC_FLUSH);
    text.truncate(text.size() - qsizetype(stream.avail_out));
    inflateEnd(&stream);
    return result == Z_OK || result == Z_STREAM_END ? std::optional(text) : std::nullopt;
}

}

bool CDictionaryText::Open(const QString &path)
{
    m_pieces.clear();
    m_pieceSize = 0;
    m_lastPiece = -1;
    m_file.close();
    return OpenRegularFile(m_file, path)
        && (!path.endsWith(QLatin1StringView(".dz"), Qt::CaseInsensitive) || ReadHeader());
}

bool CDictionaryText::ReadHeader()
{
    constexpr qsizetype FixedSize = 12; // With the length of the extra field.
    const QByteArray fixed = m_file.read(FixedSize);
    if (fixed.size() != FixedSize || !fixed.startsWith("\x1F\x8B\x08")) {
        return false;
    }
    const auto flags = quint8(fixed.at(3));
    if ((flags & HeaderExtra) == 0) {
        return false; // Compressed as a whole, so that nothing can be read without all before it.
    }
    const int extraSize = NumberAt(fixed, 10);
    const QByteArray extra = m_file.read(extraSize);
    if (extra.size() != extraSize || ((flags & HeaderName) != 0 && !SkipText())
        || ((flags & HeaderComment) != 0 && !SkipText())
        || ((flags & HeaderChecksum) != 0 && m_file.skip(2) != 2)) {
        return false;
    }
    return ReadPieces(extra);
}

bool CDictionaryText::SkipText()
{
    constexpr qsizetype Longest = 4096;
    char byte = 0;
    for (qsizetype i = 0; i < Longest; ++i) {
        if (!m_file.getChar(&byte)) {
            return false;
        }
        if (byte == 0) {
            return true;
        }
    }
    return false;
}

bool CDictionaryText::ReadPieces(const QByteArray &extra)
{
    constexpr qsizetype FieldHeader = 4;
    constexpr qsizetype PiecesHeader = 6; // Version, size of a piece, number of pieces.
    for (qsizetype place = 0; place + FieldHeader <= extra.size();) {
        const qsizetype size = NumberAt(extra, place + 2);
        const QByteArray field = extra.mid(place + FieldHeader, size);
        if (extra.mid(place, 2) == "RA" && field.size() == size && size >= PiecesHeader
            && NumberAt(field, 0) == 1) {
            m_pieceSize = NumberAt(field, 2);
            const qsizetype count = NumberAt(field, 4);
            if (m_pieceSize == 0 || size < PiecesHeader + 2 * count) {
                return false;
            }
            m_pieces.push_back(m_file.pos());
            for (qsizetype i = 0; i < count; ++i) {
                m_pieces.push_back(m_pieces.back() + NumberAt(field, PiecesHeader + 2 * i));
            }
            return true;
        }
        place += FieldHeader + size;
    }
    return false;
}

std::optional<QByteArray> CDictionaryText::ReadPiece(qint64 piece)
{
    if (piece == m_lastPiece) {
        return m_lastText; // Articles that follow one another stand in the same one.
    }
    if (piece + 1 >= qint64(m_pieces.size())) {
        return {};
    }
    const qint64 size = m_pieces[size_t(piece) + 1] - m_pieces[size_t(piece)];
    if (!m_file.seek(m_pieces[size_t(piece)])) {
        return {};
    }
    const QByteArray compressed = m_file.read(size);
    std::optional<QByteArray> text =
        compressed.size() == size ? Inflated(compressed, m_pieceSize) : std::nullopt;
    m_lastPiece = text ? piece : -1;
    m_lastText = text.value_or(QByteArray());
    return text;
}

std::optional<QByteArray> CDictionaryText::Read(qint64 offset, qint64 length)
{
    if (offset < 0 || length < 0 || length > LongestArticle || (m_pieceSize == 0 && offset > m_file.size())) {
        return {};
    }
    QByteArray text;
    if (m_pieceSize == 0) {
        m_file.seek(offset);
        text = m_file.read(length);
    } else {
        const qint64 first = offset / m_pieceSize;
        const qint64 start = offset % m_pieceSize;
        for (qint64 piece = first; text.size() < start + length; ++piece) {
            const std::optional<QByteArray> read = ReadPiece(piece);
            if (!read) {
                return {};
            }
            text += *read;
            if (read->size() < m_pieceSize) {
                break; // The last.
            }
        }
        text = text.mid(start, length);
    }
    return text.size() == length ? std::optional(text) : std::nullopt;
}
