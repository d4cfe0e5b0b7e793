// SPDX-License-Identifier: MIT
#pragma once

#include "resources/text_numbers.h"

namespace Text {

inline constexpr int Language1 = 61000;
inline constexpr int Language2 = 61001;
inline constexpr int SuggestedFileName = 61017;
inline constexpr int CannotOpen = 61025;
inline constexpr int ReadAsPlainText = 61026;
inline constexpr int NewerVersion = 61029;
inline constexpr int Unnamed = 70030;
inline constexpr int SaveChanges = 70031;
inline constexpr int CannotStartMail = 70032;
inline constexpr int RecoverPart = 70052;
inline constexpr int RecoverOverwritten = 70053;
inline constexpr int ReadAgain = 70056;
inline constexpr int ChangedOutside = 70057;
inline constexpr int FileIsGone = 70058;
inline constexpr int OnlyFiles = 70061;
inline constexpr int FileTooLarge = 70076;
inline constexpr int LineTooLong = 70077;
inline constexpr int EntriesNotSaved = 70078;
inline constexpr int SaveAsTitle = 70138;
inline constexpr int OverwriteForeignChange = 70160;
inline constexpr int RecoverChanges = 70161;
inline constexpr int SaveCopyTitle = 70163;
inline constexpr int NoText = 70187;
inline constexpr int FileDamaged = 70188;
inline constexpr int NothingChosenOfFile = 70189;

}
