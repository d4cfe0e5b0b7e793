// SPDX-License-Identifier: MIT
#pragma once

/// The numbers of texts that code asks for by name. One number space: 70001 to 70199 are texts of no window in
/// particular, 99000 to 99099 menu titles, 100000 + a command's id its caption, 200000 + 1000·d + k the k-th
/// text of window d (k = 0 its title). A command's own id is its status line and tool tip, separated by a line
/// break.
namespace Text {

inline constexpr int VersionKey = 1;
inline constexpr int LanguageName = 2;
inline constexpr int LanguageAbbreviation = 3;
inline constexpr int ApplicationTitle = 57344;
inline constexpr int HelpPath = 60003;
inline constexpr int CannotOpenHelp = 60010;
inline constexpr int FirstRun = 60011;
inline constexpr int Language1 = 61000;
inline constexpr int Language2 = 61001;
inline constexpr int OpenFilters = 61010;
inline constexpr int CannotSave = 61014;
inline constexpr int SuggestedFileName = 61017;
inline constexpr int StandardComments = 61018;
inline constexpr int ProposeCorrection = 61023;
inline constexpr int OneFileAtATime = 61024;
inline constexpr int CannotOpen = 61025;
inline constexpr int ReadAsPlainText = 61026;
inline constexpr int NewerVersion = 61029;
inline constexpr int Note = 61041;
inline constexpr int ListSummary = 61106;
inline constexpr int StandardToolBar = 61140;
inline constexpr int NumberColumn = 62609;
inline constexpr int Cancel = 62800;
inline constexpr int Close = 62801;
inline constexpr int GlossaryFileType = 63201;
inline constexpr int ReallyAssociate = 63202;
inline constexpr int ReallyReset = 63203;
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
inline constexpr int EntrySelected = 70001;
inline constexpr int NewEntryRowSelected = 70002;
inline constexpr int EntriesSelected = 70003;
inline constexpr int NewEntry = 70004;
inline constexpr int SelectSimilar = 70005;
inline constexpr int ReallyDelete = 70006;
inline constexpr int Unnamed = 70030;
inline constexpr int SaveChanges = 70031;
inline constexpr int CannotStartMail = 70032;
inline constexpr int Right = 70033;
inline constexpr int CopiedToClipboard = 70036;
inline constexpr int QuizToolBar = 70060;
inline constexpr int OpenTitle = 70137;
inline constexpr int SaveAsTitle = 70138;
inline constexpr int Flagged = 70150;
inline constexpr int NotFlagged = 70151;
inline constexpr int Usage = 70152;
inline constexpr int UnknownSwitch = 70153;
inline constexpr int OneFileOnly = 70154;
inline constexpr int CommandLineHelp = 70155;
inline constexpr int OverwriteForeignChange = 70160;
inline constexpr int RecoverChanges = 70161;
inline constexpr int NoRecentFiles = 70162;
inline constexpr int SaveCopyTitle = 70163;

// Quiz
inline constexpr int AnswersOfTotal = 62120;
inline constexpr int ResultTitle = 62122;
inline constexpr int NoAnswers = 62127;
inline constexpr int Quoted = 62141;
inline constexpr int QuotedSeparator = 62142;
inline constexpr int WrongAnswers = 62146;
inline constexpr int RoundLine = 63000;
inline constexpr int RequizLineWithMaximum = 63001;
inline constexpr int RequizLine = 63002;
inline constexpr int AnswerAfterSkip = 63003;
inline constexpr int AllRightAnswers = 63004;
inline constexpr int AnswerAfterWrong = 63005;
inline constexpr int ReallyEndQuiz = 63006;
inline constexpr int StandardQuestion = 63010;
inline constexpr int Statistics = 63050;
inline constexpr int WordLine = 63051;
inline constexpr int RightLine = 63052;
inline constexpr int QuizTitle = 63060;
inline constexpr int SkipButton = 63070;
inline constexpr int AnswerButton = 63071;
inline constexpr int ResultButton = 63074;
inline constexpr int ResultSummary = 70017;

// Menu titles
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

inline constexpr int Caption(int commandId)
{
    return 100000 + commandId;
}

// Windows
inline constexpr int AboutTitle = 201000;
inline constexpr int AboutName = 201001;
inline constexpr int AboutPurpose = 201002;
inline constexpr int AboutLicence = 201003;
inline constexpr int QuizQuestion = 202001;
inline constexpr int QuizAnswer = 202002;
inline constexpr int QuizWordProgress = 202003;
inline constexpr int QuizRightProgress = 202004;
inline constexpr int ResultRightShare = 203001;
inline constexpr int ResultEntries = 203002;
inline constexpr int ResultPercent = 203003;
inline constexpr int LanguageList = 204001;
inline constexpr int FrameMenuBar = 300001;
inline constexpr int FrameMoreButtons = 300002;
inline constexpr int FrameStatusBar = 300003;
inline constexpr int ViewList = 301000;
inline constexpr int ViewAuthor = 301001;
inline constexpr int ViewComments = 301002;
inline constexpr int FieldLanguage1 = 301003;
inline constexpr int FieldLanguage2 = 301004;
inline constexpr int FieldNote = 301005;
inline constexpr int ClearFieldsButton = 301006;
inline constexpr int AddButton = 301007;
inline constexpr int ChangeButton = 301008;
inline constexpr int NewEntryRow = 301009;
inline constexpr int CellEditor = 301010;
inline constexpr int SpecialCharactersTitle = 346000;
inline constexpr int SpecialCharacterSet = 346001;
inline constexpr int SpecialCharacterList = 346002;
inline constexpr int SpecialCharacterDocking = 346003;
inline constexpr int SpecialCharacter = 346004;
inline constexpr int CharacterWithCode = 346005;
inline constexpr int AddOwnCharacter = 346006;
inline constexpr int OwnCharacterAdded = 346007;

}
