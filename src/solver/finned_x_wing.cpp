// SPDX-License-Identifier: MIT
// Finned X-Wing: an X-Wing whose second line has one or two further places, the fins, all in the box of one
// of its corners.
//
//              c1           c2
//    r1    . . 4 . | . . . | 4 . .      if the fins are not 4, it is an X-Wing and 4 goes from column c2;
//          --------+-------+------      if one of them is, 4 goes from its box. So it goes from the cells
//          . . . . | . . . | x . .      (x) that lie in both.
//    r2    . . 4 . | . . . | 4 f f
//          . . . . | . . . | x . .
#include <array>
#include <bit>

#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

// One digit in rows (first_line 0) or columns (kFirstColumn): `base` has exactly two places, `finned` has
// those and one or two more.
struct Shape {
  int digit;
  int first_line;
  int base;    // 0..8
  int finned;  // 0..8

  [[nodiscard]] int CellAt(int line, int position) const {
    return kUnitTables.cell[first_line + line][position];
  }
};

void Describe(Finding& finding, const Shape& shape, unsigned corners, unsigned fins, int cover) {
  const CandidateMask bit = DigitBit(shape.digit);
  const std::array<int, 2> corner{std::countr_zero(corners), std::countr_zero(corners & (corners - 1))};
  finding.digits = bit;
  for (const int line : {shape.base, shape.finned}) {
    for (const int position : corner) AddCell(finding, shape.CellAt(line, position), bit);
    finding.units.push_back(NamedUnit(shape.first_line + line));
  }
  for (; fins != 0; fins &= fins - 1) {
    AddCell(finding, shape.CellAt(shape.finned, std::countr_zero(fins)), bit, Role::Fin);
  }
  const int other = corner[0] == cover ? corner[1] : corner[0];
  const int across = kFirstColumn - shape.first_line;
  finding.covers = {NamedUnit(across + cover), NamedUnit(across + other)};
  finding.form = shape.first_line == 0 ? 1 : 2;
}

// The three positions (as a set) of the segment that holds the position.
constexpr unsigned SegmentOf(int position) {
  return 7U << static_cast<unsigned>(position / 3 * 3);
}

// At most one corner has all fins in its box, because the corners lie in different boxes.
bool TryShape(SolverState& state, const SolverInput& input, const Shape& shape) {
  const unsigned corners = state.Places(shape.digit, shape.first_line + shape.base);
  const unsigned places = state.Places(shape.digit, shape.first_line + shape.finned);
  const unsigned fins = places & ~corners;
  if ((places & corners) != corners || BitCount[fins] < 1 || BitCount[fins] > 2) return false;
  for (unsigned rest = corners; rest != 0; rest &= rest - 1) {
    const int cover = std::countr_zero(rest);
    if ((fins & ~SegmentOf(cover)) != 0) continue;
    const int corner = shape.CellAt(shape.finned, cover);
    const int across = kFirstColumn - shape.first_line + cover;
    CellSet losers = kUnitTables.cells[kFirstBox + CellBox[corner]] & kUnitTables.cells[across];
    losers.Remove(corner);
    if (!state.RemoveFrom(losers, shape.digit)) continue;
    if (input.finding != nullptr) Describe(*input.finding, shape, corners, fins, cover);
    return true;
  }
  return false;
}

// Scan order: base lines, then finned lines of another band (or stack).
bool FindFinnedOf(SolverState& state, const SolverInput& input, int digit, int first_line) {
  for (int base = 0; base < 9; ++base) {
    const unsigned corners = state.Places(digit, first_line + base);
    if (BitCount[corners] != 2 || (corners & ~SegmentOf(std::countr_zero(corners))) == 0) continue;
    for (int finned = 0; finned < 9; ++finned) {
      if (base / 3 != finned / 3 && TryShape(state, input, {digit, first_line, base, finned})) return true;
    }
  }
  return false;
}

}  // namespace

bool FindFinnedXWing(SolverState& state, const SolverInput& input) {
  for (const bool columns : {false, true}) {
    CandidateMask& to_scan = state.DigitsToScan(columns ? DigitScan::FinnedColumns : DigitScan::FinnedRows);
    for (; to_scan != 0; to_scan &= to_scan - 1) {
      if (FindFinnedOf(state, input, LowestDigit(to_scan), columns ? kFirstColumn : 0)) return true;
    }
  }
  return false;
}

}  // namespace kestrel
