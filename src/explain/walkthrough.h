// SPDX-License-Identifier: MIT
// A whole puzzle explained: how the solver solves it, step by step, and a page that shows it. Used by the command line
// and, after a puzzle has ended, by the game.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
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
};

// Solves the puzzle and keeps every step; nothing when the yield said stop. Givens are 0..9 and are not checked.
// `start` is a position of the puzzle to go on from; null: the givens.
std::optional<Walkthrough> ExplainPuzzle(const DigitGrid& givens, Yield& yield,
                                         const SolverState* start = nullptr);

// Which singles get a picture of their own.
enum class Singles : std::uint8_t {
  Gathered,  // runs of singles share one picture
  Each,
};

// One HTML page, whole in itself: no script, nothing to fetch, the pictures inside as SVG; light or dark as the
// reader's system is. Elements with the id "step-N" tell of step N (from 1), each beginning with its technique's name.
std::string WalkthroughPage(const Walkthrough& walkthrough, Singles singles = Singles::Gathered);

}  // namespace kestrel
