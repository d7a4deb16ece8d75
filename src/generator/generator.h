// SPDX-License-Identifier: MIT
// Makes puzzles with exactly one solution and half-turn symmetry. Used by the level renewal, the command line
// and the tools.
#pragma once

#include "core/grid.h"
#include "core/random_source.h"
#include "core/yield.h"
#include "generator/outcome.h"

namespace kestrel {

// For the same seeds the same grids, puzzles and answers as the plain form that stands with the tests and says
// how they come about; this is the form that is fast. One object must not be used by two threads at once.
class Generator {
 public:
  // Takes a seed at the start of each of the two making calls. `seeds` must outlive the generator.
  explicit Generator(SeedSource& seeds) : seeds_(seeds) {}

  DigitGrid SolutionGrid{};  // the full grid made last, 1..9; zeros before the first
  DigitGrid Givens{};        // the puzzle made last, 0 = empty

  // Fills SolutionGrid with a full valid grid. Asks `yield` before every step of the search. Stopped:
  // SolutionGrid is as it was.
  [[nodiscard]] Making MakeFullGrid(Yield& yield);

  // Fills Givens with a puzzle whose only solution is SolutionGrid, and from which no further pair of
  // opposite cells could be emptied. Asks `yield` at least once for every decision. Stopped: Givens is as it
  // was.
  [[nodiscard]] Making MakePuzzle(Yield& yield);

  // Several if `givens` (0..9, 0 = empty) have a second solution; Unique if they have one or none.
  [[nodiscard]] static Uniqueness HasUniqueSolution(const DigitGrid& givens, Yield& yield);

 private:
  SeedSource& seeds_;
  RandomSource random_{0};
};

}  // namespace kestrel
