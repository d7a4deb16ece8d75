// SPDX-License-Identifier: MIT
// What may still be otherwise than in a given full grid. Used by the fast form of the generator.
//
// The question is always the same: some digits of a full grid, the reference, are given; is there another
// grid with these givens? Everything is therefore told by its difference from the reference.
//
// A grid obeys 324 constraints of four kinds: every cell has a digit, and every row, column and box has every
// digit. In the reference each of them is met by exactly one cell, and each cell meets one of every kind. So
// a constraint can be named by that cell: a board of 81 bits covers a kind, and in all four kinds bit i
// stands for the constraint that cell i meets in the reference.
//
//    reference: cell i in row r, column c, box b has digit d
//      kind Cell     bit i:  cell i has a digit       alternative k:  digit k + 1 instead
//      kind Row      bit i:  row r has digit d        alternative k:  in column k of row r instead
//      kind Column   bit i:  column c has digit d     alternative k:  in row k of column c instead
//      kind Box      bit i:  box b has digit d        alternative k:  at position k of box b instead
//
// Bit i of board k of a kind: constraint i can still be met by alternative k. A candidate (a digit in a cell
// that is not the reference's) thus has one bit in each kind. Which constraints have no alternative left is
// an OR over nine boards, for all 81 at once; and naked singles (kind Cell) and hidden singles (the other
// three) are the same thing.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"
#include "generator/bit_board.h"

namespace kestrel {

enum ConstraintKind : std::uint8_t { kCellKind, kRowKind, kColumnKind, kBoxKind };
inline constexpr int kKinds = 4;

// A full valid grid with its boards.
class ReferenceGrid {
 public:
  // IsFullGrid(grid) must hold.
  explicit ReferenceGrid(const DigitGrid& grid);

  // Of one digit. The negated boards save an operation where bits are cleared.
  struct DigitBoards {
    BitBoard cells;  // the nine cells that have it
    BitBoard not_cells;
    std::array<BitBoard, 3> not_in_band;   // all but those of its cells that lie in these three rows
    std::array<BitBoard, 3> not_in_stack;  // ... in these three columns
  };

  // The digit of a cell, less one.
  [[nodiscard]] int Index(int cell) const { return index_[cell]; }
  [[nodiscard]] const DigitBoards& Digit(int index) const { return digits_[index]; }

 private:
  std::array<std::uint8_t, kCells> index_{};
  std::array<DigitBoards, 9> digits_;
};

// A value, copied wherever a search divides: 592 bytes.
class Alternatives {
 public:
  // Nothing is given: every alternative is left.
  explicit Alternatives(const ReferenceGrid& reference);

  // Gives the reference digits of `cells` and closes under singles: where no alternative is left, the
  // reference digit follows. `reference` is the grid of the constructor. The closing ends early when nothing
  // of `wanted` is undecided any more; Undecided is then the only use of the state.
  void Give(const ReferenceGrid& reference, BitBoard cells, BitBoard wanted);

  // The cells whose reference digit is neither given nor has followed.
  [[nodiscard]] BitBoard Undecided() const { return reference_; }

 protected:
  // Digit index + 1 goes into the cell: clears the candidates that this rules out, except that the four
  // constraints met by it keep what bits they have. The reference digit or another, it is the same.
  void RuleOut(const ReferenceGrid& reference, int cell, int index);

  std::array<std::array<BitBoard, 9>, kKinds> other_;  // by kind and k, as drawn above
  BitBoard reference_;  // the constraints that the reference digit can still meet
};

}  // namespace kestrel
