// SPDX-License-Identifier: MIT
// Makes puzzles with exactly one solution and half-turn symmetry. Used by the level renewal, the command line
// and the tools.
#pragma once

#include "core/grid.h"
#include "core/random_source.h"
#include "core/yield.h"
#include "generator/outcome.h"
#include "generator/plain_generator.h"

namespace kestrel {

class Generator {
 public:
  // Takes a seed at the start of each of the two making calls. `seeds` must outlive the generator.
  explicit Generator(SeedSource& seeds) : plain_(seeds) {}

  DigitGrid SolutionGrid{};  // the full grid made last, 1..9; zeros before the first
  DigitGrid Givens{};        // the puzzle made last

  // Fills SolutionGrid with a full valid grid. Stopped: SolutionGrid is as it was.
  [[nodiscard]] Making MakeFullGrid(Yield& yield) {
    const Making made = plain_.MakeFullGrid(yield);
    SolutionGrid = plain_.SolutionGrid;
    return made;
  }

  // Fills Givens with a puzzle that SolutionGrid solves. Stopped: Givens is as it was.
  [[nodiscard]] Making MakePuzzle(Yield& yield) {
    plain_.SolutionGrid = SolutionGrid;
    const Making made = plain_.MakePuzzle(yield);
    Givens = plain_.Givens;
    return made;
  }

  // Whether `givens` (0..9, 0 = empty) have a second solution.
  [[nodiscard]] static Uniqueness HasUniqueSolution(const DigitGrid& givens, Yield& yield) {
    return PlainGenerator::HasUniqueSolution(givens, yield);
  }

 private:
  PlainGenerator plain_;
};

}  // namespace kestrel
