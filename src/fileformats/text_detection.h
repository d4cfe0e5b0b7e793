// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"
#include "fileformats/word_list_file.h"

#include <QByteArrayView>

#include <optional>

class QIODevice;

/// A byte-order mark at the start of a text.
struct TextMark
{
    TextEncoding encoding;
    qsizetype size; ///< In bytes.
};
std::optional<TextMark> FindTextMark(QByteArrayView head);

/// Whether the whole content of a random-access device without a mark is valid UTF-8 and not plain ASCII. Goes
/// back to its start. False when `keepGoing`, which may be null, stops it.
bool IsUnmarkedUtf8(QIODevice &device, const KeepGoing *keepGoing = nullptr);

/// The encoding of such a device by its mark, else UTF-8 where it is valid UTF-8, else Windows-1252.
TextEncoding DetectEncoding(QIODevice &device, const KeepGoing *keepGoing = nullptr);

/// The text at the start of a file, without its mark and without a character that is cut off.
QString DecodeHead(QByteArrayView head);

/// Whether a file that begins so is no text: a picture, a sound, a program, a packed file.
bool LooksBinary(QByteArrayView head);
