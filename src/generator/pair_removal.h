// SPDX-License-Identifier: MIT
// The fast form of emptying a full grid pair by pair. Used by Generator.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "core/grid.h"
#include "core/yield.h"
#include "generator/alternatives.h"
#include "generator/line_cycles.h"
#include "generator/outcome.h"
#include "generator/random_order.h"

namespace kestrel {

// Decides for the 41 pairs of a full grid, in the order given, which can go without the puzzle getting a
// second solution. The answers are those of trying one pair after the other, but they are found together.
//
// Givens never add solutions, so what follows from some givens follows from more. When the turn of a pair
// comes, the puzzle still has one solution, the full grid; the pair can go exactly if both its digits follow
// from the other givens: from the pairs kept before it and all pairs behind it.
//
// An interval of the order is decided over one state, in which the pairs kept before the interval and all
// pairs behind it are given, and none of its own:
//   - a pair whose digits follow already here goes, whatever becomes of the others;
//   - a pair at its front that is needed by a cycle of two lines stays;
//   - of the rest, the first half is decided over a copy of the state with the second half given, then the
//     second half over a copy with what was kept of the first given.
// States only ever gain givens on the way down, so no work is undone and none done twice in a branch. A
// single pair whose digits do not follow by singles is left to a search for a grid that differs there. Of 41
// pairs some 27 go at sight, 7 stay for a cycle and 7 after a search.
class PairRemoval {
 public:
  // `solution` is a full valid grid; `order` has one cell of every pair in positions 0..40.
  PairRemoval(const DigitGrid& solution, const CellList& order, Yield& yield);

  // Decides all pairs. Asks `yield` at every interval and every step of a search.
  [[nodiscard]] Making Run();
  // After Run: the puzzle.
  [[nodiscard]] DigitGrid Puzzle() const;

 private:
  using Places = std::span<std::uint8_t>;  // places in the order, ascending

  [[nodiscard]] Making Decide(Alternatives& known, Places places);
  [[nodiscard]] Making DecideOne(Alternatives& known, int place);
  [[nodiscard]] Places Undecided(const Alternatives& known, Places places) const;
  [[nodiscard]] int KeepForCycles(Places places);
  void Keep(int place);
  [[nodiscard]] BitBoard CellsOf(Places places) const;

  const DigitGrid& solution_;
  const CellList& order_;
  ReferenceGrid reference_;
  LineCycles cycles_;
  Yield& yield_;
  BitBoard kept_;
};

}  // namespace kestrel
