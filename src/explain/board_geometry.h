// SPDX-License-Identifier: MIT
// Where things stand in the pictures: the window's geometry, in pixels; only the headers stand closer to the board.
#pragma once

#include "core/grid.h"
#include "explain/svg.h"
#include "solver/finding.h"

namespace kestrel::geometry {

inline constexpr double kLeft = 42;
inline constexpr double kTop = 40;
inline constexpr double kPitch = 56;
inline constexpr double kBoxGap = 8;
inline constexpr double kCellSize = 49;
inline constexpr double kMarkPitch = 16;
inline constexpr double kInnerGap = 3.5;  // half the space between two cells, and ...
inline constexpr double kOuterGap = 7.5;  // ... between two boxes

// From the edge of the board to the edge of row or column i (0..8).
constexpr double Along(int i) {
  const int box = i / 3;
  return kPitch * i + kBoxGap * box;
}
constexpr Point CellCorner(int cell) {
  return {kLeft + Along(CellCol[cell]), kTop + Along(CellRow[cell])};
}
constexpr Point CellMiddle(int cell) {
  const Point corner = CellCorner(cell);
  return {corner.x + kCellSize / 2, corner.y + kCellSize / 2};
}
constexpr Point MarkMiddle(int cell, int digit) {
  const Point corner = CellCorner(cell);
  const int row = (digit - 1) / 3;
  const int column = (digit - 1) % 3;
  return {corner.x + kMarkPitch * column + 8.5, corner.y + kMarkPitch * row + 8.5};
}
// Where a grid line runs: before line i of cells (0..9).
constexpr double GridLine(double start, int i) {
  if (i == 9) return start + Along(8) + kCellSize + kOuterGap;
  return start + Along(i) - (i % 3 == 0 ? kOuterGap : kInnerGap);
}

// A rectangle of cells, grid line to grid line.
struct Area {
  int row;
  int column;
  int rows;
  int columns;
  [[nodiscard]] constexpr Point Corner() const { return {GridLine(kLeft, column), GridLine(kTop, row)}; }
  [[nodiscard]] constexpr double Width() const { return GridLine(kLeft, column + columns) - Corner().x; }
  [[nodiscard]] constexpr double Height() const { return GridLine(kTop, row + rows) - Corner().y; }
};
constexpr Area AreaOf(Unit unit) {
  if (unit.kind == UnitKind::Row) return {unit.index, 0, 1, 9};
  if (unit.kind == UnitKind::Column) return {0, unit.index, 9, 1};
  return {unit.index / 3 * 3, unit.index % 3 * 3, 3, 3};
}
// What two units that cross have in common; empty areas have no rows or no columns.
constexpr Area Common(const Area& a, const Area& b) {
  const int row = a.row > b.row ? a.row : b.row;
  const int column = a.column > b.column ? a.column : b.column;
  const int row_end = a.row + a.rows < b.row + b.rows ? a.row + a.rows : b.row + b.rows;
  const int column_end =
      a.column + a.columns < b.column + b.columns ? a.column + a.columns : b.column + b.columns;
  return {row, column, row_end > row ? row_end - row : 0, column_end > column ? column_end - column : 0};
}

}  // namespace kestrel::geometry
