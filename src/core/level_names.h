// SPDX-License-Identifier: MIT
// What the player calls the levels 1 to 5.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "core/stock_table.h"

namespace kestrel {

inline constexpr std::array<std::string_view, kLevels> kLevelNames{"Very Easy", "Easy", "Medium", "Hard",
                                                                   "Very Hard"};

// The name of a level 1..5.
constexpr std::string_view LevelName(int level) {
  return kLevelNames.at(static_cast<std::size_t>(level - 1));
}

}  // namespace kestrel
