// SPDX-License-Identifier: MIT
#pragma once

#include "resources/text_numbers.h"

namespace Text {

inline constexpr int Done = 62000;
inline constexpr int ImportedColumn = 62011;
inline constexpr int IgnoredColumn = 62012;
inline constexpr int ImportLanguageMatches = 62020;
inline constexpr int CloseWindow = 62801;
inline constexpr int FileCount = 70015;
inline constexpr int ReadingFile = 70016;
/// And the four counters that follow it.
inline constexpr int ImportedFiles = 70020;
inline constexpr int FolderMissing = 70040;
inline constexpr int FilesFound = 70041;
inline constexpr int SearchingIn = 70042;
inline constexpr int ImportTitle = 235000;
inline constexpr int ImportButton = 235001;
inline constexpr int ImportChooseFiles = 235002;
inline constexpr int ImportSearch = 235003;
inline constexpr int ImportRemove = 235004;
inline constexpr int ImportFileList = 235005;
inline constexpr int ImportColumns = 235006;
/// By the numbers of ImportFileStatus.
inline constexpr int ImportFileStates = 235007;
inline constexpr int ImportLanguageMatch = 235008;
inline constexpr int ImportIgnoreDuplicates = 235009;
inline constexpr int ImportChooseTitle = 235010;
inline constexpr int ImportProgress = 235011;
/// By the numbers of FileFault, the first one missing.
inline constexpr int ImportFileFault = 235020;
inline constexpr int FilterUse = 236000;
inline constexpr int FilterMinimum = 236001;
inline constexpr int FilterMaximum = 236002;
inline constexpr int FilterEntries = 236003;
inline constexpr int FilterLanguage1 = 236004;
inline constexpr int FilterLanguage2 = 236005;
inline constexpr int FilterAuthor = 236006;
inline constexpr int FilterComments = 236007;
inline constexpr int SearchTitle = 237000;
inline constexpr int SearchFolder = 237001;
inline constexpr int SearchBrowse = 237002;
inline constexpr int SearchSubfolders = 237003;
inline constexpr int SearchFileType = 237004;
inline constexpr int SearchStart = 237005;
inline constexpr int SearchStop = 237006;
inline constexpr int SearchOpen = 237007;
inline constexpr int SearchImport = 237008;
inline constexpr int SearchAdd = 237009;
inline constexpr int SearchFileList = 237010;
inline constexpr int SearchColumns = 237011;
inline constexpr int SearchLanguages = 237012;
inline constexpr int SearchOrder = 237013;
inline constexpr int SearchChooseFolder = 237014;
inline constexpr int SearchUnreadable = 237015;
inline constexpr int SearchAdded = 237016;
inline constexpr int SearchOrderFound = 237017;

}
