// SPDX-License-Identifier: MIT
#include "platform/windows_1252.h"

#include <algorithm>
#include <array>

namespace {

// The bytes 80 to 9F; all others are the code points of the same number.
constexpr std::array<char16_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, //
};

/// The byte of a code unit, or -1.
int Encode(char16_t unit)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
        return unit;
    }
    const auto *const found = std::find(UpperControls.begin(), UpperControls.end(), unit);
    return found == UpperControls.end() ? -1 : 0x80 + int(found - UpperControls.begin());
}

}

char16_t DecodeWindows1252(uchar byte)
{
    return (byte & 0xE0) == 0x80 ? UpperControls[byte & 0x1F] : char16_t(byte);
}

QString DecodeWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
        [](char byte) { return QChar(DecodeWindows1252(uchar(byte))); });
    return text;
}

qsizetype EncodeWindows1252(QStringView text, char *bytes, bool &lossy)
{
    char *next = bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (const int byte = Encode(unit); byte >= 0) {
            *next++ = char(byte);
            continue;
        }
        lossy = true;
        *next++ = '?';
        if (QChar::isHighSurrogate(unit) && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
        }
    }
    return next - bytes;
}

bool AppendWindows1252(QStringView text, QByteArray &bytes)
{
    bool lossy = false;
    const qsizetype size = bytes.size();
    bytes.resize(size + text.size());
    bytes.resize(size + EncodeWindows1252(text, bytes.data() + size, lossy));
    return !lossy;
}
