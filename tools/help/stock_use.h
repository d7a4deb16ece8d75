// SPDX-License-Identifier: MIT
// Which puzzles of a stock need which technique. Used for the help pages.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/stock_table.h"

namespace kestrel::help {

struct TechniqueUse {
  std::array<std::vector<int>, kLevels> puzzles;  // by level 1..5 less one: the numbers, ascending
  std::array<int, kLevels> times{};               // how often in all of them together
};

// The stock of a file's bytes; nothing when it is not the length of a stock.
std::optional<StockTable> StockOfBytes(std::span<const std::uint8_t> bytes);

// Where the technique is needed.
TechniqueUse UseOf(const StockTable& stock, Technique technique);

// "3, 7 to 9 and 12"; of a level's 100 numbers "all", or "all but 5 and 77" when few are missing.
// Neighbours are joined from three on.
std::string NumberList(const std::vector<int>& numbers);

// The level's name, 1..5.
std::string_view LevelName(int level);

}  // namespace kestrel::help
