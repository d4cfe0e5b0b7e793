// SPDX-License-Identifier: MIT
#pragma once

/// How the characters of a text file are stored. Ansi is Windows-1252.
enum class TextEncoding { Ansi = 0, Utf16BigEndian = 1, Utf16LittleEndian = 2, Utf8 = 3 };
