// SPDX-License-Identifier: MIT
#include "platform/letters.h"

#include <QChar>
#include <QString>

#include <array>
#include <memory>

namespace {

using FoldTable = std::array<char16_t, 0x10000>;

std::unique_ptr<const FoldTable> MakeFoldTable()
{
    auto table = std::make_unique<FoldTable>();
    for (char32_t unit = 0; unit < table->size(); ++unit) {
        (*table)[unit] = QChar::isSurrogate(unit) ? char16_t(unit) : char16_t(QChar::toCaseFolded(unit));
    }
    return table;
}

/// Two for a surrogate pair, else one.
qsizetype CharacterLength(QStringView text, qsizetype position)
{
    return text.at(position).isHighSurrogate() && position + 1 < text.size()
            && text.at(position + 1).isLowSurrogate()
        ? 2
        : 1;
}

char32_t CodePoint(QStringView character)
{
    return character.size() == 2 ? QChar::surrogateToUcs4(character[0], character[1])
                                 : char32_t(character[0].unicode());
}

}

QString KeepLetters(QStringView text, bool keepSpaces)
{
    QString kept;
    kept.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype length = CharacterLength(text, i);
        const QStringView character = text.mid(i, length);
        if (QChar::isLetter(CodePoint(character)) || (keepSpaces && character == u' ')) {
            kept.append(character);
        }
        i += length;
    }
    return kept;
}

QString ToLowerCase(QStringView text)
{
    QString lower;
    lower.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype length = CharacterLength(text, i);
        const char32_t character = CodePoint(text.mid(i, length));
        if (QChar::isSurrogate(character)) {
            lower.append(text.at(i));
        } else {
            lower.append(QChar::fromUcs4(QChar::toLower(character)));
        }
        i += length;
    }
    return lower;
}

const char16_t *CaseFolding()
{
    static const std::unique_ptr<const FoldTable> table = MakeFoldTable();
    return table->data();
}

bool IsWordCharacter(char32_t codePoint)
{
    return QChar::isLetterOrNumber(codePoint) || QChar::isMark(codePoint);
}
