// SPDX-License-Identifier: MIT
// The errors of the script program.
#pragma once

#include <string_view>

namespace kestrel::texts {

inline constexpr std::string_view kNoCommand = "no such command: ";
inline constexpr std::string_view kNoControl = "no control can take this: ";
inline constexpr std::string_view kNoProperty = "no such control or property: ";
inline constexpr std::string_view kNoValue = "no such value: ";
inline constexpr std::string_view kBadArguments = "wrong arguments: ";
inline constexpr std::string_view kNoButton = "no open box takes this answer: ";
inline constexpr std::string_view kNoDialog = "no dialog is open";
inline constexpr std::string_view kHomeMissing = "the folder to play in is missing, name it with '--home'";

}  // namespace kestrel::texts
