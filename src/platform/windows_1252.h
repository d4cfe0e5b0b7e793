// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// The code page of 8-bit files and clipboard texts: Windows-1252 as the Unicode consortium's mapping table has
/// it. The five bytes that it leaves undefined (81 8D 8F 90 9D) stand for the same code points in both
/// directions, as in the WHATWG encoding standard. No look-alikes: a character is in the code page or it is
/// not.

char16_t DecodeWindows1252(uchar byte);
QString DecodeWindows1252(QByteArrayView bytes);

/// Writes the bytes of `text`, one for each code unit at most, and returns their number. A character without a
/// byte of its own becomes '?' (one for a surrogate pair) and sets `lossy`.
qsizetype EncodeWindows1252(QStringView text, char *bytes, bool &lossy);

/// Appends the bytes of `text`. Returns false when a character became '?'.
bool AppendWindows1252(QStringView text, QByteArray &bytes);
