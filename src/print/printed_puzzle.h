// SPDX-License-Identifier: MIT
// A puzzle as the pages need it, from a stock or from anywhere else.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/grid.h"
#include "core/stock_table.h"

namespace kestrel {

struct PrintedPuzzle {
  DigitGrid givens{};
  DigitGrid solution{};                            // 0 where it is not known
  std::array<std::int16_t, kTechniques> counts{};  // by display slot
  int number = 0;
  std::string label;  // what stands before the number; may be empty
};

// `count` puzzles of a level 1..5 of a stock from number `first` on; all must be in 1..100.
std::vector<PrintedPuzzle> PuzzlesOfStock(const StockTable& stock, int level, int first, int count);

}  // namespace kestrel
