// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The name of a code point in the Unicode character database, in lower case.
QString CharacterName(char32_t codePoint);
