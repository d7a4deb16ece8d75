// SPDX-License-Identifier: MIT
// The digit lens: while the pointer rests on a digit or a pencil mark, what has the same digit stands out,
// and the cell's row, column and box a little. It tells nothing about right or wrong. Used by the board of
// the window.
#pragma once

#include <optional>

#include "core/cell_set.h"
#include "forms/main_window.h"

namespace kestrel {

struct DigitLens {
  int cell = 0;        // under the pointer
  int digit = 0;       // 1..9
  bool marks = false;  // marks of the digit stand out as well: where they are candidates, not keys

  // The cells of the row, column and box under the pointer, its own included.
  [[nodiscard]] CellSet Lines() const;
  // The cells that show the digit, as digit or as mark.
  [[nodiscard]] CellSet DigitsOf(const MainWindow& main) const;
  [[nodiscard]] CellSet MarksOf(const MainWindow& main) const;

  friend bool operator==(const DigitLens&, const DigitLens&) = default;
};

// The lens over `cell`, where `mark` is the digit of the visible mark under the pointer, 0 for none: the
// cell's digit, or else the mark's. Nothing where there is neither, or no puzzle is open.
std::optional<DigitLens> LensOver(const MainWindow& main, int cell, int mark, bool marks_are_candidates);

}  // namespace kestrel
