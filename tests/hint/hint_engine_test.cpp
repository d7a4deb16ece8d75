// SPDX-License-Identifier: MIT
#include "hint/hint_engine.h"

#include <gtest/gtest.h>

#include <set>

#include "solver/solver.h"
#include "support/test_puzzles.h"

namespace kestrel::testing {
namespace {

// A puzzle as it stands when it was just opened: all marks that the givens leave.
OpenPuzzle Opened(const DigitGrid& givens, int level) {
  OpenPuzzle puzzle;
  puzzle.GivenDigits = puzzle.CurrentDigits = givens;
  CountSolutions(givens, 1, &puzzle.SolutionDigits);
  puzzle.PuzzleLevel = static_cast<std::int16_t>(level);
  const SolverState state(givens);
  for (int cell = 0; cell < kCells; ++cell) puzzle.PencilMask[cell] = state.CellMask(cell);
  return puzzle;
}

const DigitGrid kHard =
    GridFromText("8......2.2.7135.....4.9.5..74....8......7......1....46..3.5.9.....3192.4.2......1");

HintCode Find(const OpenPuzzle& puzzle) {
  NeverStop yield;
  return FindHint(puzzle, yield).value();
}

TEST(FindHint, NamesTheFirstMistake) {
  OpenPuzzle puzzle = Opened(kHard, 3);
  puzzle.CurrentDigits[40] = static_cast<std::uint8_t>(puzzle.SolutionDigits[40] % 9 + 1);
  EXPECT_EQ(Find(puzzle), 23 + 40);
  puzzle.PencilMask[3] &= static_cast<CandidateMask>(~DigitBit(puzzle.SolutionDigits[3]));
  EXPECT_EQ(Find(puzzle), 104 + 3);
  puzzle.PuzzleLevel = 1;
  EXPECT_EQ(Find(puzzle), 104 + 3);
  puzzle = Opened(kHard, 3);
  puzzle.PencilMask[80] = 0;  // a given shows no marks
  EXPECT_EQ(Find(puzzle), 1);
  puzzle.SolutionDigits[1] = 0;  // only a foreign stock file has such solutions
  EXPECT_EQ(Find(puzzle), 104 + 1);
  puzzle.SolutionDigits[1] = 77;
  EXPECT_EQ(Find(puzzle), 104 + 1);
}

TEST(FindHint, HasNothingToSay) {
  OpenPuzzle puzzle = Opened(kHard, 2);
  EXPECT_EQ(Find(puzzle), 185);
  puzzle.CurrentDigits = puzzle.SolutionDigits;
  EXPECT_EQ(Find(puzzle), 0);
  puzzle = Opened(kHard, 3);
  puzzle.PencilMask.fill(kAllDigits);  // nothing follows from a board where every mark is shown
  puzzle.CurrentDigits.fill(0);
  EXPECT_EQ(Find(puzzle), 0);
}

// Following the hints leads through the puzzle as the rating went, and the player's board is never touched.
TEST(FindHint, AgreesWithTheRatingStepByStep) {
  RandomSource random(11);
  std::set<HintCode> seen;
  for (int i = 0; i < 200; ++i) {
    const DigitGrid givens = MakeTestPuzzle(random);
    OpenPuzzle puzzle = Opened(givens, 5);
    SolverState state(givens);
    for (int step = 1; step != 0 && !state.Solved();) {
      const OpenPuzzle before = puzzle;
      const HintCode hint = Find(puzzle);
      ASSERT_EQ(puzzle, before);
      step = StepOf(FirstTechnique(state, givens));
      ASSERT_EQ(hint, step) << TextFromGrid(givens);
      seen.insert(hint);
      for (int cell = 0; cell < kCells; ++cell) {
        puzzle.CurrentDigits[cell] = static_cast<std::uint8_t>(state.CellValue(cell));
        puzzle.PencilMask[cell] = state.CellMask(cell);
      }
    }
  }
  EXPECT_GT(seen.size(), 10);
}

}  // namespace
}  // namespace kestrel::testing
