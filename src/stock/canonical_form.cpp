// SPDX-License-Identifier: MIT
// The search for the least disguise. In the least grid the first row reads 123456789, because any row can be
// renamed so. The second row begins with 4, the least digit that is not in the first box, because the column that
// has its first digit in the first row can always be put in fourth place. That leaves 2 (turned over or not) x 18
// (first and second row, in one band) x 9 (first column, which tells the fourth) x 24 (the other columns) = 7,776
// openings. Most of them lose to the best so far in the next cells of the second row. What an opening leaves free is
// decided by its first column: rows and bands must ascend there.
#include "stock/canonical_form.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

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

struct ColumnOrder {
  Order column{};  // place 0..8 -> column of the grid
  Order place{};   // column of the grid -> place
};

// The 1,296 orders of the columns that keep the stacks together: [first][fourth] holds the 24 with these columns in
// first and fourth place, and nothing where both are of one stack.
using ColumnOrders = std::array<std::array<std::vector<ColumnOrder>, 9>, 9>;

ColumnOrders AllColumnOrders() {
  ColumnOrders orders;
  for (const auto& stacks : kOrdersOfThree) {
    for (int inside = 0; inside < 216; ++inside) {
      const std::array<int, 3> choice{inside / 36, inside / 6 % 6, inside % 6};
      ColumnOrder order;
      for (int k = 0; k < 9; ++k) {
        order.column[k] = 3 * stacks[k / 3] + kOrdersOfThree[choice[k / 3]][k % 3];
        order.place[order.column[k]] = k;
      }
      orders[order.column[0]][order.column[3]].push_back(order);
    }
  }
  return orders;
}

// One way of turning and reordering the grid, and the names that make its first row read 123456789.
struct Disguise {
  Disguise(const DigitGrid& solution_grid, const DigitGrid& given_digits, const Order& row_order,
           const Order& column_order)
      : solution(solution_grid), givens(given_digits), rows(row_order), columns(column_order) {
    for (int k = 0; k < 9; ++k) name[solution[9 * rows[0] + columns[k]]] = static_cast<std::uint8_t>(k + 1);
  }

  const DigitGrid& solution;
  const DigitGrid& givens;
  Order rows;  // only the first three places are filled at first
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

// Where row `second` has the digits of row `first`: column of the second row -> column of the first. With it
// the second row of a disguise is known without renaming a digit.
Order SameDigits(const DigitGrid& solution, int first, int second) {
  Order column_of{};
  for (int c = 0; c < 9; ++c) {
    for (int other = 0; other < 9; ++other) {
      if (solution[9 * second + c] == solution[9 * first + other]) column_of[c] = other;
    }
  }
  return column_of;
}

// Whether the second row of an opening is above that of the best disguise so far.
bool SecondRowIsAbove(const ColumnOrder& order, const Order& same_digits, const CanonicalPuzzle& best) {
  for (int k = 0; k < 9; ++k) {
    const int digit = order.place[same_digits[order.column[k]]] + 1;
    if (digit != best.solution[9 + k]) return digit > best.solution[9 + k];
  }
  return false;
}

// Tries the orders of the columns that make the second row begin with 4, for one choice of the first three rows.
void TryOpenings(const DigitGrid& solution, const DigitGrid& givens, const Order& rows,
                 CanonicalPuzzle& best) {
  static const ColumnOrders orders = AllColumnOrders();
  const Order same_digits = SameDigits(solution, rows[0], rows[1]);
  for (int first = 0; first < 9; ++first) {
    for (const ColumnOrder& order : orders[first][same_digits[first]]) {
      if (SecondRowIsAbove(order, same_digits, best)) continue;
      Disguise disguise(solution, givens, rows, order.column);
      disguise.OrderLowerBands();
      best = std::min(best, disguise.Applied());
    }
  }
}

}  // namespace

CanonicalPuzzle CanonicalForm(const DigitGrid& givens, const DigitGrid& solution) {
  CanonicalPuzzle best;
  best.solution.fill(10);  // worse than any grid
  const std::array<std::pair<DigitGrid, DigitGrid>, 2> sides{
      {{solution, givens}, {TurnedOver(solution), TurnedOver(givens)}}};
  for (const auto& [turned_solution, turned_givens] : sides) {
    for (int band = 0; band < 3; ++band) {
      for (const auto& inside : kOrdersOfThree) {
        const Order rows{3 * band + inside[0], 3 * band + inside[1], 3 * band + inside[2]};
        TryOpenings(turned_solution, turned_givens, rows, best);
      }
    }
  }
  Require(best.solution[0] == 1);
  return best;
}

}  // namespace kestrel
