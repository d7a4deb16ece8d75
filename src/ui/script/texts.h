// SPDX-License-Identifier: MIT
// The texts of the script program: help and errors.
#pragma once

#include <string_view>

namespace kestrel::texts {

inline constexpr std::string_view kScriptHelp =
    R"(Usage: kestrel-sudoku-script [options] [FILE]

Plays the game by the lines of FILE (standard input without FILE) and prints what happens.

  --program DIR     the program folder: first stock, sounds, previews
  --home DIR        the user's local application data folder (required)
  --settings FILE   where the settings are kept (settings.ini in --home)
  --time HH:MM:SS   the time of day at the start (12:00:00)
  --seed N          what the random numbers start from (1)
  --no-sound        there is no sound device
  --no-printer      the printer cannot be reached
  --no-browser      no program is associated with HTML files
  --help            this text
  --version         the version
)";

inline constexpr std::string_view kNoCommand = "no such command: ";
inline constexpr std::string_view kNoControl = "no control can take this: ";
inline constexpr std::string_view kNoProperty = "no such control or property: ";
inline constexpr std::string_view kNoValue = "no such value: ";
inline constexpr std::string_view kBadArguments = "wrong arguments: ";
inline constexpr std::string_view kNoButton = "no open box takes this answer: ";
inline constexpr std::string_view kNoDialog = "no dialog is open";
inline constexpr std::string_view kNoOption = "no such option: ";
inline constexpr std::string_view kNeedsValue = "a value is missing after ";
inline constexpr std::string_view kBadValue = "not a value for ";
inline constexpr std::string_view kHomeMissing = "--home is missing";
inline constexpr std::string_view kOneScript = "more than one script file: ";

}  // namespace kestrel::texts
