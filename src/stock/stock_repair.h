// SPDX-License-Identifier: MIT
// Makes a damaged stock whole again. Used by `stock repair`.
#pragma once

#include <array>

#include "core/stock_table.h"
#include "stock/level_fill.h"

namespace kestrel {

// How many of a level's 100 records ...
struct LevelRepair {
  int good = 0;      // stay as they are
  int mended = 0;    // keep puzzle and best time; another field was wrong
  int restored = 0;  // come from the older copy
  int made = 0;      // are new puzzles
};

struct Repair {
  StockTable stock;
  std::array<LevelRepair, kLevels> levels{};
  [[nodiscard]] bool Changes() const;
};

// A record is good when its puzzle has just one solution, the stored one, and is of the level that it is filed
// under; score and counts are mended where they differ from what the solver finds, and a best time that makes
// no sense is cleared. Of two records with the same puzzle in disguise the first one stays. What is damaged is
// taken from the same place of `older`, if not null and good there, else replaced by a new puzzle whose score
// lies between its neighbours', if such a one can be had. Afterwards the scores ascend: if need be, records of
// a level change places.
Repair RepairStock(const StockTable& stock, const StockTable* older, const FillRun& run);

}  // namespace kestrel
