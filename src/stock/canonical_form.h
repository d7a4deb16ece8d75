// SPDX-License-Identifier: MIT
// Tells whether two puzzles are the same puzzle in disguise. Used when a stock is made and checked.
#pragma once

#include <compare>

#include "core/grid.h"

namespace kestrel {

// The one puzzle that stands for all its disguises.
struct CanonicalPuzzle {
  DigitGrid solution{};
  DigitGrid givens{};
  friend auto operator<=>(const CanonicalPuzzle&, const CanonicalPuzzle&) = default;
};

// The digits may be renamed, the grid rotated and reflected, the bands, the rows inside a band, the stacks
// and the columns inside a stack permuted: 2 x 6^4 x 6^4 = 3,359,232 ways besides the names. All of them give
// the same canonical form, and puzzles that are not disguises of each other give different ones: it is the
// least of all disguised solutions, read as an 81-digit number (the "minlex" form), and under the disguises
// that reach it the least givens.
// `solution` must be a complete valid grid, `givens` must agree with it (0 = empty). Takes well below a
// millisecond.
CanonicalPuzzle CanonicalForm(const DigitGrid& givens, const DigitGrid& solution);

}  // namespace kestrel
