// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

/// The letters of the Unicode character database, code point by code point and independent of the locale.
/// A lone surrogate is no letter and has no other case.

/// `text` without the characters that are no letters; `keepSpaces` leaves U+0020 where it stands.
QString KeepLetters(QStringView text, bool keepSpaces);

/// Every code point mapped to its one lower-case code point, so the number of characters never changes.
QString ToLowerCase(QStringView text);

/// For each of the 65536 code units the one that stands for it and its other cases in comparisons that ignore
/// case (Unicode's simple case folding; surrogates stay as they are). One unit gives one unit, so positions in
/// a folded text are positions in the text.
const char16_t *CaseFolding();

/// True for letters, digits and combining marks: characters that continue a word.
bool IsWordCharacter(char32_t codePoint);
