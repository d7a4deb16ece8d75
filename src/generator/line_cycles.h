// SPDX-License-Identifier: MIT
// Small unavoidable sets of a full grid. Used by the fast form of the generator.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"
#include "generator/random_order.h"

namespace kestrel {

// An unavoidable set is a set of cells whose digits can be moved about inside it so that another valid grid
// comes out: a puzzle that gives none of its cells has a second solution, without any search. The sets found
// here lie in two rows of one band, or two columns of one stack. Go from a digit in the lower row to the same
// digit in the upper row and down again, until the starting point is reached:
//
//    columns    a b c d e f g h i
//    row 1      1 2 3 4 5 6 7 8 9        1 -> 4 -> 1   columns a d        cells a1 d1 a2 d2
//    row 2      4 5 6 1 2 7 8 9 3        2 -> 5 -> 2   columns b e        cells b1 e1 b2 e2
//                                        3 -> 6 -> 7 -> 8 -> 9 -> 3       columns c f g h i
//
// The two rows have the same digits in such columns, so they can be exchanged there.
//
// Sets are numbered 0..63, and held the other way round: for each pair of cells that may be emptied together,
// the bits of the sets that lose a given with it. Whether some set has no given left is then one operation.
class LineCycles {
 public:
  // `order`: one cell of every pair in positions 0..40, in the order in which the pairs will be tried.
  LineCycles(const DigitGrid& grid, const CellList& order);

  // Whether the puzzle would have a second solution without the pair at `place` of the order, 0..40: of the
  // pairs before it those that Keep has been told of are given, and all pairs behind it.
  [[nodiscard]] bool NeedPair(int place) const { return ~(kept_ | behind_[place + 1]) != 0; }
  void Keep(int place) { kept_ |= of_pair_[place]; }

 private:
  static constexpr int kMost = 64;  // more than this (hardly ever) are left out

  std::array<std::uint64_t, kPairs> of_pair_{};
  std::array<std::uint64_t, kPairs + 1> behind_{};  // of all pairs from this place on; unused bits are set
  std::uint64_t kept_ = 0;
};

}  // namespace kestrel
