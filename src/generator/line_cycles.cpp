// SPDX-License-Identifier: MIT
#include "generator/line_cycles.h"

#include <bit>
#include <cstdint>

#include "generator/random_order.h"

namespace kestrel {

namespace {

// The sets that a cell belongs to, as bits; how many sets there are.
struct Sets {
  std::array<std::uint64_t, kCells> of_cell{};
  int count = 0;
};

// Adds the cycles of two parallel lines. `upper` and `lower` are their first cells, `step` leads from one
// cell to the next.
void AddCycles(const DigitGrid& grid, int upper, int lower, int step, int most, Sets& sets) {
  std::array<std::uint8_t, 10> place_in_upper{};  // by digit
  for (int i = 0; i < kUnitSize; ++i) place_in_upper[grid[upper + i * step]] = static_cast<std::uint8_t>(i);
  unsigned left = kAllDigits;  // places not visited yet
  while (left != 0 && sets.count < most) {
    const std::uint64_t set = std::uint64_t{1} << static_cast<unsigned>(sets.count++);
    int i = std::countr_zero(left);
    do {
      left &= ~(1U << static_cast<unsigned>(i));
      sets.of_cell[upper + i * step] |= set;
      sets.of_cell[lower + i * step] |= set;
      i = place_in_upper[grid[lower + i * step]];
    } while (((left >> static_cast<unsigned>(i)) & 1U) != 0);
  }
}

}  // namespace

LineCycles::LineCycles(const DigitGrid& grid, const CellList& order) {
  Sets sets;
  for (int line = 0; line < kUnitSize; ++line) {
    const int next = line % 3 == 2 ? line - 2 : line + 1;
    AddCycles(grid, 9 * line, 9 * next, 1, kMost, sets);
    AddCycles(grid, line, next, 9, kMost, sets);
  }
  behind_[kPairs] = sets.count == kMost ? 0 : ~std::uint64_t{0} << static_cast<unsigned>(sets.count);
  for (int place = kPairs - 1; place >= 0; --place) {
    const int cell = order[place];
    of_pair_[place] = sets.of_cell[cell] | sets.of_cell[kCells - 1 - cell];
    behind_[place] = behind_[place + 1] | of_pair_[place];
  }
}

}  // namespace kestrel
