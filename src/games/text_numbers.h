// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/text_numbers.h"

namespace Text {

inline constexpr int MoveWordsAround = 70018;
inline constexpr int MarkedRow = 212001;
inline constexpr int HowAnswersAreMoved = 212002;
inline constexpr int SpokenAlternative = 216001;
inline constexpr int GuessLetters = 217001;
inline constexpr int HangmanWord = 217002;
inline constexpr int SpokenHiddenLetter = 217003;
inline constexpr int SpokenSpace = 217004;
inline constexpr int TriedLetters = 217005;
inline constexpr int MissedLetter = 217006;

}
