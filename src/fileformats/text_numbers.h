// SPDX-License-Identifier: MIT
#pragma once

/// Texts that the formats are named by; who shows them asks the string table.
namespace Text {

inline constexpr int FormatGlossary = 246001;
inline constexpr int FormatWordQuiz = 246002;
inline constexpr int FormatPlainText = 246003;
inline constexpr int FormatSeparatedText = 246004;
inline constexpr int FormatKvtml = 246005;
inline constexpr int FormatAnkiText = 246006;
inline constexpr int FormatDictionary = 246007;
/// The text of a kind of loss is this one and the number of the kind; it has the count.
inline constexpr int FirstLoss = 246020;

}
