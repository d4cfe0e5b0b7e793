// SPDX-License-Identifier: MIT
#pragma once

/// The numbers of texts that more than one folder asks for by name; those of one folder stand in its own header
/// of this name. One number space: 70001 to 70199 are texts of no window in particular, 99000 to 99099 menu
/// titles, 100000 + a command's id its caption, 200000 + 1000·d + k the k-th text of window d (k = 0 its
/// title). A command's own id is its status line and tool tip, separated by a line break.
namespace Text {

inline constexpr int OpenFilters = 61010;
inline constexpr int CannotSave = 61014;
inline constexpr int Note = 61041;
inline constexpr int NumberColumn = 62609;
inline constexpr int Cancel = 62800;
inline constexpr int Close = 62801;
inline constexpr int LongText = 70090;
inline constexpr int OpenTitle = 70137;
inline constexpr int HoldsWholeList = 70171;
inline constexpr int SavedWithoutCharacters = 203015;

}
