// SPDX-License-Identifier: MIT
// The fast form of the generator against the plain one, and both against a count of solutions.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "generator/generator.h"
#include "generator/support.h"
#include "support/plain_generator.h"
#include "support/test_puzzles.h"

namespace kestrel {
namespace {

TEST(Comparison, SameGridsAndPuzzlesFromTheSameSeeds) {
  constexpr std::uint64_t kSeed = 20240531;
  FixedSeeds plain_seeds(kSeed);
  FixedSeeds fast_seeds(kSeed);
  PlainGenerator plain(plain_seeds);
  Generator fast(fast_seeds);
  NeverStop yield;
  for (int i = 0; i < 5000; ++i) {
    ASSERT_EQ(plain.MakeFullGrid(yield), Making::Made);
    ASSERT_EQ(fast.MakeFullGrid(yield), Making::Made);
    ASSERT_EQ(TextOf(fast.SolutionGrid), TextOf(plain.SolutionGrid)) << "grid " << i << " of " << kSeed;
    ASSERT_EQ(plain.MakePuzzle(yield), Making::Made);
    ASSERT_EQ(fast.MakePuzzle(yield), Making::Made);
    ASSERT_EQ(TextOf(fast.Givens), TextOf(plain.Givens)) << "puzzle " << i << " of " << kSeed;
  }
}

// Such grids do not come from MakeFullGrid, but the answer is the same.
TEST(Comparison, SamePuzzlesFromGridsThatAreNotFull) {
  FixedSeeds plain_seeds(5);
  FixedSeeds fast_seeds(5);
  PlainGenerator plain(plain_seeds);
  Generator fast(fast_seeds);
  NeverStop yield;
  ASSERT_EQ(plain.MakePuzzle(yield), Making::Made);
  ASSERT_EQ(fast.MakePuzzle(yield), Making::Made);
  EXPECT_EQ(fast.Givens, plain.Givens);
  EXPECT_EQ(fast.Givens, DigitGrid{});

  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(plain.MakeFullGrid(yield), Making::Made);
    ASSERT_EQ(fast.MakeFullGrid(yield), Making::Made);
    for (int hole = 0; hole <= i % 4; ++hole) plain.SolutionGrid[(7 * i + 13 * hole) % kCells] = 0;
    fast.SolutionGrid = plain.SolutionGrid;
    ASSERT_EQ(plain.MakePuzzle(yield), Making::Made);
    ASSERT_EQ(fast.MakePuzzle(yield), Making::Made);
    EXPECT_EQ(TextOf(fast.Givens), TextOf(plain.Givens)) << i;
  }
}

void ExpectSameAnswer(const DigitGrid& givens) {
  NeverStop yield;
  const Uniqueness expected =
      testing::CountFillings(givens, 2) < 2 ? Uniqueness::Unique : Uniqueness::Several;
  EXPECT_EQ(PlainGenerator::HasUniqueSolution(givens, yield), expected) << "plain, " << TextOf(givens);
  EXPECT_EQ(Generator::HasUniqueSolution(givens, yield), expected) << "fast, " << TextOf(givens);
}

// Puzzles and what becomes of them when givens go, change or clash.
TEST(Comparison, SameUniquenessOfGoodBadAndSillyGrids) {
  constexpr std::uint64_t kSeed = 77;
  FixedSeeds seeds(kSeed);
  Generator made(seeds);
  RandomSource random(kSeed);
  NeverStop yield;
  std::array<int, 3> solutions{};
  for (int i = 0; i < 150; ++i) {
    ASSERT_EQ(made.MakeFullGrid(yield), Making::Made);
    ASSERT_EQ(made.MakePuzzle(yield), Making::Made);
    ExpectSameAnswer(made.Givens);

    DigitGrid grid = made.Givens;
    for (int gone = 0; gone < 1 + i % 3; ++gone) grid[random.Below(kCells)] = 0;
    ExpectSameAnswer(grid);

    // Another digit that clashes with no given: mostly impossible, sometimes with other solutions.
    const int cell = random.Below(kCells);
    grid = made.Givens;
    grid[cell] = 0;
    const CandidateMask free = FreeDigits(grid, cell) & ~DigitBit(made.SolutionGrid[cell]);
    if (free != 0) grid[cell] = static_cast<std::uint8_t>(LowestDigit(free));
    for (int gone = 0; gone < i % 4; ++gone) grid[random.Below(kCells)] = 0;
    ExpectSameAnswer(grid);
    ++solutions[testing::CountFillings(grid, 2)];

    // A clash: the same digit twice in a row, a column or a box, so that the unit lacks another one.
    grid = made.SolutionGrid;
    const int other = std::array{9 * (cell / 9) + (cell + 4) % 9, (cell + 36) % kCells,
                                 CellBoxStart[cell] + (cell == CellBoxStart[cell] ? 10 : 0)}[i % 3];
    for (int gone = 0; gone < 30; ++gone) grid[random.Below(kCells)] = 0;
    grid[cell] = grid[other] = made.SolutionGrid[cell];
    ExpectSameAnswer(grid);
  }
  EXPECT_TRUE(solutions[0] > 3 && solutions[1] > 3 && solutions[2] > 3)
      << solutions[0] << ' ' << solutions[1] << ' ' << solutions[2];
}

TEST(Comparison, SameUniquenessOfPuzzlesThatAreHardToSearch) {
  const std::vector<std::string> puzzles = {
      // Seventeen givens, one solution.
      "000000010400000000020000000000050407008000300001090000300400200050100000000806000",
      // Known for needing deep chains.
      "100007090030020008009600500005300900010080002600004000300000010040000007007000300",
      // Seventeen givens, the last one changed.
      "000000010400000000020000000000050407008000300001090000300400200050100000000807000",
      // A cell without a digit; a row without a place for 9; nothing given; one given.
      "123456780000000009" + std::string(63, '0'),
      "123000000000900000000000900" + std::string(54, '0'),
      std::string(81, '0'),
      std::string(40, '0') + "5" + std::string(40, '0'),
  };
  for (const std::string& puzzle : puzzles) ExpectSameAnswer(GridOf(puzzle));
}

}  // namespace
}  // namespace kestrel
