// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/formats.h"

/// KDE's vocabulary files: version 2 is read and written, version 1 is read. Two languages are taken of what
/// may be many; the remarks of both terms become the note, title and comment the comments of the list.
namespace KvtmlFormat {

bool Recognises(const FormatSample &sample, FormatSource &source);
ReadResult Read(CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses);
void Count(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses);
bool Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options);

}
