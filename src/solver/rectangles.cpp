// SPDX-License-Identifier: MIT
// Unique Rectangle and Avoidable Rectangle. In a proper puzzle the four corners of a rectangle in two boxes
// cannot end up holding just two digits crosswise: swapping them would give a second solution.
//
//    Unique Rectangle, type 1                type 2
//      floor   {1,2}   {1,2}                   floor   {1,2}    {1,2}
//      roof    {1,2}   {1,2,x}                 roof   {1,2,x}  {1,2,x}
//      1 and 2 go from the fourth corner       one of the roof cells is x: x goes from what sees both
//
//    Avoidable Rectangle (none of the corners a given), one corner open      two corners open
//      1  2                                                                    1  2
//      X  1                                                                    X  Y
//      the open corner X cannot be 2           X is 2 or f, Y is 1 or f, not 2 and 1: f goes from what sees both
#include <algorithm>
#include <array>
#include <bit>

#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

// A list of cells that never overflows.
struct CellList {
  std::array<int, kCells> cell{};
  int count = 0;

  CellList() = default;
  explicit CellList(CellSet cells) {
    for (const int c : cells) Append(c);
  }
  void Append(int c) { cell[count++] = c; }
  [[nodiscard]] const int* begin() const { return cell.data(); }
  [[nodiscard]] const int* end() const { return cell.data() + count; }
};

// The cell in the row of one cell and the column of the other.
int Corner(int row_of, int column_of) {
  return RowCell[CellRow[row_of]][CellCol[column_of]];
}

// Two floor cells in one line (kind 0 row, 1 column), and the third corner c on a line across through one of
// them: the cell across from c, on the line through the other floor cell.
int FourthCorner(int kind, int a, int b, int c) {
  const int far_end = UnitOf(c, 1 - kind) == UnitOf(a, 1 - kind) ? b : a;
  return kind == 0 ? Corner(c, far_end) : Corner(far_end, c);
}

// The floors and roofs of one pair of digits.
struct RectangleCells {
  CandidateMask digits;
  CellSet floor;  // exactly the two digits
  CellSet three;  // the two and one more
};

// The cells on the lines across through a and b.
CellSet Across(int kind, int a, int b) {
  return kUnitTables.cells[UnitOf(a, 1 - kind)] | kUnitTables.cells[UnitOf(b, 1 - kind)];
}

void DescribeRectangle(Finding& finding, const std::array<PatternCell, 4>& corners, Unit line, int form) {
  finding.pattern.assign(corners.begin(), corners.end());
  for (const PatternCell& corner : corners) finding.digits |= corner.digits;
  finding.units = {line};
  finding.form = form;
}

bool TryType1(SolverState& state, const SolverInput& input, const RectangleCells& cells, int kind, int a,
              int b) {
  CellSet thirds = cells.floor & Across(kind, a, b);
  thirds.Remove(a);
  thirds.Remove(b);
  for (const int c : thirds) {
    const int roof = FourthCorner(kind, a, b, c);
    const CandidateMask mask = state.CellMask(roof);
    if ((mask & cells.digits) != cells.digits || BitCount[mask] < 3) continue;
    state.RemoveCandidate(LowestDigit(cells.digits), roof);
    state.RemoveCandidate(LowestDigit(cells.digits & (cells.digits - 1)), roof);
    if (input.finding != nullptr) {
      const CandidateMask two = cells.digits;
      DescribeRectangle(
          *input.finding,
          {{{a, two, Role::Floor}, {b, two, Role::Floor}, {c, two, Role::Floor}, {roof, mask, Role::Roof}}},
          NamedUnit(UnitOf(a, kind)), 1);
      input.finding->digits = two;
    }
    return true;
  }
  return false;
}

bool TryType2(SolverState& state, const SolverInput& input, const RectangleCells& cells, int kind, int a,
              int b) {
  if (!cells.three.Several()) return false;
  CellSet thirds = (cells.three & Across(kind, a, b)) - kUnitTables.cells[UnitOf(a, kind)];
  // With the floor in two boxes the roof must lie in the same two, or there would be four.
  if (CellBox[a] != CellBox[b]) {
    thirds &= kUnitTables.cells[UnitOf(a, 2)] | kUnitTables.cells[UnitOf(b, 2)];
  }
  for (const int c : thirds) {
    const int other = FourthCorner(kind, a, b, c);
    const CandidateMask three = state.CellMask(c);
    if (state.CellMask(other) != three) continue;
    if (!state.EliminateSeenByBoth(c, other, LowestDigit(three & ~cells.digits))) continue;
    if (input.finding != nullptr) {
      const CandidateMask two = cells.digits;
      DescribeRectangle(*input.finding,
                        {{{a, two, Role::Floor},
                          {b, two, Role::Floor},
                          {c, three, Role::Roof},
                          {other, three, Role::Roof}}},
                        NamedUnit(UnitOf(a, kind)), 2);
    }
    return true;
  }
  return false;
}

// Scan order: floors (a, b) in cell order; for each, type 1 and then type 2, third corners in cell order.
// Type 1 is for floors in one box only.
bool FindRectangleOf(SolverState& state, const SolverInput& input, const RectangleCells& cells) {
  const CellList floor(cells.floor);
  for (int i = 0; i + 1 < floor.count; ++i) {
    for (int j = i + 1; j < floor.count; ++j) {
      const int a = floor.cell[i];
      const int b = floor.cell[j];
      const bool row = CellRow[a] == CellRow[b];
      if (!row && CellCol[a] != CellCol[b]) continue;
      const int kind = row ? 0 : 1;
      if (CellBox[a] == CellBox[b] && TryType1(state, input, cells, kind, a, b)) return true;
      if (TryType2(state, input, cells, kind, a, b)) return true;
    }
  }
  return false;
}

// The solved cells that were not given, by digit.
std::array<CellList, 9> DeducedCells(const SolverState& state, const DigitGrid& givens) {
  std::array<CellList, 9> deduced{};
  for (int c = 0; c < kCells; ++c) {
    if (state.CellValue(c) != 0 && givens[c] == 0) deduced[state.CellValue(c) - 1].Append(c);
  }
  return deduced;
}

// Three corners solved, c1 and c2 with d at opposite ends, the third with e: e goes from the fourth.
bool TryOneOpen(SolverState& state, const SolverInput& input, int c1, int c2) {
  const int a = Corner(c1, c2);
  const int b = Corner(c2, c1);
  if (input.givens[a] != 0 || input.givens[b] != 0) return false;
  if (CellBox[c1] != CellBox[a] && CellBox[c1] != CellBox[b]) return false;
  if ((state.CellValue(a) == 0) == (state.CellValue(b) == 0)) return false;
  const int solved = state.CellValue(a) != 0 ? a : b;
  const int open = state.CellValue(a) != 0 ? b : a;
  const int e = state.CellValue(solved);
  const CandidateMask candidates = state.CellMask(open);
  if (!state.RemoveCandidate(e, open)) return false;
  if (input.finding != nullptr) {
    const CandidateMask d = DigitBit(state.CellValue(c1));
    input.finding->digits = d | DigitBit(e);
    AddCell(*input.finding, c1, d);
    AddCell(*input.finding, c2, d);
    AddCell(*input.finding, solved, DigitBit(e));
    AddCell(*input.finding, open, candidates, Role::Roof);
    input.finding->form = 1;
  }
  return true;
}

// The cells with two candidates, ordered by the lower, then the higher candidate, then the cell.
CellList CellsByPair(const SolverState& state, CellSet bivalue) {
  CellList list(bivalue);
  const auto key = [&state](int cell) {
    const CandidateMask mask = state.CellMask(cell);
    return std::array<int, 3>{LowestDigit(mask), LowestDigit(mask & (mask - 1)), cell};
  };
  std::sort(list.cell.begin(), list.cell.begin() + list.count,
            [&key](int a, int b) { return key(a) < key(b); });
  return list;
}

// c1 (solved with d) and c2 (with e) on one line of the kind; X and Y open on the lines across.
bool TryTwoOpen(SolverState& state, const SolverInput& input, const CellList& list, CellSet bivalue, int kind,
                int c1, int c2) {
  const int d = state.CellValue(c1);
  const int e = state.CellValue(c2);
  const CellSet first_side = bivalue & kUnitTables.cells[UnitOf(c1, 1 - kind)] & state.Cells(e);
  if (first_side.Empty()) return false;
  for (const int x : list) {
    if (!first_side.Has(x)) continue;
    const int y = kind == 0 ? Corner(x, c2) : Corner(c2, x);
    const int f = LowestDigit(state.CellMask(x) & ~DigitBit(e));
    if (!bivalue.Has(y) || state.CellMask(y) != (DigitBit(d) | DigitBit(f))) continue;
    if (CellBox[c1] != CellBox[c2] && CellBox[c1] != CellBox[x]) continue;
    if (!state.EliminateSeenByBoth(x, y, f)) continue;
    if (input.finding != nullptr) {
      input.finding->digits = DigitBit(d) | DigitBit(e) | DigitBit(f);
      AddCell(*input.finding, c1, DigitBit(d));
      AddCell(*input.finding, c2, DigitBit(e));
      AddFullCell(*input.finding, state, x, Role::Roof);
      AddFullCell(*input.finding, state, y, Role::Roof);
      input.finding->units = {NamedUnit(UnitOf(c1, kind))};
      input.finding->form = 2;
    }
    return true;
  }
  return false;
}

// Scan order: digits, then pairs of cells solved with the digit.
bool FindWithOneOpen(SolverState& state, const SolverInput& input) {
  for (const CellList& cells : DeducedCells(state, input.givens)) {
    for (int i = 0; i + 1 < cells.count; ++i) {
      for (int j = i + 1; j < cells.count; ++j) {
        if (TryOneOpen(state, input, cells.cell[i], cells.cell[j])) return true;
      }
    }
  }
  return false;
}

// Scan order: pairs of solved cells in one line (a pair shares a row or a column, never both), then X by pair
// of candidates and cell.
bool FindWithTwoOpen(SolverState& state, const SolverInput& input) {
  const CellSet bivalue = state.CellsByCandidates().two;
  if (!bivalue.Several()) return false;
  const CellList list = CellsByPair(state, bivalue);
  CellSet deduced;
  for (int c = 0; c < kCells; ++c) {
    if (state.CellValue(c) != 0 && input.givens[c] == 0) deduced.Add(c);
  }
  for (const int c1 : deduced) {
    for (const int c2 : deduced& kUnitTables.peers[c1]) {
      if (c2 <= c1 || state.CellValue(c1) == state.CellValue(c2)) continue;
      for (const int kind : {0, 1}) {
        if (UnitOf(c1, kind) == UnitOf(c2, kind) && TryTwoOpen(state, input, list, bivalue, kind, c1, c2)) {
          return true;
        }
      }
    }
  }
  return false;
}

}  // namespace

bool FindUniqueRectangle(SolverState& state, const SolverInput& input) {
  const SolverState::CellsBySize by_size = state.CellsByCandidates();
  for (int d1 = 1; d1 <= 8; ++d1) {
    const CellSet two = by_size.two & state.Cells(d1);
    if (!two.Several()) continue;
    for (int d2 = d1 + 1; d2 <= 9; ++d2) {
      const CellSet floor = two & state.Cells(d2);
      if (!floor.Several()) continue;
      const CellSet three = by_size.three & state.Cells(d1) & state.Cells(d2);
      const auto digits = static_cast<CandidateMask>(DigitBit(d1) | DigitBit(d2));
      if (FindRectangleOf(state, input, {digits, floor, three})) return true;
    }
  }
  return false;
}

bool FindAvoidableRectangle(SolverState& state, const SolverInput& input) {
  return FindWithOneOpen(state, input) || FindWithTwoOpen(state, input);
}

}  // namespace kestrel
