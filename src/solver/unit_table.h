// SPDX-License-Identifier: MIT
// The 27 units under one numbering, and who sees whom. Used by the solver state and the techniques.
//
//   unit 0..8    row 0..8         position = column
//   unit 9..17   column 0..8      position = row
//   unit 18..26  box 0..8         position = row-major inside the box
#pragma once

#include <array>
#include <cstdint>

#include "core/cell_set.h"
#include "core/grid.h"
#include "solver/finding.h"

namespace kestrel {

inline constexpr int kUnits = 27;
inline constexpr int kFirstColumn = 9;
inline constexpr int kFirstBox = 18;

// A set of units, bit u for unit u.
using UnitMask = std::uint32_t;
inline constexpr UnitMask kAllUnits = (UnitMask{1} << 27U) - 1;
inline constexpr UnitMask kRowAndColumnUnits = (UnitMask{1} << 18U) - 1;

// A set of positions 0..8 inside a unit, bit p for position p.
using PositionMask = std::uint16_t;
constexpr PositionMask PositionBit(int position) {
  return static_cast<PositionMask>(1U << static_cast<unsigned>(position));
}

// A set of digits or positions less those of another.
constexpr std::uint16_t Without(std::uint16_t set, unsigned gone) {
  return static_cast<std::uint16_t>(set & ~gone);
}

struct UnitTables {
  std::array<std::array<std::uint8_t, kUnitSize>, kUnits> cell{};  // [unit][position]
  std::array<std::array<std::uint8_t, 3>, kCells> unit{};          // [cell] -> its row, column, box unit
  std::array<std::array<PositionMask, 3>, kCells> position{};      // [cell] -> its bit in each of them
  std::array<UnitMask, kCells> units{};                            // [cell] -> the three units as a set
  std::array<CellSet, kUnits> cells{};                             // [unit] -> its nine cells
  std::array<CellSet, kCells> peers{};                             // [cell] -> the 20 cells that see it

  constexpr UnitTables() {
    for (int i = 0; i < kUnitSize; ++i) {
      for (int p = 0; p < kUnitSize; ++p) {
        SetCell(i, p, RowCell[i][p]);
        SetCell(kFirstColumn + i, p, RowCell[p][i]);
        SetCell(kFirstBox + i, p, BoxCell[i][p]);
      }
    }
    for (int c = 0; c < kCells; ++c) {
      for (const int u : unit[c]) peers[c] |= cells[u];
      peers[c].Remove(c);
    }
  }

 private:
  constexpr void SetCell(int u, int p, int c) {
    cell[u][p] = static_cast<std::uint8_t>(c);
    unit[c][u / 9] = static_cast<std::uint8_t>(u);
    position[c][u / 9] = PositionBit(p);
    units[c] |= UnitMask{1} << static_cast<unsigned>(u);
    cells[u].Add(c);
  }
};

inline constexpr UnitTables kUnitTables{};

// The unit (0..26) of kind 0 row, 1 column, 2 box that holds the cell (0..80).
constexpr int UnitOf(int cell, int kind) {
  return kUnitTables.unit[cell][kind];
}

// The unit of that number in the words of a Finding.
constexpr Unit NamedUnit(int unit) {
  return {static_cast<UnitKind>(unit / 9 + 1), unit % 9};
}

}  // namespace kestrel
