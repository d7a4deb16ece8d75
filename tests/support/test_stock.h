// SPDX-License-Identifier: MIT
// A stock of 500 puzzles that is the same for ever, made from one puzzle a level by renaming digits and
// turning the grid. Used by the tests of the game; the shipped stock may change without breaking them.
#pragma once

#include "core/stock_table.h"

namespace kestrel::testing {

// Every puzzle has one solution and its level. Number n of level L: Score 100 L + n, Reserved1 1000 L + n,
// Reserved2 -n, and in every slot that the level may use the count (n + slot) mod 7. No best times, but for
// level 3: number 1 has 1:30 and number 2 has 2:01, both of player 1.
StockTable MakeTestStock();

// The one that comes with the game.
StockTable ShippedStock();

}  // namespace kestrel::testing
