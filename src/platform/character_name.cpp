// SPDX-License-Identifier: MIT
#include "platform/character_name.h"

#include <unicode/uchar.h>

#include <array>

QString CharacterName(char32_t codePoint)
{
    std::array<char, 200> name = {};
    UErrorCode error = U_ZERO_ERROR;
    u_charName(UChar32(codePoint), U_EXTENDED_CHAR_NAME, name.data(), int32_t(name.size()), &error);
    return U_SUCCESS(error) != 0 ? QString::fromLatin1(name.data()).toLower() : QString();
}
