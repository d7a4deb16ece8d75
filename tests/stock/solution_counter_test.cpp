// SPDX-License-Identifier: MIT
#include "stock/solution_counter.h"

#include <gtest/gtest.h>

#include "support/test_puzzles.h"

namespace kestrel {
namespace {

using testing::CountSolutions;
using testing::GridFromText;

// Puzzles with one solution, and what becomes of them when givens are taken out or changed: brute force must
// find as many solutions, and the same one.
TEST(SolutionCounter, AgreesWithBruteForce) {
  RandomSource random(20240501);
  SolutionCounter counter;
  std::array<int, 3> seen{};
  for (int round = 0; round < 400; ++round) {
    DigitGrid puzzle = testing::MakeTestPuzzle(random);
    for (int change = 0; change < round % 4; ++change) {
      const int cell = random.Below(81);
      puzzle[cell] = static_cast<std::uint8_t>(round % 8 < 4 ? 0 : 1 + random.Below(9));
    }
    DigitGrid expected{};
    const int count = CountSolutions(puzzle, 2, &expected);
    const SolutionCount found = counter.Count(puzzle);
    ASSERT_EQ(found.count, count) << testing::TextFromGrid(puzzle);
    if (count != 1) expected = found.first;
    ASSERT_EQ(found.first, expected) << testing::TextFromGrid(puzzle);
    ++seen[static_cast<std::size_t>(count)];
  }
  for (const int count : seen) EXPECT_GT(count, 20);
}

TEST(SolutionCounter, ExtremeGrids) {
  SolutionCounter counter;
  EXPECT_EQ(counter.Count(DigitGrid{}).count, 2);
  DigitGrid grid{};
  grid[3] = 10;
  EXPECT_EQ(counter.Count(grid).count, 0);
  RandomSource random(5);
  grid = testing::MakeTestGrid(random);
  EXPECT_EQ(counter.Count(grid).first, grid);
  // Few givens and no solution: plain backtracking needs minutes here.
  grid = GridFromText(".....5.8....6.1.43..........1.5........1.6...3.......553.....61........4.........");
  EXPECT_EQ(counter.Count(grid).count, 0);
}

}  // namespace
}  // namespace kestrel
