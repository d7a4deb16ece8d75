// SPDX-License-Identifier: MIT
#include "generator/alternatives.h"

#include <cstdint>

#include "generator/board_tables.h"

namespace kestrel {

ReferenceGrid::ReferenceGrid(const DigitGrid& grid) {
  for (int cell = 0; cell < kCells; ++cell) {
    index_[cell] = static_cast<std::uint8_t>(grid[cell] - 1);
    digits_[index_[cell]].cells |= kBoards.cell[cell];
  }
  for (DigitBoards& digit : digits_) {
    digit.not_cells = ~digit.cells;
    for (int i = 0; i < 3; ++i) {
      digit.not_in_band[i] = ~(digit.cells & kBoards.band[i]);
      digit.not_in_stack[i] = ~(digit.cells & kBoards.stack[i]);
    }
  }
}

Alternatives::Alternatives(const ReferenceGrid& reference) : reference_(kBoards.all) {
  for (int k = 0; k < 9; ++k) {
    other_[kCellKind][k] = kBoards.all & reference.Digit(k).not_cells;
    other_[kRowKind][k] = BitBoard(kBoards.all) - BitBoard(kBoards.column[k]);
    other_[kColumnKind][k] = BitBoard(kBoards.all) - BitBoard(kBoards.row[k]);
    other_[kBoxKind][k] = BitBoard(kBoards.all) - BitBoard(kBoards.position[k]);
  }
}

// Which bits a digit d in a cell clears, kind by kind. T is the board of the nine constraints of d.
//   Cell:    d in the 20 cells that see it.
//   Row:     board "column k" says who may stand in column k. For its own column: the constraints of its row
//            (another digit in this cell) and T (d elsewhere in this column). For the other two columns of
//            its box: T in the three rows of the box.
//   Column:  the same with rows and columns exchanged.
//   Box:     board "position k". For its own position: the constraints of its box. For the positions in the
//            same row of the box: T in the three boxes beside each other; in the same column of the box: T in
//            the three boxes above each other.
//
// The hottest place of the generator, so the boards are read without the containers' check of the index: with it, making
// puzzles takes 4 % longer. `cell` and `index` are checked once, and everything else comes from the table of the cell.
void Alternatives::RuleOut(const ReferenceGrid& reference, int cell, int index) {
  const CellBoards& at = kCellBoards[cell];
  const ReferenceGrid::DigitBoards& digit = reference.Digit(index);
  const BitBoard not_in_band = digit.not_in_band.data()[at.band];
  const BitBoard not_in_stack = digit.not_in_stack.data()[at.stack];

  BitBoard* columns = other_[kRowKind].data();
  BitBoard* rows = other_[kColumnKind].data();
  BitBoard* positions = other_[kBoxKind].data();
  other_[kCellKind].data()[index] &= at.not_seen;
  for (int i = 0; i < 3; ++i) {
    columns[at.box_column + i] &= not_in_band;
    rows[at.box_row + i] &= not_in_stack;
    positions[at.row_start + i] &= not_in_band;
    positions[at.column_start + 3 * i] &= not_in_stack;
  }
  columns[at.column] &= digit.not_cells & at.not_row;
  rows[at.row] &= digit.not_cells & at.not_column;
  positions[at.position] &= at.not_box;
}

// Flat, because the compiler stops to put RuleOut in here once it holds a check.
[[gnu::flatten]] void Alternatives::Give(const ReferenceGrid& reference, BitBoard cells, BitBoard wanted) {
  BitBoard next = cells & reference_;
  for (;;) {
    reference_ -= next;
    if (!(wanted & reference_).Any()) return;
    next.ForEach([&](int cell) { RuleOut(reference, cell, reference.Index(cell)); });
    BitBoard in_all_kinds = kBoards.all;
    for (const std::array<BitBoard, 9>& boards : other_) {
      BitBoard any = boards[0];
      for (int k = 1; k < 9; ++k) any |= boards[k];
      in_all_kinds &= any;
    }
    next = reference_ - in_all_kinds;
    if (!next.Any()) return;
  }
}

}  // namespace kestrel
