// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/text_numbers.h"

namespace Text {

inline constexpr int MoveWordsAround = 70018;
inline constexpr int MarkedRow = 212001;
inline constexpr int HowAnswersAreMoved = 212002;
inline constexpr int YourTurn = 70070;
inline constexpr int SecondsLeft = 70071;
inline constexpr int TimeIsUp = 70072;
inline constexpr int FinalStanding = 70073;
inline constexpr int Winner = 70074;
inline constexpr int DrawBetween = 70075;
inline constexpr int FindPairs = 70080;
inline constexpr int Moves = 70081;
inline constexpr int SpokenAlternative = 216001;
inline constexpr int GuessLetters = 217001;
inline constexpr int HangmanWord = 217002;
inline constexpr int SpokenHiddenLetter = 217003;
inline constexpr int SpokenSpace = 217004;
inline constexpr int TriedLetters = 217005;
inline constexpr int MissedLetter = 217006;
inline constexpr int ContestTitle = 241000;
inline constexpr int PlayerName = 241001;
inline constexpr int AddPlayer = 241002;
inline constexpr int RemovePlayer = 241003;
inline constexpr int MovePlayerUp = 241004;
inline constexpr int MovePlayerDown = 241005;
inline constexpr int TimeToThink = 241006;
inline constexpr int SecondsUnit = 241007;
inline constexpr int StartContest = 241008;
inline constexpr int Players = 241009;
inline constexpr int NameTaken = 241010;
inline constexpr int NameTooLong = 241011;
inline constexpr int TooManyPlayers = 241012;
inline constexpr int TooFewPlayers = 241013;
inline constexpr int Player = 241020;
inline constexpr int Points = 241021;
inline constexpr int Answers = 241022;
inline constexpr int Scores = 241023;
inline constexpr int BeginTurn = 241024;
inline constexpr int BeginTurnHint = 241025;
inline constexpr int OneSecondLeft = 241026;
inline constexpr int TimeLeft = 241027;
inline constexpr int Place = 241030;
inline constexpr int PercentOfAnswers = 241031;
inline constexpr int Percentage = 241032;
inline constexpr int NameAfterName = 241033;
inline constexpr int LastNameAfterNames = 241034;
inline constexpr int Speed = 242001;
inline constexpr int PauseButton = 242002;
inline constexpr int ContinueGame = 242003;
inline constexpr int PlayField = 242004;
inline constexpr int FallingPaused = 242005;
inline constexpr int AnyKeyGoesOn = 242006;
inline constexpr int EmptyFallingWord = 242007;
inline constexpr int PairsFound = 243001;
inline constexpr int SpokenCard = 243002;
inline constexpr int SpokenTurnedCard = 243003;
inline constexpr int SpokenSolvedCard = 243004;
inline constexpr int NoPair = 243005;
inline constexpr int CardsOnBoard = 243006;
inline constexpr int QuestionCard = 243007;
inline constexpr int AnswerCard = 243008;

}
