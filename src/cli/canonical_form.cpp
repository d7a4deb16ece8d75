// SPDX-License-Identifier: MIT
// The search for the least disguise. In the least grid the first row reads 123456789, because any row can be
// renamed so; that leaves 2 (turned over or not) x 18 (first and second row, in one band) x 1,296 (columns)
// = 46,656 openings. Nearly all of them lose to the best so far in the first cells of the second row. What
// an opening leaves free is decided by its first column: rows and bands must ascend there.
#include "cli/canonical_form.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/check.h"

namespace kestrel {
namespace {

using Order = std::array<int, 9>;

constexpr std::array<std::array<int, 3>, 6> kOrdersOfThree{
    {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}};

DigitGrid TurnedOver(const DigitGrid& grid) {
  DigitGrid result{};
  for (int cell = 0; cell < kCells; ++cell) result[9 * (cell % 9) + cell / 9] = grid[cell];
  return result;
}

// The 1,296 orders of the columns that keep the stacks together.
const std::array<Order, 1296>& ColumnOrders() {
  static const std::array<Order, 1296> orders = [] {
    std::array<Order, 1296> list{};
    auto order = list.begin();
    for (const auto& stacks : kOrdersOfThree) {
      for (int inside = 0; inside < 216; ++inside) {
        const std::array<int, 3> choice{inside / 36, inside / 6 % 6, inside % 6};
        for (int k = 0; k < 9; ++k) (*order)[k] = 3 * stacks[k / 3] + kOrdersOfThree[choice[k / 3]][k % 3];
        ++order;
      }
    }
    return list;
  }();
  return orders;
}

// One way of turning and reordering the grid, and the names that make its first row read 123456789.
struct Disguise {
  const DigitGrid& solution;
  const DigitGrid& givens;
  Order rows{};
  const Order& columns;
  std::array<std::uint8_t, 10> name{};  // old digit -> new digit; 0 stays 0

  int Digit(int row, int position) const { return name[solution[9 * row + columns[position]]]; }

  // Puts the rows of the two other bands into ascending order of their first cells.
  void OrderLowerBands() {
    const auto first_cell_less = [this](int a, int b) { return Digit(a, 0) < Digit(b, 0); };
    int band = rows[0] / 3;
    for (int place = 3; place < 9; place += 3) {
      band = (band + 1) % 3;
      for (int k = 0; k < 3; ++k) rows[place + k] = 3 * band + k;
      std::sort(rows.begin() + place, rows.begin() + place + 3, first_cell_less);
    }
    if (first_cell_less(rows[6], rows[3]))
      std::swap_ranges(rows.begin() + 3, rows.begin() + 6, rows.begin() + 6);
  }

  CanonicalPuzzle Applied() const {
    CanonicalPuzzle result;
    for (int cell = 0; cell < kCells; ++cell) {
      const int source = 9 * rows[cell / 9] + columns[cell % 9];
      result.solution[cell] = name[solution[source]];
      result.givens[cell] = name[givens[source]];
    }
    return result;
  }
};

// Tries one opening against the best disguise so far.
void TryOpening(Disguise disguise, CanonicalPuzzle& best) {
  for (int k = 0; k < 9; ++k) {
    disguise.name[disguise.solution[9 * disguise.rows[0] + disguise.columns[k]]] =
        static_cast<std::uint8_t>(k + 1);
  }
  for (int k = 0; k < 9; ++k) {
    const int digit = disguise.Digit(disguise.rows[1], k);
    if (digit > best.solution[9 + k]) return;
    if (digit < best.solution[9 + k]) break;
  }
  disguise.OrderLowerBands();
  best = std::min(best, disguise.Applied());
}

}  // namespace

CanonicalPuzzle CanonicalForm(const DigitGrid& givens, const DigitGrid& solution) {
  CanonicalPuzzle best;
  best.solution.fill(10);  // worse than any grid
  const std::array<std::pair<DigitGrid, DigitGrid>, 2> sides{
      {{solution, givens}, {TurnedOver(solution), TurnedOver(givens)}}};
  for (const auto& [turned_solution, turned_givens] : sides) {
    for (int band = 0; band < 3; ++band) {
      for (const auto& rows : kOrdersOfThree) {
        for (const Order& columns : ColumnOrders()) {
          Disguise disguise{turned_solution, turned_givens, {}, columns, {}};
          for (int k = 0; k < 3; ++k) disguise.rows[k] = 3 * band + rows[k];
          TryOpening(disguise, best);
        }
      }
    }
  }
  Require(best.solution[0] == 1);
  return best;
}

}  // namespace kestrel
