// SPDX-License-Identifier: MIT
// The digits in place that leave a hidden single its one cell.
#include "explain/blockers.h"

#include <algorithm>

#include "solver/unit_table.h"

namespace kestrel {

Blockers FindBlockers(const DigitGrid& digits, Unit unit, int cell, int digit) {
  CellSet open;  // the cells that still need an explanation
  for (const int other : kUnitTables.cells[(static_cast<int>(unit.kind) - 1) * 9 + unit.index]) {
    if (other != cell && digits[other] == 0) open.Add(other);
  }
  Blockers blockers;
  while (!open.Empty()) {
    int best = -1;
    int most = 0;
    for (int other = 0; other < kCells; ++other) {
      if (digits[other] != digit) continue;
      const int count = (kUnitTables.peers[other] & open).Size();
      if (count > most) best = other, most = count;
    }
    if (best < 0) break;
    blockers.cells.push_back(best);
    open -= kUnitTables.peers[best];
  }
  blockers.all_explained = open.Empty();
  std::sort(blockers.cells.begin(), blockers.cells.end());
  return blockers;
}

}  // namespace kestrel
