// SPDX-License-Identifier: MIT
// The fast form of the generator against the plain one, and both against a count of solutions.
#include <gtest/gtest.h>

#include <array>

#include "core/text.h"
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
    ASSERT_EQ(GridText(fast.SolutionGrid), GridText(plain.SolutionGrid)) << "grid " << i << " of " << kSeed;
    ASSERT_EQ(plain.MakePuzzle(yield), Making::Made);
    ASSERT_EQ(fast.MakePuzzle(yield), Making::Made);
    ASSERT_EQ(GridText(fast.Givens), GridText(plain.Givens)) << "puzzle " << i << " of " << kSeed;
  }
}

void ExpectSameAnswer(const DigitGrid& givens) {
  NeverStop yield;
  const Uniqueness expected =
      testing::CountFillings(givens, 2) < 2 ? Uniqueness::Unique : Uniqueness::Several;
  EXPECT_EQ(PlainGenerator::HasUniqueSolution(givens, yield), expected) << "plain, " << GridText(givens);
  EXPECT_EQ(Generator::HasUniqueSolution(givens, yield), expected) << "fast, " << GridText(givens);
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

}  // namespace
}  // namespace kestrel
