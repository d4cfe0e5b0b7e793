// SPDX-License-Identifier: MIT
#pragma once

#include "document/text_numbers.h"
#include "fileformats/word_list_file.h"

/// The number of the text that tells of a file that was refused, or not read as a list of this version; 0 for
/// one that was. The text of a refused file has its path.
inline int ReadMessage(ReadResult result)
{
    switch (result) {
    case ReadResult::Read:
    case ReadResult::ReadLossy:
        return 0;
    case ReadResult::TooLarge:
        return Text::FileTooLarge;
    case ReadResult::LineTooLong:
        return Text::LineTooLong;
    case ReadResult::Binary:
        return Text::NoText;
    case ReadResult::Damaged:
        return Text::FileDamaged;
    case ReadResult::NothingChosen:
        return Text::NothingChosenOfFile;
    case ReadResult::NewerVersion:
        return Text::NewerVersion;
    case ReadResult::PlainText:
        return Text::ReadAsPlainText;
    case ReadResult::CannotOpen:
        break;
    }
    return Text::CannotOpen;
}
