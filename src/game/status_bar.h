// SPDX-License-Identifier: MIT
// The texts of the status bar. Used by opening and completion.
#pragma once

#include <cstdint>
#include <string>

#include "core/open_puzzle.h"
#include "core/stock_table.h"
#include "forms/main_window.h"
#include "players/players.h"

namespace kestrel {

// The best and the average time of a level, whole seconds, over its puzzles that have a best time; 0 and 0
// when none has.
struct LevelTimes {
  std::int32_t best = 0;
  std::int32_t average = 0;
};
LevelTimes TimesOfLevel(const StockTable& stock, int level);

// All five panels for the open puzzle, which was taken from `level`.
void ShowStatus(MainWindow& main, const OpenPuzzle& puzzle, const StockTable& stock, const Players& players,
                int level);

// Panel 3 with the best time and its holder, also when that is 0:00.
void ShowBestTime(MainWindow& main, const OpenPuzzle& puzzle, const Players& players);

// Panels 4 and 5: the level's best and average time.
void ShowLevelTimes(MainWindow& main, const StockTable& stock, int level);

}  // namespace kestrel
