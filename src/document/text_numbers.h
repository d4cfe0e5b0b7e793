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
inline constexpr int NotAllRead = 70190;
inline constexpr int ExportCounting = 70194;
inline constexpr int PreviewNoRows = 70195;
inline constexpr int FirstRowIsHeading = 70197;
inline constexpr int FirstRowIsNoHeading = 70198;
inline constexpr int ColumnsAre = 70199;
inline constexpr int PreviewTitle = 249000;
inline constexpr int PreviewSeparator = 249001;
inline constexpr int Separators = 249002;
inline constexpr int PreviewQuote = 249003;
inline constexpr int PreviewQuotes = 249004;
inline constexpr int PreviewEncoding = 249005;
inline constexpr int Encodings = 249006;
inline constexpr int PreviewHeading = 249007;
inline constexpr int PreviewSemicolons = 249008;
inline constexpr int PreviewCommas = 249009;
inline constexpr int PreviewSlashes = 249010;
inline constexpr int PreviewBrackets = 249011;
inline constexpr int PreviewRows = 249012;
inline constexpr int PreviewEntries = 249013;
inline constexpr int PreviewColumnIs = 249014;
inline constexpr int ColumnKinds = 249015;
inline constexpr int PreviewColumn = 249016;
inline constexpr int PreviewNamedColumn = 249017;
inline constexpr int PreviewFlagged = 249018;
inline constexpr int PreviewCounts = 249019;
inline constexpr int PreviewFirstRows = 249020;
inline constexpr int PreviewLosses = 249021;
inline constexpr int PreviewNoTerm = 249022;
inline constexpr int PreviewImport = 249023;
inline constexpr int PreviewRowLeftOut = 249024;
inline constexpr int ExportTitle = 250000;
inline constexpr int ExportLosses = 250001;
inline constexpr int ExportWithoutLosses = 250002;
inline constexpr int ExportIsCopy = 250003;
inline constexpr int ExportSeparator = 250004;
inline constexpr int ExportEncoding = 250005;
inline constexpr int ExportHeading = 250006;
inline constexpr int ExportMark = 250007;
inline constexpr int ExportTerms = 250008;
inline constexpr int ExportTermChoices = 250009;
inline constexpr int ExportAlternatives = 250010;
inline constexpr int ExportAlternativeMarks = 250011;
inline constexpr int ExportSave = 250012;

}
