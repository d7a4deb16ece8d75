// SPDX-License-Identifier: MIT
// Checks that a Finding is a proof: that its pattern stands in the state before, in the units it names, and
// reaches what was removed.
#pragma once

#include <string>
#include <vector>

#include "solver/positions.h"

namespace kestrel::testing {

class FindingCheck {
 public:
  FindingCheck(const Finding& finding, const SolverState& before, const DigitGrid& givens)
      : f_(finding), before_(before), givens_(givens) {
    for (const PatternCell& p : f_.pattern) pattern_.Add(p.cell);
    for (const Removal& removal : f_.removals) losers_.Add(removal.cell);
    for (const Removal& removal : f_.removals) gone_ |= removal.digits;
    digit_ = f_.digits != 0 ? LowestDigit(f_.digits) : 1;
  }

  // True when the finding fits the change from before to after and explains it.
  [[nodiscard]] bool Holds(const SolverState& after) const {
    return ListsRemovals(after) && PatternStands() && Explains();
  }

 private:
  static CellSet In(const Unit& unit) {
    return kUnitTables.cells[9 * (static_cast<int>(unit.kind) - 1) + unit.index];
  }
  static CellSet In(const std::vector<Unit>& units) {
    CellSet cells;
    for (const Unit& unit : units) cells |= In(unit);
    return cells;
  }
  [[nodiscard]] const PatternCell& P(int i) const { return f_.pattern[i]; }
  [[nodiscard]] CellSet Pair(int i, int j) const { return CellSet::Of(P(i).cell) | CellSet::Of(P(j).cell); }
  [[nodiscard]] CellSet SeenBy(int i) const { return kUnitTables.peers[P(i).cell]; }
  [[nodiscard]] bool Full(int i) const { return P(i).digits == before_.CellMask(P(i).cell); }
  [[nodiscard]] CellSet Holders(const Unit& unit) const { return before_.Cells(digit_) & In(unit); }
  [[nodiscard]] bool Lose(CellSet cells, CandidateMask digits) const {
    return (losers_ - cells).Empty() && (gone_ & ~digits) == 0;
  }

  [[nodiscard]] bool ListsRemovals(const SolverState& after) const {
    if (f_.placed_digit != 0)
      return f_.removals.empty() && after.CellValue(f_.placed_cell) == f_.placed_digit;
    std::vector<Removal> expected;
    for (int cell = 0; cell < kCells; ++cell) {
      const CandidateMask gone = Without(before_.CellMask(cell), after.CellMask(cell));
      if (gone != 0) expected.push_back({cell, gone});
    }
    return f_.removals == expected && !expected.empty();
  }

  [[nodiscard]] bool PatternStands() const {
    for (const PatternCell& p : f_.pattern) {
      const int value = before_.CellValue(p.cell);
      const CandidateMask there = value != 0 ? DigitBit(value) : before_.CellMask(p.cell);
      // A roof or open corner that loses something itself is there with all it can be.
      const bool whole = p.role == Role::Roof && f_.form == 1;
      if (p.digits == 0 || (p.digits & ~there) != 0 ||
          (whole ? p.digits != there : (p.digits & ~f_.digits) != 0)) {
        return false;
      }
    }
    return pattern_.Size() == static_cast<int>(f_.pattern.size()) && !f_.pattern.empty();
  }

  [[nodiscard]] bool Explains() const {
    switch (f_.technique) {
      case Technique::HiddenSingle:
        return Holders(f_.units[0]) == pattern_ && f_.placed_cell == P(0).cell && !Full(0);
      case Technique::NakedSingle:
        return Full(0) && P(0).digits == DigitBit(f_.placed_digit);
      case Technique::PointingPair:
      case Technique::BoxLine:
      case Technique::XWing:
      case Technique::Swordfish:
      case Technique::Jellyfish:
        return (before_.Cells(digit_) & In(f_.units)) == pattern_ && (pattern_ - In(f_.covers)).Empty() &&
               f_.units.size() == f_.covers.size() && Lose(In(f_.covers) - In(f_.units), f_.digits);
      case Technique::HiddenPair:
      case Technique::HiddenTriple:
        return Hidden();
      case Technique::XYWing:
      case Technique::XYZWing:
        return Wings();
      case Technique::TwoStringKite:
      case Technique::Skyscraper:
        return Holders(f_.units[0]) == Pair(0, 1) && Holders(f_.units[1]) == Pair(2, 3) &&
               (Pair(1, 2) - In(f_.covers)).Empty() && Lose(SeenBy(0) & SeenBy(3), f_.digits);
      case Technique::MultiXWing:
        return Multi();
      case Technique::FinnedXWing:
        return Finned();
      case Technique::UniqueRectangle:
      case Technique::AvoidableRectangle:
        return Rectangle();
      case Technique::EmptyRectangle:
        return EmptyBox();
      default:
        return Naked();
    }
  }

  [[nodiscard]] bool Naked() const {
    for (int i = 0; i < pattern_.Size(); ++i) {
      if (!Full(i)) return false;
    }
    return pattern_.Size() == BitCount[f_.digits] && (pattern_ - In(f_.units)).Empty() &&
           Lose(In(f_.units) - pattern_, f_.digits);
  }
  [[nodiscard]] bool Hidden() const {
    for (int digit = 1; digit <= 9; ++digit) {
      if (!HasDigit(f_.digits, digit)) continue;
      if (!((before_.Cells(digit) & In(f_.units)) - pattern_).Empty()) return false;
    }
    return pattern_.Size() == BitCount[f_.digits] && Lose(pattern_, Without(kAllDigits, f_.digits));
  }
  [[nodiscard]] bool Wings() const {
    const bool xyz = f_.technique == Technique::XYZWing;
    const CandidateMask both = P(1).digits & P(2).digits;
    const CellSet seen = SeenBy(1) & SeenBy(2);
    return Full(0) && Full(1) && Full(2) && P(0).role == Role::Pivot && P(1).role == Role::Wing &&
           BitCount[f_.digits] == 3 && P(0).digits == (xyz ? f_.digits : Without(f_.digits, both)) &&
           In(f_.units[0]).Has(P(0).cell) && In(f_.units[0]).Has(P(1).cell) &&
           In(f_.units[1]).Has(P(0).cell) && In(f_.units[1]).Has(P(2).cell) &&
           Lose(xyz ? seen & SeenBy(0) : seen, both);
  }
  [[nodiscard]] bool Multi() const {
    const CandidateMask pairs = (P(0).digits & P(1).digits) | (P(2).digits & P(3).digits);
    for (const int k : {0, 2}) {
      const int digit = LowestDigit(P(k).digits & P(k + 1).digits);
      if ((before_.Cells(digit) & In(f_.units[k / 2])) != Pair(k, k + 1)) return false;
      if (!Full(k) || !Full(k + 1) || BitCount[P(k).digits] != 2 || BitCount[P(k + 1).digits] != 2)
        return false;
    }
    return BitCount[f_.digits] == 4 && (Pair(0, 2) - In(f_.covers[0])).Empty() &&
           (Pair(1, 3) - In(f_.covers[1])).Empty() &&
           Lose(In(f_.covers) - pattern_, Without(f_.digits, pairs));
  }
  [[nodiscard]] bool Finned() const {
    CellSet fins = pattern_ - Pair(0, 1) - Pair(2, 3);
    const int box = CellBox[fins.First()];
    return Holders(f_.units[0]) == Pair(0, 1) && Holders(f_.units[1]) == (Pair(2, 3) | fins) &&
           (fins - kUnitTables.cells[kFirstBox + box]).Empty() && P(4).role == Role::Fin &&
           ((Pair(0, 1) | Pair(2, 3)) - In(f_.covers)).Empty() &&
           Lose((In(f_.covers[0]) & kUnitTables.cells[kFirstBox + box]) - In(f_.units[1]), f_.digits);
  }
  [[nodiscard]] bool Rectangle() const {
    UnitMask units = 0;
    bool given = false;
    for (const PatternCell& p : f_.pattern) {
      units |= kUnitTables.units[p.cell];
      given = given || givens_[p.cell] != 0;
    }
    const auto count = [units](unsigned first) { return BitCount[units >> first & 511U]; };
    if (pattern_.Size() != 4 || count(0) != 2 || count(9) != 2 || count(18) > 2 || P(3).role != Role::Roof) {
      return false;
    }
    if (f_.technique == Technique::AvoidableRectangle && (given || before_.CellValue(P(1).cell) == 0))
      return false;
    if (f_.form == 1)
      return Lose(CellSet::Of(P(3).cell),
                  f_.technique == Technique::UniqueRectangle ? f_.digits : P(2).digits);
    const CandidateMask extra = P(2).digits & P(3).digits & Without(f_.digits, P(0).digits | P(1).digits);
    return Full(2) && Full(3) && BitCount[f_.digits] == 3 && Lose(SeenBy(2) & SeenBy(3), extra);
  }
  [[nodiscard]] bool EmptyBox() const {
    const int last = pattern_.Size() - 1;
    const CellSet pair = Pair(last - 1, last);
    const CellSet in_box = pattern_ - pair;
    return Holders(f_.units[0]) == in_box && (in_box - In(f_.covers)).Empty() &&
           Holders(f_.units[1]) == pair && In(f_.covers[f_.form - 1]).Has(P(last - 1).cell) &&
           Lose((In(f_.covers[2 - f_.form]) & SeenBy(last)) - In(f_.units[0]), f_.digits);
  }

  const Finding& f_;
  const SolverState& before_;
  const DigitGrid& givens_;
  CellSet pattern_;
  CellSet losers_;
  CandidateMask gone_ = 0;
  int digit_ = 1;
};

}  // namespace kestrel::testing
