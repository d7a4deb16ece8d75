// SPDX-License-Identifier: MIT
#include "core/grid_check.h"

#include <array>

namespace kestrel {

bool IsFullGrid(const DigitGrid& grid) {
  std::array<CandidateMask, 27> units{};
  for (int cell = 0; cell < kCells; ++cell) {
    if (grid[cell] < 1 || grid[cell] > 9) return false;
    const CandidateMask digit = DigitBit(grid[cell]);
    units[CellRow[cell]] |= digit;
    units[9 + CellCol[cell]] |= digit;
    units[18 + CellBox[cell]] |= digit;
  }
  CandidateMask in_all = kAllDigits;
  for (const CandidateMask unit : units) in_all &= unit;
  return in_all == kAllDigits;
}

}  // namespace kestrel
