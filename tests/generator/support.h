// SPDX-License-Identifier: MIT
// What the generator's tests share.
#pragma once

#include "core/grid.h"
#include "core/yield.h"

namespace kestrel {

// Says stop at the n-th question, counted from 1, and from then on.
class StopAt final : public Yield {
 public:
  explicit StopAt(int n) : left_(n) {}
  [[nodiscard]] bool KeepGoing() override { return --left_ > 0; }
  [[nodiscard]] int Left() const { return left_; }

 private:
  int left_;
};

// The digits that no cell seeing `cell` has.
inline CandidateMask FreeDigits(const DigitGrid& grid, int cell) {
  const int row = CellRow[cell];
  const int col = CellCol[cell];
  unsigned taken = 0;
  for (int i = 0; i < kUnitSize; ++i) {
    for (const int other : {9 * row + i, 9 * i + col, int{BoxCell[CellBox[cell]][i]}}) {
      if (other != cell) taken |= 1U << grid[other];
    }
  }
  return static_cast<CandidateMask>(~(taken >> 1U) & kAllDigits);
}

}  // namespace kestrel
