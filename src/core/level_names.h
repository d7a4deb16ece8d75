// SPDX-License-Identifier: MIT
// What the player calls the levels 1 to 5.
#pragma once

#include <array>
#include <string_view>

#include "core/stock_table.h"

namespace kestrel {

inline constexpr std::array<std::string_view, kLevels> kLevelNames{"Very Easy", "Easy", "Medium", "Hard",
                                                                   "Very Hard"};

}  // namespace kestrel
