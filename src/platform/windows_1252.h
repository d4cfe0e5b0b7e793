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

/// True when every character of `text` has a byte of its own.
bool FitsWindows1252(QStringView text);

/// Appends the bytes of `text`; a character without one becomes '?' (one for a surrogate pair). Returns false
/// when that happened.
bool AppendWindows1252(QStringView text, QByteArray &bytes);
