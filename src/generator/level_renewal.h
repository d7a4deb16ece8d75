// SPDX-License-Identifier: MIT
// Replacing the 100 puzzles of a level, as far as it concerns the puzzles: making, dropping, filing. Used by
// the main window's renewal and by the command line.
//
// A level is in ascending order of score. While it is being renewed, number 100 as it was is the floor, with
// score 0. A new puzzle goes above it, and everything below the new one moves down, number 1 out of the
// stock:
//
//    start         old  old  ...  old  floor
//    3 filed       old  ...  old  floor  new  new  new        ascending from the floor on
//    100 filed     new  new  ...                   new
#pragma once

#include <cstdint>

#include "core/grid.h"
#include "core/random_source.h"
#include "core/stock_table.h"
#include "core/yield.h"
#include "generator/generator.h"
#include "solver/technique_table.h"

namespace kestrel {

// A puzzle that has been made and rated.
struct RatedNewPuzzle {
  DigitGrid givens{};
  DigitGrid solution{};
  int level = 0;  // 1..5
  std::int32_t score = 0;
  TechniqueCounters counters{};
};

enum class RoundResult : std::uint8_t {
  Kept,     // the puzzle has the level asked for
  Dropped,  // it has not
  Stopped,  // the yield said stop; nothing is known of the puzzle
};

// Makes one puzzle with `generator` and rates it. `level` 1..5: only a puzzle of this level is kept, and the
// rating of one that turns out to be above it is given up; 0: every puzzle that the techniques solve is kept.
// `puzzle` is written only when the result is Kept.
[[nodiscard]] RoundResult GenerateRound(Generator& generator, int level, Yield& yield,
                                        RatedNewPuzzle& puzzle);

// Makes number 100 of a level (1..5) the floor.
void SetFloor(StockTable& stock, int level);

// Files the puzzle into its level: above the highest record that scores less, so below its equals. The lowest
// record is dropped, those up to the place move down, and the place is filled but for Reserved1 and the
// counts of techniques above the level, which stay as they were. Returns the number, 1..100; 0, and nothing
// filed, when no record scores less, which cannot be while the floor is there.
int FilePuzzle(StockTable& stock, const RatedNewPuzzle& puzzle);

// The seeds for puzzle `number` of the run that belongs to `seed`. Each puzzle has its own, so it is the same
// in whatever order, and by however many threads, the puzzles of the run are made.
[[nodiscard]] FixedSeeds PuzzleOfRun(std::uint64_t seed, std::uint64_t number);

}  // namespace kestrel
