// SPDX-License-Identifier: MIT
// Two-String Kite and Skyscraper: two lines that each have a digit in exactly two cells, joined at one end.
//
//    2-String Kite                           Skyscraper
//    row r     X . . . | a .                 row i    . E . . . L .
//                      | . b                 row j    . . E . . L .     L in one column
//    column c              .                 the digit is in one of the ends E, and goes from
//              x           Y                 the cells that see both
//    a, b in one box; the digit is in
//    X or Y and goes from x, which sees both
#include <array>
#include <bit>

#include "solver/combinations.h"
#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

using Pair = std::array<int, 2>;  // two cells, in the order of their line

// The lines first_line .. first_line + 8 in which the digit has exactly two places, as bits 0..8.
unsigned PairLines(const SolverState& state, int digit, int first_line) {
  unsigned lines = 0;
  for (unsigned i = 0; i < 9; ++i) {
    const bool pair = BitCount[state.Places(digit, first_line + static_cast<int>(i))] == 2;
    lines |= (pair ? 1U : 0U) << i;
  }
  return lines;
}

Pair PairOf(const SolverState& state, int digit, int line) {
  const unsigned places = state.Places(digit, line);
  const auto& cells = kUnitTables.cell[line];
  return {cells[std::countr_zero(places)], cells[std::countr_zero(places & (places - 1))]};
}

// The pair lines whose two cells lie in different boxes.
unsigned SpreadPairLines(const SolverState& state, int digit, int first_line) {
  unsigned lines = PairLines(state, digit, first_line);
  for (unsigned rest = lines; rest != 0; rest &= rest - 1) {
    const Pair pair = PairOf(state, digit, first_line + std::countr_zero(rest));
    if (CellBox[pair[0]] == CellBox[pair[1]]) lines &= ~LowestBit(rest);
  }
  return lines;
}

// The link comes first in each pair, the end last.
void Describe(Finding& finding, int digit, const Pair& first, const Pair& second) {
  finding.digits = DigitBit(digit);
  AddCell(finding, first[1], DigitBit(digit));
  AddCell(finding, first[0], DigitBit(digit), Role::Link);
  AddCell(finding, second[0], DigitBit(digit), Role::Link);
  AddCell(finding, second[1], DigitBit(digit));
}

// The first of the four ways in which a row pair and a column pair meet in a box, links first; false if none.
bool JoinInBox(Pair& row, Pair& column) {
  for (const int i : {0, 1}) {
    for (const int j : {0, 1}) {
      if (row[i] == column[j] || CellBox[row[i]] != CellBox[column[j]]) continue;
      row = {row[i], row[1 - i]};
      column = {column[j], column[1 - j]};
      return true;
    }
  }
  return false;
}

// Scan order: row by row, and for each row column by column. Only the first way in which the two meet counts,
// even when it removes nothing and another would.
bool FindKiteOf(SolverState& state, const SolverInput& input, int digit) {
  unsigned rows = SpreadPairLines(state, digit, 0);
  if (rows == 0) return false;
  const unsigned columns = SpreadPairLines(state, digit, kFirstColumn);
  for (; rows != 0; rows &= rows - 1) {
    const int row_line = std::countr_zero(rows);
    for (unsigned rest = columns; rest != 0; rest &= rest - 1) {
      const int column_line = kFirstColumn + std::countr_zero(rest);
      Pair row = PairOf(state, digit, row_line);
      Pair column = PairOf(state, digit, column_line);
      if (!JoinInBox(row, column) || !state.EliminateSeenByBoth(row[1], column[1], digit)) continue;
      if (input.finding != nullptr) {
        Describe(*input.finding, digit, row, column);
        input.finding->units = {NamedUnit(row_line), NamedUnit(column_line)};
        input.finding->covers = {NamedUnit(kFirstBox + CellBox[row[0]])};
      }
      return true;
    }
  }
  return false;
}

// Tries the four ways in which two parallel pairs can be joined by a line across them. `crossing` tells the
// line across of a cell.
bool TrySkyscraper(SolverState& state, const SolverInput& input, int digit, const Pair& a, const Pair& b,
                   int across) {
  const auto crossing = [across](int cell) { return kUnitTables.unit[cell][across]; };
  for (const int i : {0, 1}) {
    for (const int j : {0, 1}) {
      const int end_a = a[1 - i];
      const int end_b = b[1 - j];
      if (crossing(a[i]) != crossing(b[j]) || crossing(end_a) == crossing(end_b)) continue;
      if (!state.EliminateSeenByBoth(end_a, end_b, digit)) continue;
      if (input.finding != nullptr) {
        Describe(*input.finding, digit, {a[i], end_a}, {b[j], end_b});
        const int along = 1 - across;
        input.finding->units = {NamedUnit(kUnitTables.unit[end_a][along]),
                                NamedUnit(kUnitTables.unit[end_b][along])};
        input.finding->covers = {NamedUnit(crossing(a[i]))};
        input.finding->form = across == 1 ? 1 : 2;
      }
      return true;
    }
  }
  return false;
}

// Scan order: two rows (i, j), then the columns of the same numbers, then the next pair of numbers.
bool FindSkyscraperOf(SolverState& state, const SolverInput& input, int digit) {
  const std::array<unsigned, 2> lines{PairLines(state, digit, 0), PairLines(state, digit, kFirstColumn)};
  for (unsigned left = lines[0] | lines[1]; left != 0; left &= left - 1) {
    const int i = std::countr_zero(left);
    for (unsigned right = left & (left - 1); right != 0; right &= right - 1) {
      const int j = std::countr_zero(right);
      const unsigned both = LowestBit(left) | LowestBit(right);
      for (const int kind : {0, 1}) {
        if ((lines[kind] & both) != both) continue;
        const Pair a = PairOf(state, digit, 9 * kind + i);
        const Pair b = PairOf(state, digit, 9 * kind + j);
        if (TrySkyscraper(state, input, digit, a, b, 1 - kind)) return true;
      }
    }
  }
  return false;
}

}  // namespace

bool FindTwoStringKite(SolverState& state, const SolverInput& input) {
  CandidateMask& to_scan = state.DigitsToScan(DigitScan::TwoStringKite);
  for (; to_scan != 0; to_scan &= to_scan - 1) {
    if (FindKiteOf(state, input, LowestDigit(to_scan))) return true;
  }
  return false;
}

bool FindSkyscraper(SolverState& state, const SolverInput& input) {
  CandidateMask& to_scan = state.DigitsToScan(DigitScan::Skyscraper);
  for (; to_scan != 0; to_scan &= to_scan - 1) {
    if (FindSkyscraperOf(state, input, LowestDigit(to_scan))) return true;
  }
  return false;
}

}  // namespace kestrel
