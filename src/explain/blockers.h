// SPDX-License-Identifier: MIT
// The digits in place that leave a hidden single its one cell. Used by picture, text and choice of the
// examples.
#pragma once

#include <vector>

#include "core/grid.h"
#include "solver/finding.h"

namespace kestrel {

struct Blockers {
  std::vector<int> cells;     // ascending; as few as a greedy choice finds
  bool all_explained = true;  // false when some empty cell of the unit lost the digit in another way
};

// For a hidden single of `digit` in `cell`: which cells with that digit see the other empty cells of the
// unit.
Blockers FindBlockers(const DigitGrid& digits, Unit unit, int cell, int digit);

}  // namespace kestrel
