// SPDX-License-Identifier: MIT
// A whole puzzle explained: how the solver solves it, step by step. Used by the pages that show it.
#pragma once

#include <optional>
#include <vector>

#include "core/yield.h"
#include "explain/example.h"
#include "solver/solver.h"

namespace kestrel {

struct Walkthrough {
  DigitGrid givens{};
  Rating rating;
  // Every step with the position before it, in order; the techniques are those of a trace.
  std::vector<Example> steps;

  // The position before step i, and behind the last step the one at the end; then the finding is empty.
  [[nodiscard]] Example PositionAt(std::size_t i) const;
};

// Solves the puzzle and keeps every step; nothing when the yield said stop. Givens are 0..9 and are not checked.
// `start` is a position of the puzzle to go on from; null: the givens.
std::optional<Walkthrough> ExplainPuzzle(const DigitGrid& givens, Yield& yield,
                                         const SolverState* start = nullptr);

}  // namespace kestrel
