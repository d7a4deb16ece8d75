// SPDX-License-Identifier: MIT
// The numbering of the 9 x 9 grid, its lookup tables and sets of digits. Used by everything.
//
//   cell = 9 x row + column            box = 3 x (row div 3) + (column div 3)
//
//        c0 c1 c2  c3 c4 c5  c6 c7 c8
//    r0   0  1  2   3  4  5   6  7  8        boxes   0 1 2
//    r1   9 10 11  12 13 14  15 16 17                3 4 5
//    r2  18 19 20  21 22 23  24 25 26                6 7 8
//    ...
//    r8  72 73 74  75 76 77  78 79 80
//
// Rows, columns and boxes are the 27 units; a position inside a box is row-major, as the boxes are.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace kestrel {

inline constexpr int kCells = 81;
inline constexpr int kUnitSize = 9;

// 81 digits by cell; 0 is an empty cell.
using DigitGrid = std::array<std::uint8_t, kCells>;

// A set of digits: bit d-1 stands for digit d (1..9).
using CandidateMask = std::uint16_t;
inline constexpr CandidateMask kAllDigits = 511;

constexpr CandidateMask DigitBit(int digit) {
  return static_cast<CandidateMask>(1U << static_cast<unsigned>(digit - 1));
}
constexpr bool HasDigit(CandidateMask mask, int digit) {
  return (mask & DigitBit(digit)) != 0;
}
// The smallest digit of a set that is not empty, 1..9.
constexpr int LowestDigit(CandidateMask mask) {
  return std::countr_zero(mask) + 1;
}

// The lookup tables between cells, rows, columns and boxes. Every index starts at 0.
struct ConversionTables {
  using PerCell = std::array<std::int16_t, kCells>;
  using PerUnit = std::array<std::array<std::int16_t, kUnitSize>, kUnitSize>;

  PerCell CellRow{};
  PerCell CellCol{};
  PerCell CellBox{};
  PerCell CellBoxStart{};                          // top-left cell of the cell's box
  PerUnit RowCell{};                               // [row][position]; read as [position][column] for a column
  PerUnit RowColBox{};                             // [row][column] -> box
  std::array<std::int16_t, kUnitSize> BoxStart{};  // top-left cell of the box
  PerUnit BoxCell{};                               // [box][position] -> cell
  std::array<std::int16_t, 512> BitCount{};        // mask 0..511 -> number of digits in it

  constexpr ConversionTables() { InitConversionArrays(); }

  // Fills all tables. Calling it again gives the same contents.
  constexpr void InitConversionArrays();

  friend constexpr bool operator==(const ConversionTables&, const ConversionTables&) = default;
};

constexpr void ConversionTables::InitConversionArrays() {
  const auto narrow = [](int value) { return static_cast<std::int16_t>(value); };
  for (int cell = 0; cell < kCells; ++cell) {
    CellRow[cell] = narrow(cell / 9);
    CellCol[cell] = narrow(cell % 9);
    CellBox[cell] = narrow(3 * (cell / 27) + (cell % 9) / 3);
    CellBoxStart[cell] = narrow(27 * (cell / 27) + 3 * ((cell % 9) / 3));
  }
  for (int i = 0; i < kUnitSize; ++i) {
    for (int j = 0; j < kUnitSize; ++j) {
      RowCell[i][j] = narrow(9 * i + j);
      RowColBox[i][j] = narrow(3 * (i / 3) + j / 3);
      BoxCell[i][j] = narrow(9 * (3 * (i / 3) + j / 3) + 3 * (i % 3) + j % 3);
    }
    BoxStart[i] = narrow(27 * (i / 3) + 3 * (i % 3));
  }
  for (int mask = 0; mask < 512; ++mask) {
    BitCount[mask] = narrow(std::popcount(static_cast<unsigned>(mask)));
  }
}

inline constexpr ConversionTables kTables{};

// The tables by their own names, as the rest of the program reads them: CellRow[cell],
// BoxCell[box][position].
inline constexpr const auto& CellRow = kTables.CellRow;
inline constexpr const auto& CellCol = kTables.CellCol;
inline constexpr const auto& CellBox = kTables.CellBox;
inline constexpr const auto& CellBoxStart = kTables.CellBoxStart;
inline constexpr const auto& RowCell = kTables.RowCell;
inline constexpr const auto& RowColBox = kTables.RowColBox;
inline constexpr const auto& BoxStart = kTables.BoxStart;
inline constexpr const auto& BoxCell = kTables.BoxCell;
inline constexpr const auto& BitCount = kTables.BitCount;

}  // namespace kestrel
