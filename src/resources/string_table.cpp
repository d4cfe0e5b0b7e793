// SPDX-License-Identifier: MIT
#include "resources/string_table.h"

#include <algorithm>

namespace {

constexpr QByteArrayView PictureName = "bitmap170";
/// Far more than 16×16 pixels take, in base64.
constexpr qsizetype LargestPicture = 16384;
constexpr QByteArrayView FirstLine = "Ordelin-spr\xC3\xA5kmodul";

QString Unescape(QByteArrayView value)
{
    QByteArray text;
    text.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text.append(value[i]);
            continue;
        }
        switch (const char escaped = value[++i]; escaped) {
        case 'n':
            text.append('\n');
            break;
        case 'r':
            text.append('\r');
            break;
        case 't':
            text.append('\t');
            break;
        default:
            text.append(escaped);
        }
    }
    return QString::fromUtf8(text);
}

QByteArray ReadPicture(QByteArrayView value)
{
    if (value.size() > LargestPicture) {
        return {};
    }
    const auto picture =
        QByteArray::fromBase64Encoding(value.toByteArray(), QByteArray::AbortOnBase64DecodingErrors);
    return picture ? *picture : QByteArray();
}

}

bool CStringTable::Load(const QByteArray &module)
{
    m_texts.clear();
    m_picture.clear();
    QByteArrayView rest = module;
    const auto nextLine = [&rest] {
        const qsizetype end = std::find(rest.begin(), rest.end(), '\n') - rest.begin();
        QByteArrayView line = rest.first(end);
        rest = rest.sliced(std::min(end + 1, rest.size()));
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        return line;
    };
    if (nextLine() != FirstLine) {
        return false;
    }
    while (!rest.isEmpty()) {
        const QByteArrayView line = nextLine();
        const qsizetype equals = std::find(line.begin(), line.end(), '=') - line.begin();
        if (line.startsWith('#') || equals == line.size()) {
            continue;
        }
        if (line.first(equals) == PictureName) {
            m_picture = ReadPicture(line.sliced(equals + 1));
            continue;
        }
        bool isNumber = false;
        const int number = line.first(equals).toInt(&isNumber);
        if (isNumber) {
            m_texts.insert(number, Unescape(line.sliced(equals + 1)));
        }
    }
    return true;
}
