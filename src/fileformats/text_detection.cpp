// SPDX-License-Identifier: MIT
#include "fileformats/text_detection.h"

#include "platform/windows_1252.h"

#include <QIODevice>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace {

constexpr qint64 PieceSize = 65536;

/// How many bytes at the end of `bytes` begin a UTF-8 sequence that goes on behind them.
qsizetype CutOffUtf8(QByteArrayView bytes)
{
    for (qsizetype back = 1; back <= std::min<qsizetype>(3, bytes.size()); ++back) {
        const auto byte = uchar(bytes[bytes.size() - back]);
        if ((byte & 0xC0) == 0x80) {
            continue;
        }
        const qsizetype length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
        return length > back ? back : 0;
    }
    return 0;
}

bool HoldsUtf8(QByteArrayView bytes)
{
    return std::ranges::any_of(bytes, [](char byte) { return uchar(byte) >= 0x80; });
}

}

std::optional<TextMark> FindTextMark(QByteArrayView head)
{
    if (head.startsWith("\xFF\xFE")) {
        return TextMark{TextEncoding::Utf16LittleEndian, 2};
    }
    if (head.startsWith("\xFE\xFF")) {
        return TextMark{TextEncoding::Utf16BigEndian, 2};
    }
    if (head.startsWith("\xEF\xBB\xBF")) {
        return TextMark{TextEncoding::Utf8, 3};
    }
    return std::nullopt;
}

bool IsUnmarkedUtf8(QIODevice &device, const KeepGoing *keepGoing)
{
    device.seek(0);
    QByteArray bytes;
    bool anyLong = false;
    bool valid = true;
    bool isStart = true;
    for (qsizetype kept = 0; valid && (keepGoing == nullptr || *keepGoing); isStart = false) {
        bytes.resize(kept + PieceSize);
        const qint64 read = device.read(bytes.data() + kept, PieceSize);
        if (read <= 0) {
            valid = read == 0 && kept == 0;
            break;
        }
        const QByteArrayView piece = QByteArrayView(bytes).first(kept + read);
        kept = CutOffUtf8(piece);
        const QByteArrayView whole = piece.chopped(kept);
        valid = whole.isValidUtf8() && !(isStart && FindTextMark(whole));
        anyLong = anyLong || kept > 0 || HoldsUtf8(whole);
        std::copy(piece.end() - kept, piece.end(), bytes.begin());
    }
    const bool stopped = keepGoing != nullptr && !*keepGoing;
    device.seek(0);
    return valid && anyLong && !stopped;
}

TextEncoding DetectEncoding(QIODevice &device, const KeepGoing *keepGoing)
{
    device.seek(0);
    const QByteArray head = device.read(3);
    device.seek(0);
    if (const auto mark = FindTextMark(head)) {
        return mark->encoding;
    }
    return IsUnmarkedUtf8(device, keepGoing) ? TextEncoding::Utf8 : TextEncoding::Ansi;
}

QString DecodeHead(QByteArrayView head)
{
    const auto mark = FindTextMark(head);
    const QByteArrayView text = head.sliced(mark ? mark->size : 0);
    if (!mark || mark->encoding == TextEncoding::Utf8) {
        const QByteArrayView whole = text.chopped(CutOffUtf8(text));
        return mark || whole.isValidUtf8() ? QString::fromUtf8(whole) : DecodeWindows1252(text);
    }
    QStringDecoder decoder(
        mark->encoding == TextEncoding::Utf16BigEndian ? QStringDecoder::Utf16BE : QStringDecoder::Utf16LE);
    return decoder(text.chopped(text.size() % 2));
}

bool LooksBinary(QByteArrayView head)
{
    constexpr std::array<QByteArrayView, 16> Starts = {"\x89PNG", "\xFF\xD8\xFF", "GIF87a", "GIF89a", "%PDF-",
        "PK\x03\x04", "\x1F\x8B",
        "\x7F"
        "ELF",
        "OggS", "fLaC", "ID3", "\xD0\xCF\x11\xE0", "BZh", "7z\xBC\xAF", "{\\rtf", "II*"};
    if (std::ranges::any_of(Starts, [head](QByteArrayView start) { return head.startsWith(start); })) {
        return true;
    }
    const auto mark = FindTextMark(head);
    if (mark && mark->encoding != TextEncoding::Utf8) {
        return false;
    }
    // A text has tabs and line ends, now and then a form feed or an escape; a zero it never has.
    qsizetype controls = 0;
    for (const char byte : head) {
        if (byte == 0) {
            return true;
        }
        controls += qsizetype(uchar(byte) < ' ' && byte != '\t' && byte != '\n' && byte != '\r');
    }
    return controls > head.size() / 20;
}
