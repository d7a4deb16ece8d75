// SPDX-License-Identifier: MIT
// Chooses the 500 puzzles of a new stock from a large pool. Used by `stock new`.
//
// The generator makes puzzles blindly, so most scores of a level lie close together and some techniques
// turn up once in many thousand puzzles. A pool of a million or more is therefore made and rated first, of
// which only score and techniques are kept; the chosen puzzles are made again from their attempt's number.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/stock_table.h"
#include "stock/puzzle_maker.h"

namespace kestrel {

// What the pool remembers of a puzzle.
struct PoolPuzzle {
  std::uint64_t attempt = 0;
  std::int32_t score = 0;
  std::uint32_t techniques = 0;  // bit s: the technique of display slot s was needed
  bool Needs(int slot) const { return (techniques >> static_cast<unsigned>(slot) & 1U) != 0; }
  friend bool operator==(const PoolPuzzle&, const PoolPuzzle&) = default;
};

// Puzzles by level; index 0 is level 1.
using Pool = std::array<std::vector<PoolPuzzle>, kLevels>;

// Adds a puzzle to its level; one of level 6 is left out.
void AddToPool(Pool& pool, const RatedPuzzle& puzzle);

// A technique is to occur in this many puzzles of the stock, if the pool has so many.
inline constexpr int kWantedPerTechnique = 5;

// Takes 100 puzzles of every level, ascending by score. The scores are spread: all that occur in the pool are
// taken equally often; where that does not come out even, those at even distances once more. Then techniques
// that occur in too few puzzles are brought in from the whole pool, each in place of the puzzle nearest in
// score. The pool's order does not matter. A level with fewer than 100 puzzles in the pool gives what it has.
Pool ChooseStock(const Pool& pool);

// How many of the puzzles need the technique of a display slot (0..21).
int CountWith(const Pool& pool, int slot);

// True when the puzzle can be solved with the techniques of tiers below `level` alone, tried in the order of
// the table or in one of several others.
bool SolvableBelow(int level, const DigitGrid& givens);

struct MadeStock {
  StockTable stock;
  Pool chosen;
  std::string error;  // why there is no stock; else empty
};

// Chooses from a pool of attempts of `seed`, makes the puzzles again and fills a stock with them. Puzzles
// that are the same in disguise, or that SolvableBelow finds too easy, are taken out of the pool.
MadeStock MakeStock(Pool pool, std::uint64_t seed);

}  // namespace kestrel
