// SPDX-License-Identifier: MIT
#pragma once

#include "resources/text_numbers.h"

namespace Text {

inline constexpr int VersionKey = 1;
inline constexpr int LanguageName = 2;
inline constexpr int LanguageAbbreviation = 3;
inline constexpr int ApplicationTitle = 57344;
inline constexpr int HelpPath = 60003;
inline constexpr int CannotOpenHelp = 60010;
inline constexpr int FirstRun = 60011;
inline constexpr int OneFileAtATime = 61024;
inline constexpr int StandardToolBar = 61140;
inline constexpr int GlossaryFileType = 63201;
inline constexpr int ReallyAssociate = 63202;
inline constexpr int Associated = 63204;
inline constexpr int CannotAssociate = 63205;
inline constexpr int LanguageFromNextStart = 63211;
inline constexpr int RowForAdding = 63301;
inline constexpr int CharacterSets = 63302;
inline constexpr int ShortcutColumn = 63303;
inline constexpr int CtrlKey = 63304;
inline constexpr int DockingSides = 63401;
inline constexpr int LanguageTitle = 63506;
inline constexpr int LanguageQuestion = 63507;
inline constexpr int LanguageChosen = 63508;
inline constexpr int Ok = 63510;
inline constexpr int InvalidLanguageFile = 63511;
inline constexpr int CopiedToClipboard = 70036;
inline constexpr int CopyFailed = 70054;
inline constexpr int SettingsNotSaved = 70055;
inline constexpr int QuizToolBar = 70060;
inline constexpr int AboutMaker = 70062;
inline constexpr int Usage = 70152;
inline constexpr int UnknownSwitch = 70153;
inline constexpr int OneFileOnly = 70154;
inline constexpr int CommandLineHelp = 70155;
inline constexpr int NoRecentFiles = 70162;
inline constexpr int SamplesMenu = 70185;
inline constexpr int NoSamples = 70186;
inline constexpr int FileMenu = 99000;
inline constexpr int EditMenu = 99001;
inline constexpr int ArrangeMenu = 99002;
inline constexpr int QuizMenu = 99003;
inline constexpr int ViewMenu = 99004;
inline constexpr int ToolsMenu = 99005;
inline constexpr int HelpMenu = 99006;
inline constexpr int CopySpecialMenu = 99010;
inline constexpr int FlagsMenu = 99011;
inline constexpr int SortMenu = 99012;
inline constexpr int MoveMenu = 99013;
inline constexpr int AboutTitle = 201000;
inline constexpr int AboutName = 201001;
inline constexpr int AboutPurpose = 201002;
inline constexpr int AboutLicence = 201003;
inline constexpr int LanguageList = 204001;
inline constexpr int HelpTitle = 209000;
inline constexpr int HelpContents = 209001;
inline constexpr int HelpTextName = 209002;
inline constexpr int HelpSearch = 209003;
inline constexpr int HelpPrevious = 209004;
inline constexpr int HelpNext = 209005;
inline constexpr int HelpHits = 209006;
inline constexpr int HelpOneHit = 209007;
inline constexpr int HelpNoHits = 209008;
inline constexpr int HelpInBrowser = 209009;
inline constexpr int HelpBack = 209010;
inline constexpr int SettingsTitle = 220000;
inline constexpr int SettingsGeneralPage = 220001;
inline constexpr int SettingsEditingPage = 220002;
inline constexpr int SettingsNewListsPage = 220003;
inline constexpr int SettingsViewPage = 220004;
inline constexpr int OpenLastFile = 221001;
inline constexpr int FontGroup = 221002;
inline constexpr int UseOwnFont = 221003;
inline constexpr int FontName = 221004;
inline constexpr int FontSize = 221005;
inline constexpr int FontInQuizzesOnly = 221006;
inline constexpr int FontSample = 221007;
inline constexpr int FontUnit = 221008;
inline constexpr int ChooseLanguage = 221009;
inline constexpr int AssociateFiles = 221010;
inline constexpr int OpenQuizSettings = 221011;
inline constexpr int ResetSettings = 221012;
inline constexpr int FontSampleName = 221013;
inline constexpr int NewEntriesGroup = 222001;
inline constexpr int BeginWithLanguage1 = 222002;
inline constexpr int TypeWithoutEnter = 222003;
inline constexpr int SortNewEntries = 222004;
inline constexpr int FlagNewEntries = 222005;
inline constexpr int ChecksGroup = 222006;
inline constexpr int WarnOfSimilar = 222007;
inline constexpr int SuggestSeparators = 222008;
inline constexpr int CheckBeforeQuiz = 222009;
inline constexpr int CheckedEntries = 222010;
inline constexpr int UndoGroup = 222011;
inline constexpr int UndoSteps = 222012;
inline constexpr int UndoStepsHint = 222013;
inline constexpr int AlwaysUnicode = 222014;
inline constexpr int NewListLanguage1 = 223001;
inline constexpr int NewListLanguage2 = 223002;
inline constexpr int NewListAuthor = 223003;
inline constexpr int NewListComments = 223004;
inline constexpr int NewListFileName = 223005;
inline constexpr int NewListPreview = 223006;
inline constexpr int NewListVariables = 223007;
inline constexpr int ShowNumbers = 224001;
inline constexpr int ShowNotes = 224002;
inline constexpr int ShowFields = 224003;
inline constexpr int ViewMenuHint = 224004;
inline constexpr int PropertiesTitle = 225000;
inline constexpr int PropertiesGeneralPage = 225001;
inline constexpr int PropertiesQuestionsPage = 225002;
inline constexpr int ListLanguage1 = 226001;
inline constexpr int ListLanguage2 = 226002;
inline constexpr int ListAuthor = 226003;
inline constexpr int ListComments = 226004;
inline constexpr int ListFile = 226005;
inline constexpr int ListEntryCount = 226006;
inline constexpr int ListFlagged = 226007;
inline constexpr int ListWithoutFile = 226008;
inline constexpr int AdaptQuestion = 227001;
inline constexpr int QuestionVariables = 227002;
inline constexpr int QuestionExample = 227003;
inline constexpr int FrameMenuBar = 300001;
inline constexpr int FrameMoreButtons = 300002;
inline constexpr int FrameStatusBar = 300003;
inline constexpr int SpecialCharactersTitle = 346000;
inline constexpr int SpecialCharacterSet = 346001;
inline constexpr int SpecialCharacterList = 346002;
inline constexpr int SpecialCharacterDocking = 346003;
inline constexpr int SpecialCharacter = 346004;
inline constexpr int CharacterWithName = 346005;
inline constexpr int AddOwnCharacter = 346006;
inline constexpr int OwnCharacterAdded = 346007;
inline constexpr int OwnCharactersHelp = 346008;

/// The caption of a command.
inline constexpr int Caption(int commandId)
{
    return 100000 + commandId;
}

}
