// SPDX-License-Identifier: MIT
// The fast form of filling a full grid. Used by Generator.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"
#include "core/yield.h"
#include "generator/outcome.h"
#include "generator/random_order.h"

namespace kestrel {

// Takes the very steps of a plain backtracking engine from an empty grid, so that it ends with the same digits, but does
// not count the allowed digits of every open cell at every step. It keeps one 16-bit key per cell, and the
// smallest key names the cell that the engine would choose:
//
//    bit   15   14             12..8              7..0
//          0    cell filled    allowed digits     80 - position in CellOrder
//
// Fewest digits first, of those the highest position, filled cells behind all open ones. A smallest key with
// no allowed digit is an open cell that cannot be filled: the forward check. Eight keys fit into one 128-bit
// register, so that placing a digit and finding the smallest key is one pass over eleven registers.
class FullGridSearch {
 public:
  static constexpr int kLanes = 88;  // 81 cells, filled up to whole registers
  using Keys = std::array<std::int16_t, kLanes>;

  explicit FullGridSearch(const CellList& order);

  // Fills the grid. Asks `yield` before every step.
  [[nodiscard]] Making Fill(Yield& yield);
  // The full grid, after Fill has made it.
  [[nodiscard]] const DigitGrid& Digits() const { return digits_; }

 private:
  void Step();
  void ChooseCell();
  void Place(int cell, int digit);
  void GiveBack(int cell, int digit);
  [[nodiscard]] CandidateMask Allowed(int cell) const;

  alignas(16) Keys keys_{};
  // By digit - 1: one digit, as it counts in a key, for every cell whose row, column and box allow it.
  alignas(16) std::array<Keys, 9> allowed_{};
  int lowest_;  // the smallest key, as Place leaves it
  std::array<CandidateMask, 9> row_allows_{};
  std::array<CandidateMask, 9> col_allows_{};
  std::array<CandidateMask, 9> box_allows_{};
  CellList CellOrder;
  DigitGrid digits_{};
  int p_ = kCells - 1;
};

}  // namespace kestrel
