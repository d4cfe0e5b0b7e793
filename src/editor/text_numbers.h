// SPDX-License-Identifier: MIT
#pragma once

#include "resources/text_numbers.h"

namespace Text {

inline constexpr int ProposeCorrection = 61023;
inline constexpr int EntriesMerged = 61031;
inline constexpr int ListSummary = 61106;
inline constexpr int FindDirections = 62550;
inline constexpr int FindFlagFilters = 62551;
inline constexpr int FindColumns = 62552;
inline constexpr int EntrySelected = 70001;
inline constexpr int NewEntryRowSelected = 70002;
inline constexpr int EntriesSelected = 70003;
inline constexpr int NewEntry = 70004;
inline constexpr int SelectSimilar = 70005;
inline constexpr int ReallyDelete = 70006;
inline constexpr int NothingPasted = 70007;
inline constexpr int EntriesPasted = 70008;
inline constexpr int NotAllPasted = 70191;
inline constexpr int EntriesFound = 70009;
inline constexpr int NothingFound = 70010;
inline constexpr int NoDuplicates = 70011;
inline constexpr int AllDuplicatesSeen = 70012;
inline constexpr int SelectDuplicates = 70013;
inline constexpr int ReallyMergeAll = 70014;
inline constexpr int FoundInNote = 70082;
inline constexpr int Flagged = 70150;
inline constexpr int NotFlagged = 70151;
inline constexpr int NoDictionaryInstalled = 70192;
inline constexpr int EntriesFromDictionary = 70193;
inline constexpr int FindTitle = 210000;
inline constexpr int FindText = 210001;
inline constexpr int FindMatchCase = 210002;
inline constexpr int FindWholeWord = 210003;
inline constexpr int FindWildcards = 210004;
inline constexpr int FindDictionary = 210005;
inline constexpr int FindAdvanced = 210006;
inline constexpr int FindNextButton = 210007;
inline constexpr int FindAllButton = 210008;
inline constexpr int FindDirection = 210009;
inline constexpr int FindColumn = 210010;
inline constexpr int FindFlags = 210011;
inline constexpr int FindFlag1 = 210012;
inline constexpr int FindFlag2 = 210013;
inline constexpr int FindResultList = 210014;
inline constexpr int FindListSize = 210015;
inline constexpr int Suggestions = 248000;
inline constexpr int SuggestionsFound = 248001;
inline constexpr int DictionaryListTitle = 251000;
inline constexpr int DictionaryListDictionary = 251001;
inline constexpr int DictionaryListLanguages = 251002;
inline constexpr int DictionaryListSide = 251003;
inline constexpr int DictionaryListMatch = 251004;
inline constexpr int DictionaryListMatches = 251005;
inline constexpr int DictionaryListWords = 251006;
inline constexpr int DictionaryListNothing = 251007;
inline constexpr int DictionaryListSearching = 251008;
inline constexpr int DictionaryListFound = 251009;
inline constexpr int DictionaryListMore = 251010;
inline constexpr int DictionaryListNotFound = 251011;
inline constexpr int DictionaryListOthers = 251012;
inline constexpr int DictionaryListUnreadable = 251013;
inline constexpr int DictionaryListTakesLanguages = 251014;
inline constexpr int DictionaryListInsert = 251015;
inline constexpr int ViewList = 301000;
inline constexpr int ViewAuthor = 301001;
inline constexpr int ViewComments = 301002;
inline constexpr int FieldLanguage1 = 301003;
inline constexpr int FieldLanguage2 = 301004;
inline constexpr int FieldNote = 301005;
inline constexpr int ClearFieldsButton = 301006;
inline constexpr int AddEntryButton = 301007;
inline constexpr int ChangeEntryButton = 301008;
inline constexpr int NewEntryRow = 301009;
inline constexpr int SortedAscending = 301011;
inline constexpr int SortedDescending = 301012;

}
