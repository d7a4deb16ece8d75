// SPDX-License-Identifier: MIT
// Finds everything that is wrong with a stock. Used by `stock verify` and the tests.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/stock_table.h"

namespace kestrel {

struct StockFault {
  int level;         // 1..5
  int number;        // 1..100
  std::string text;  // "level is 3 instead of 4"
};

// Checks every puzzle: the numbers in its fields, exactly one solution (by SolutionCounter, not by the
// generator) and that one stored, level, score and counts as the solver rates it now; and the stock: scores
// that ascend within a level, no two puzzles the same in disguise (CanonicalForm). Faults come in the order
// of the stock. `progress` is told now and then how many puzzles of 500 have been checked.
std::vector<StockFault> CheckStock(const StockTable& stock, int jobs,
                                   const std::function<void(int checked)>& progress);

}  // namespace kestrel
