// SPDX-License-Identifier: MIT
// What grids and puzzles are like, what a stop leaves.
#include "generator/generator.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "generator/support.h"
#include "support/test_puzzles.h"

namespace kestrel {
namespace {

TEST(Generator, PuzzlesAreSymmetricUniqueAndMinimalByPairs) {
  FixedSeeds seeds(42);
  Generator generator(seeds);
  StopAt yield(1'000'000);
  for (int i = 0; i < 15; ++i) {
    ASSERT_EQ(generator.MakeFullGrid(yield), Making::Made);
    const DigitGrid& solution = generator.SolutionGrid;
    for (int cell = 0; cell < kCells; ++cell) {
      ASSERT_EQ(FreeDigits(solution, cell), DigitBit(solution[cell])) << GridText(solution);
    }
    ASSERT_EQ(generator.MakePuzzle(yield), Making::Made);
    DigitGrid puzzle = generator.Givens;
    ASSERT_EQ(testing::CountFillings(puzzle, 2), 1);
    for (int cell = 0; cell < kCells; ++cell) {
      ASSERT_TRUE(puzzle[cell] == 0 || puzzle[cell] == solution[cell]);
      ASSERT_EQ(puzzle[cell] != 0, puzzle[80 - cell] != 0);
      if (cell > 40 || puzzle[cell] == 0) continue;
      puzzle[cell] = puzzle[80 - cell] = 0;
      EXPECT_EQ(testing::CountFillings(puzzle, 2), 2)
          << "cell " << cell << " of " << GridText(generator.Givens);
      puzzle = generator.Givens;
    }
  }
  EXPECT_GE(yield.Left(), 1'000'000 - 3058) << "more questions than it took";
}

// Stopped at the first, second, third ... question: nothing has changed, and no answer is made up.
TEST(Generator, StopsLeaveNothing) {
  FixedSeeds seeds(6);
  Generator generator(seeds);
  NeverStop yield;
  ASSERT_EQ(generator.MakeFullGrid(yield), Making::Made);
  ASSERT_EQ(generator.MakePuzzle(yield), Making::Made);
  const DigitGrid solution = generator.SolutionGrid;
  const DigitGrid givens = generator.Givens;

  const auto until_done = [&](auto call, auto stopped) {
    int n = 1;
    for (;; n += n < 200 ? 1 : 97) {
      StopAt stop(n);
      if (call(stop) != stopped) break;
      ASSERT_EQ(generator.SolutionGrid, solution) << n;
      ASSERT_EQ(generator.Givens, givens) << n;
    }
    EXPECT_GT(n, 5);
  };
  until_done([&](Yield& stop) { return Generator::HasUniqueSolution(givens, stop); }, Uniqueness::Stopped);
  until_done([&](Yield& stop) { return generator.MakePuzzle(stop); }, Making::Stopped);
  generator.Givens = givens;
  until_done([&](Yield& stop) { return generator.MakeFullGrid(stop); }, Making::Stopped);
}

}  // namespace
}  // namespace kestrel
