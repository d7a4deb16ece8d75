// SPDX-License-Identifier: MIT
// What grids and puzzles are like, what a stop leaves.
#include "generator/generator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "generator/random_order.h"
#include "generator/support.h"
#include "support/test_puzzles.h"

namespace kestrel {
namespace {

// The promise to whoever notes a seed: its puzzles do not change.
TEST(Generator, FirstPuzzlesOfASeed) {
  FixedSeeds seeds(1);
  Generator generator(seeds);
  NeverStop yield;
  ASSERT_EQ(generator.MakeFullGrid(yield), Making::Made);
  ASSERT_EQ(generator.MakePuzzle(yield), Making::Made);
  EXPECT_EQ(TextOf(generator.SolutionGrid),
            "981573426375624918246198357637259841154786293892431675728345169569812734413967582");
  EXPECT_EQ(TextOf(generator.Givens),
            "901070006000004008200198000607000041000000000890000605000345009500800000400060502");
  ASSERT_EQ(generator.MakeFullGrid(yield), Making::Made);
  ASSERT_EQ(generator.MakePuzzle(yield), Making::Made);
  EXPECT_EQ(TextOf(generator.Givens),
            "000900304007400010000031009000080030706000405020090000500270000060003500401006000");
}

TEST(Generator, ListsTakeTheirDrawsInPairs) {
  RandomSource drawn(9);
  RandomSource counted(9);
  const CellList all = FullGridOrder(drawn);
  CellList expected = CellsInOrder();
  for (int i = 0; i < 500; ++i) {
    const int first = static_cast<int>(81 * counted.Next());
    std::swap(expected[first], expected[static_cast<int>(81 * counted.Next())]);
  }
  EXPECT_EQ(all, expected);
  const CellList pairs = PairOrder(drawn);
  for (int i = 0; i < 400; ++i) (void)counted.NextBits();
  EXPECT_EQ(drawn.NextBits(), counted.NextBits());
  CellList sorted = pairs;
  std::sort(sorted.begin(), sorted.begin() + kPairs);
  EXPECT_EQ(sorted, CellsInOrder());
  EXPECT_NE(pairs, CellsInOrder());
}

TEST(Generator, PuzzlesAreSymmetricUniqueAndMinimalByPairs) {
  FixedSeeds seeds(42);
  Generator generator(seeds);
  NeverStop yield;
  for (int i = 0; i < 15; ++i) {
    ASSERT_EQ(generator.MakeFullGrid(yield), Making::Made);
    const DigitGrid& solution = generator.SolutionGrid;
    for (int cell = 0; cell < kCells; ++cell) {
      ASSERT_EQ(FreeDigits(solution, cell), DigitBit(solution[cell])) << TextOf(solution);
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
          << "cell " << cell << " of " << TextOf(generator.Givens);
      puzzle = generator.Givens;
    }
  }
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
