// SPDX-License-Identifier: MIT
// Multi-value X-Wing: four cells with two candidates each, in two couples.
//
//              column     column
//    row i     {d1,e1}    {d1,e2}      d1 is a pair in row i, d2 a pair in row j. Whichever way the two go,
//    row j     {d2,e1}    {d2,e2}      one e1 lands in the first column and one e2 in the second: both go
//                                      from the rest of their column.
//
// The couples may stand in rows, columns or boxes, and e1, e2 be confined to lines or to boxes.
#include <array>
#include <bit>

#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

// Two cells with two candidates each, the only places of the digit in their unit.
struct Couple {
  int digit;
  std::array<int, 2> cell;
};

struct Couples {
  std::array<Couple, 9> list{};  // by ascending digit
  int count = 0;
  [[nodiscard]] const Couple* begin() const { return list.data(); }
  [[nodiscard]] const Couple* end() const { return list.data() + count; }
};

Couples CouplesOf(const SolverState& state, CellSet bivalue, int unit) {
  Couples couples;
  // Only digits of two of the unit's cells with two candidates.
  unsigned once = 0;
  unsigned twice = 0;
  for (const int cell : bivalue& kUnitTables.cells[unit]) {
    twice |= once & state.CellMask(cell);
    once |= state.CellMask(cell);
  }
  for (; twice != 0; twice &= twice - 1) {
    const int digit = std::countr_zero(twice) + 1;
    const unsigned places = state.Places(digit, unit);
    if (BitCount[places] != 2) continue;
    const auto& cells = kUnitTables.cell[unit];
    couples.list[couples.count++] = {
        digit, {cells[std::countr_zero(places)], cells[std::countr_zero(places & (places - 1))]}};
  }
  return couples;
}

// How two couples can face each other: which kind of unit (0 row, 1 column, 2 box) joins their first and
// their second cells.
struct Facing {
  Couple a;
  Couple b;
  int kind;
  int form;
};

bool Faces(const Facing& facing) {
  const auto& [a, b, kind, form] = facing;
  return UnitOf(a.cell[0], kind) == UnitOf(b.cell[0], kind) &&
         UnitOf(a.cell[1], kind) == UnitOf(b.cell[1], kind) &&
         UnitOf(a.cell[0], kind) != UnitOf(a.cell[1], kind);
}

void Describe(Finding& finding, const SolverState& state, const Facing& facing, int unit_a, int unit_b) {
  const auto& [a, b, kind, form] = facing;
  for (const Couple* couple : {&a, &b}) {
    for (const int cell : couple->cell) {
      AddFullCell(finding, state, cell);
      finding.digits |= state.CellMask(cell);
    }
  }
  finding.units = {NamedUnit(unit_a), NamedUnit(unit_b)};
  finding.covers = {NamedUnit(UnitOf(a.cell[0], kind)), NamedUnit(UnitOf(a.cell[1], kind))};
  finding.form = form;
}

// Tests the candidate sets and removes e1 and e2.
bool TryFacing(SolverState& state, const Facing& facing) {
  if (!Faces(facing)) return false;
  const auto& [a, b, kind, form] = facing;
  std::array<CandidateMask, 2> extra{};  // e1, e2
  for (const int k : {0, 1}) {
    extra[k] = state.CellMask(a.cell[k]) & ~DigitBit(a.digit);
    if (extra[k] != (state.CellMask(b.cell[k]) & ~DigitBit(b.digit))) return false;
  }
  if (extra[0] == extra[1]) return false;
  bool more = false;
  for (const int k : {0, 1}) {
    more |= BitCount[state.Places(LowestDigit(extra[k]), UnitOf(a.cell[k], kind))] >= 3;
  }
  if (!more) return false;
  for (const int k : {0, 1}) {
    CellSet others = kUnitTables.cells[UnitOf(a.cell[k], kind)];
    others.Remove(a.cell[k]);
    others.Remove(b.cell[k]);
    state.RemoveFrom(others, LowestDigit(extra[k]));
  }
  return true;
}

// The couple with its cells in column order.
Couple ByColumn(Couple couple) {
  if (CellCol[couple.cell[0]] > CellCol[couple.cell[1]]) std::swap(couple.cell[0], couple.cell[1]);
  return couple;
}

// The two cases of a pass (0 rows, 1 columns, 2 boxes).
std::array<Facing, 2> Cases(int pass, const Couple& a, const Couple& b) {
  switch (pass) {
    case 0:
      return {Facing{a, b, 1, 1}, Facing{a, b, 2, 2}};
    case 1:
      return {Facing{a, b, 0, 3}, Facing{a, b, 2, 4}};
    default:
      return {Facing{a, b, 0, 5}, Facing{ByColumn(a), ByColumn(b), 1, 6}};
  }
}

// Scan order: units i < j, digits d1 and d2, then the two cases.
bool FindInPass(SolverState& state, const SolverInput& input, CellSet bivalue, int pass) {
  std::array<Couples, 9> couples;
  for (int i = 0; i < 9; ++i) couples[i] = CouplesOf(state, bivalue, 9 * pass + i);
  for (int i = 0; i < 8; ++i) {
    for (int j = i + 1; j < 9; ++j) {
      for (const Couple& a : couples[i]) {
        for (const Couple& b : couples[j]) {
          if (a.digit == b.digit) continue;
          for (const Facing& facing : Cases(pass, a, b)) {
            if (!TryFacing(state, facing)) continue;
            if (input.finding != nullptr) {
              Describe(*input.finding, state, facing, 9 * pass + i, 9 * pass + j);
            }
            return true;
          }
        }
      }
    }
  }
  return false;
}

}  // namespace

bool FindMultiXWing(SolverState& state, const SolverInput& input) {
  const CellSet bivalue = state.CellsByCandidates().two;
  for (int pass = 0; pass < 3; ++pass) {
    if (FindInPass(state, input, bivalue, pass)) return true;
  }
  return false;
}

}  // namespace kestrel
