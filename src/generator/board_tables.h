// SPDX-License-Identifier: MIT
// Constant boards and, for every cell, which boards of Alternatives it touches. Used by the fast form of the
// generator.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"
#include "generator/bit_board.h"

namespace kestrel {

struct ConstantBoards {
  BoardBits all;
  std::array<BoardBits, kCells> cell;  // just this cell
  std::array<BoardBits, 9> row, column, box, position;
  std::array<BoardBits, 3> band, stack;
};

inline constexpr ConstantBoards kBoards = [] {
  ConstantBoards boards;
  boards.all = BoardBits::Where([](int) { return true; });
  for (int i = 0; i < kCells; ++i) boards.cell[i] = BoardBits::Where([i](int cell) { return cell == i; });
  for (int i = 0; i < 9; ++i) {
    boards.row[i] = BoardBits::Where([i](int cell) { return CellRow[cell] == i; });
    boards.column[i] = BoardBits::Where([i](int cell) { return CellCol[cell] == i; });
    boards.box[i] = BoardBits::Where([i](int cell) { return CellBox[cell] == i; });
    boards.position[i] =
        BoardBits::Where([i](int cell) { return CellRow[cell] % 3 * 3 + CellCol[cell] % 3 == i; });
  }
  for (int i = 0; i < 3; ++i) {
    boards.band[i] = BoardBits::Where([i](int cell) { return CellRow[cell] / 3 == i; });
    boards.stack[i] = BoardBits::Where([i](int cell) { return CellCol[cell] / 3 == i; });
  }
  return boards;
}();

// What Alternatives::RuleOut needs to know of a cell.
struct CellBoards {
  BoardBits not_seen;                      // all but the 20 cells that see it
  BoardBits not_row, not_column, not_box;  // all but the cells of its unit
  std::uint8_t band, stack;                // 0..2
  std::uint8_t row, column, position;      // 0..8; position in its box
  std::uint8_t box_row, box_column;        // the first row and column of its box
  std::uint8_t row_start, column_start;    // the first position of its row, its column of the box
};

inline constexpr std::array<CellBoards, kCells> kCellBoards = [] {
  std::array<CellBoards, kCells> all{};
  for (int i = 0; i < kCells; ++i) {
    CellBoards& at = all[i];
    const int row = CellRow[i];
    const int column = CellCol[i];
    const auto narrow = [](int value) { return static_cast<std::uint8_t>(value); };
    at.not_seen = BoardBits::Where([i](int cell) {
      return cell == i ||
             (CellRow[cell] != CellRow[i] && CellCol[cell] != CellCol[i] && CellBox[cell] != CellBox[i]);
    });
    at.not_row = BoardBits::Where([i](int cell) { return CellRow[cell] != CellRow[i]; });
    at.not_column = BoardBits::Where([i](int cell) { return CellCol[cell] != CellCol[i]; });
    at.not_box = BoardBits::Where([i](int cell) { return CellBox[cell] != CellBox[i]; });
    at.band = narrow(row / 3);
    at.stack = narrow(column / 3);
    at.row = narrow(row);
    at.column = narrow(column);
    at.position = narrow(row % 3 * 3 + column % 3);
    at.box_row = narrow(row / 3 * 3);
    at.box_column = narrow(column / 3 * 3);
    at.row_start = narrow(row % 3 * 3);
    at.column_start = narrow(column % 3);
  }
  return all;
}();

}  // namespace kestrel
