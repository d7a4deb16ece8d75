// SPDX-License-Identifier: MIT
#include "hint/hint_engine.h"

#include <algorithm>

#include "solver/solver.h"

namespace kestrel {

namespace {

// The code of the first cell that the player has got wrong, kNoHint when there is none. A solution that is no
// digit, which only a foreign stock file can have, has no mark that could be shown.
HintCode FindMistake(const OpenPuzzle& puzzle) {
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = puzzle.CurrentDigits[cell];
    const int solution = puzzle.SolutionDigits[cell];
    if (digit > 0 && digit != solution) return static_cast<HintCode>(kFirstWrongDigit + cell);
    const bool has_mark = solution >= 1 && solution <= 9 && HasDigit(puzzle.PencilMask[cell], solution);
    if (digit == 0 && !has_mark) return static_cast<HintCode>(kFirstErasedMark + cell);
  }
  return kNoHint;
}

}  // namespace

std::optional<HintCode> FindHint(const OpenPuzzle& puzzle, Yield& yield) {
  const HintCode mistake = FindMistake(puzzle);
  if (mistake != kNoHint) return mistake;
  if (std::ranges::find(puzzle.CurrentDigits, 0) == puzzle.CurrentDigits.end()) return kNoHint;
  if (puzzle.PuzzleLevel < 3) return kNoHintsAtThisLevel;
  // Events may run inside the yield: from here on only the copies count.
  SolverState state(puzzle.CurrentDigits, puzzle.PencilMask);
  const DigitGrid givens = puzzle.GivenDigits;
  if (!yield.KeepGoing()) return std::nullopt;
  return static_cast<HintCode>(StepOf(FirstTechnique(state, givens)));
}

}  // namespace kestrel
