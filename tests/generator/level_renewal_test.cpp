// SPDX-License-Identifier: MIT
// Filing new puzzles, and the rounds that make them.
#include "generator/level_renewal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/text.h"
#include "generator/support.h"
#include "solver/solver.h"

namespace kestrel {
namespace {

constexpr int kLevel = 3;

// Scores 10, 20 ... 1000 in each level; every field tells level and number.
StockTable MakeStock() {
  StockTable stock;
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      SudokuRecord& record = stock(level, number);
      const auto tag = static_cast<std::int16_t>(RecordNumber(level, number));
      record.Level = static_cast<std::int16_t>(level);
      record.Reserved1 = tag;
      record.Reserved2 = record.BestMinutes = record.BestSeconds = record.BestPlayer = tag;
      record.GivenCells.fill(static_cast<std::uint8_t>(number % 10));
      record.TechniqueCount.fill(tag);
      record.Score = 10 * number;
    }
  }
  return stock;
}

RatedNewPuzzle PuzzleOfScore(std::int32_t score, int level = kLevel) {
  RatedNewPuzzle puzzle;
  puzzle.givens.fill(7);
  puzzle.solution.fill(8);
  puzzle.level = level;
  puzzle.score = score;
  for (int counter = 0; counter < kTechniques; ++counter) {
    puzzle.counters[counter] = static_cast<std::int16_t>(1000 + counter);
  }
  return puzzle;
}

TEST(FilePuzzle, GoesAboveAllThatScoreLess) {
  struct Case {
    std::int32_t score;
    int place;
  };
  // Equal to number 50: below it. Above all: number 100. Below all: no place.
  for (const Case& expected :
       {Case{505, 50}, {500, 49}, {501, 50}, {1001, 100}, {1000, 99}, {11, 1}, {10, 0}}) {
    const StockTable before = MakeStock();
    StockTable stock = before;
    EXPECT_EQ(FilePuzzle(stock, PuzzleOfScore(expected.score)), expected.place) << expected.score;
    for (int level = 1; level <= kLevels; ++level) {
      for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
        if (level == kLevel && number == expected.place) continue;
        const int from = level == kLevel && number < expected.place ? number + 1 : number;
        EXPECT_EQ(stock(level, number), before(level, from)) << expected.score << " number " << number;
      }
    }
    if (expected.place > 0) {
      EXPECT_EQ(stock(kLevel, expected.place).Score, expected.score);
    }
  }
}

TEST(FilePuzzle, FillsTheRecordUpToItsLevel) {
  constexpr std::array<int, 6> kSlots = {0, 2, 4, 10, 16, 22};
  // The counter of every display slot, written out.
  constexpr std::array<int, kTechniques> kCounters = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10,
                                                      11, 14, 15, 12, 13, 16, 17, 18, 19, 21, 20};
  for (int level = 1; level <= kLevels; ++level) {
    const StockTable before = MakeStock();
    StockTable stock = before;
    ASSERT_EQ(FilePuzzle(stock, PuzzleOfScore(305, level)), 30);
    SudokuRecord expected;
    expected.Level = static_cast<std::int16_t>(level);
    expected.Reserved1 = before(level, 30).Reserved1;
    expected.Score = 305;
    expected.GivenCells.fill(7);
    expected.SolutionCells.fill(8);
    for (int slot = 0; slot < kTechniques; ++slot) {
      expected.TechniqueCount[slot] = slot < kSlots[level] ? static_cast<std::int16_t>(1000 + kCounters[slot])
                                                           : before(level, 30).TechniqueCount[slot];
    }
    EXPECT_EQ(stock(level, 30), expected) << "level " << level;
  }
}

TEST(GenerateRound, KeepsJustTheLevelAskedFor) {
  NeverStop yield;
  std::array<int, 6> kept{};
  for (std::uint64_t number = 0; number < 300; ++number) {
    FixedSeeds seeds = PuzzleOfRun(8, number);
    Generator generator(seeds);
    RatedNewPuzzle any;
    const RoundResult result = GenerateRound(generator, 0, yield, any);
    const Rating rating = SolveAndRate(generator.Givens, yield);
    ASSERT_EQ(result, rating.level <= kLevels ? RoundResult::Kept : RoundResult::Dropped);
    if (result == RoundResult::Kept) {
      EXPECT_EQ(any.givens, generator.Givens);
      EXPECT_EQ(any.solution, generator.SolutionGrid);
      EXPECT_EQ(any.counters, rating.counters);
      EXPECT_EQ(any.score, PuzzleScore(rating.level, rating.counters));
      ++kept[any.level];
    }
    for (int level = 1; level <= kLevels; ++level) {
      FixedSeeds again = PuzzleOfRun(8, number);
      Generator other(again);
      RatedNewPuzzle puzzle;
      const RoundResult expected = rating.level == level ? RoundResult::Kept : RoundResult::Dropped;
      ASSERT_EQ(GenerateRound(other, level, yield, puzzle), expected) << number << " level " << level;
      EXPECT_EQ(GridText(puzzle.givens), GridText(expected == RoundResult::Kept ? any.givens : DigitGrid{}));
    }
  }
  for (int level = 1; level <= 4; ++level) EXPECT_GT(kept[level], 0) << level;
}

}  // namespace
}  // namespace kestrel
