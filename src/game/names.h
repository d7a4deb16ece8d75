// SPDX-License-Identifier: MIT
// Sections and keys of the settings, and names of folders, that the main window uses.
#pragma once

#include <string_view>

namespace kestrel::names {

inline constexpr std::string_view kDataFolder = "KestrelSudoku";

inline constexpr std::string_view kOptions = "Options";
inline constexpr std::string_view kSounds = "Sounds";
inline constexpr std::string_view kLevel = "Level";
inline constexpr std::string_view kTrue = "True";
inline constexpr std::string_view kFalse = "False";
inline constexpr std::string_view kLastPuzzle = "Last_Puzzle";

}  // namespace kestrel::names
