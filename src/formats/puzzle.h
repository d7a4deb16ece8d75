// SPDX-License-Identifier: MIT
// A puzzle as files tell it. Used by all readers and writers of puzzle formats.
#pragma once

#include <array>
#include <optional>

#include "core/grid.h"

namespace kestrel {

using CandidateGrid = std::array<CandidateMask, kCells>;

// How far a puzzle has been solved, where a file says so.
struct PuzzleState {
  DigitGrid digits{};          // the givens and what was placed since
  CandidateGrid candidates{};  // of the cells without a digit; 0 for the others
};

struct Puzzle {
  DigitGrid givens{};  // 0 = empty cell
  std::optional<PuzzleState> state;
};

// The candidates of the empty cells that no digit in row, column or box rules out.
CandidateGrid CandidatesOf(const DigitGrid& digits);

// The state of a candidate grid. A lone digit counts as placed unless some cell that sees it still has the digit as a
// candidate: then it is a single that waits to be found.
PuzzleState StateOfCandidates(const CandidateGrid& shown);

}  // namespace kestrel
