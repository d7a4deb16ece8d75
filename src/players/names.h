// SPDX-License-Identifier: MIT
// Section and keys of the players in the settings.
#pragma once

#include <string>
#include <string_view>

#include "core/text.h"

namespace kestrel::names {

inline constexpr std::string_view kPlayers = "Players";
inline constexpr std::string_view kCount = "Count";
inline constexpr std::string_view kLastPlayer = "Last_Player";

// "Player01" of player 1; also what an unnamed player is called.
inline std::string PlayerKey(int number) {
  return "Player" + TwoDigits(number);
}

}  // namespace kestrel::names
