// SPDX-License-Identifier: MIT
// The driver, singles, intersections, subsets, fish and wings.
#include "support/plain_solver.h"

#include <algorithm>
#include <functional>

#include "support/plain_helpers.h"

namespace kestrel::plain {

int PlainSolver::Mask(int cell) const {
  int mask = 0;
  for (int d = 1; d <= 9; ++d) {
    if (Has(cell, d)) mask |= 1 << (d - 1);
  }
  return mask;
}

int PlainSolver::Count(const Cells& unit, int digit) const {
  int count = 0;
  for (int cell : unit) count += Has(cell, digit) ? 1 : 0;
  return count;
}

bool PlainSolver::Exactly(int cell, std::initializer_list<int> digits) const {
  int mask = 0;
  for (int d : digits) mask |= 1 << (d - 1);
  return Mask(cell) == mask;
}

const PlainSolver::Cells& PlainSolver::UnitCells(Kind kind, int index) {
  static const auto units = [] {
    std::array<std::array<Cells, 9>, 3> lists;
    for (int u = 0; u < 9; ++u) {
      for (int i = 0; i < 9; ++i) {
        lists[kRow][u].push_back(9 * u + i);
        lists[kColumn][u].push_back(u + 9 * i);
        lists[kBox][u].push_back(27 * (u / 3) + 3 * (u % 3) + 9 * (i / 3) + i % 3);
      }
    }
    return lists;
  }();
  return units[kind][index];
}

bool PlainSolver::Sees(int a, int b) {
  return Row(a) == Row(b) || Col(a) == Col(b) || Box(a) == Box(b);
}

void PlainSolver::PlaceValue(int digit, int cell) {
  CellValue[cell] = digit;
  for (int d = 1; d <= 9; ++d) CandidateFlag[d - 1][cell] = false;
  for (int other = 0; other < 81; ++other) {
    if (Sees(cell, other)) CandidateFlag[digit - 1][other] = false;
  }
}

bool PlainSolver::RemoveCandidate(int digit, int cell) {
  if (!CandidateFlag[digit - 1][cell]) return false;
  CandidateFlag[digit - 1][cell] = false;
  return true;
}

bool PlainSolver::EliminateSeenByBoth(int a, int b, int digit) {
  bool any = false;
  for (int cell = 0; cell < 81; ++cell) {
    if (cell != a && cell != b && Sees(cell, a) && Sees(cell, b) && RemoveCandidate(digit, cell)) any = true;
  }
  return any;
}

void PlainSolver::Load(const std::array<int, 81>& digits, const std::array<int, 81>& masks) {
  CellValue = digits;
  for (int cell = 0; cell < 81; ++cell) {
    for (int d = 1; d <= 9; ++d) CandidateFlag[d - 1][cell] = (masks[cell] >> (d - 1) & 1) != 0;
  }
}

bool PlainSolver::Try(Technique technique) {
  switch (technique) {
    case Technique::HiddenSingle:
      return FindHiddenSingle();
    case Technique::NakedSingle:
      return FindNakedSingle();
    case Technique::PointingPair:
      return FindPointing();
    case Technique::BoxLine:
      return FindBoxLine();
    case Technique::NakedPair:
      return FindSubset(true, 2);
    case Technique::NakedTriple:
      return FindSubset(true, 3);
    case Technique::HiddenPair:
      return FindSubset(false, 2);
    case Technique::NakedQuad:
      return FindSubset(true, 4);
    case Technique::HiddenTriple:
      return FindSubset(false, 3);
    case Technique::NakedQuint:
      return FindSubset(true, 5);
    case Technique::XWing:
      return FindFish(2, true);
    case Technique::XYWing:
      return FindXYWing();
    case Technique::TwoStringKite:
      return FindTwoStringKite();
    case Technique::Skyscraper:
      return FindSkyscraper();
    case Technique::Swordfish:
      return FindFish(3, false);
    case Technique::MultiXWing:
      return FindMultiXWing();
    case Technique::FinnedXWing:
      return FindFinnedXWing();
    case Technique::UniqueRectangle:
      return FindUniqueRectangle();
    case Technique::AvoidableRectangle:
      return FindAvoidableRectangle();
    case Technique::XYZWing:
      return FindXYZWing();
    case Technique::EmptyRectangle:
      return FindEmptyRectangle();
    case Technique::Jellyfish:
      return FindFish(4, false);
    case Technique::None:
    case Technique::End:
      break;
  }
  return false;
}

Technique PlainSolver::FirstTechnique() {
  for (const Technique technique : kAllTechniques) {
    if (Try(technique)) return technique;
  }
  return Technique::None;
}

int PlainSolver::SolveAndRate(const std::array<int, 81>& givens) {
  static constexpr std::array kCounterOfStep = {-1, 0,  1,  2,  3,  4,  5,  6,  7,  8,  9, 10,
                                                11, 14, 15, 12, 13, 16, 17, 18, 19, 21, 20};
  static_assert(kCounterOfStep.size() == kTechniques + 1);
  Givens = givens;
  TechniqueCounters.fill(0);
  Steps.clear();
  CellValue.fill(0);
  for (auto& flags : CandidateFlag) flags.fill(true);
  for (int cell = 0; cell < 81; ++cell) {
    if (givens[cell] > 0) PlaceValue(givens[cell], cell);
  }
  int level = 1;
  while (std::find(CellValue.begin(), CellValue.end(), 0) != CellValue.end()) {
    const Technique technique = FirstTechnique();
    if (technique == Technique::None) return 6;
    ++TechniqueCounters[kCounterOfStep[StepOf(technique)]];
    Steps.push_back(technique);
    if (technique >= Technique::PointingPair) level = std::max(level, 2);
    if (technique >= Technique::NakedPair) level = std::max(level, 3);
    if (technique >= Technique::XWing) level = std::max(level, 4);
    if (technique >= Technique::FinnedXWing) level = std::max(level, 5);
  }
  return level;
}

int PlainSolver::Score(int level, const std::array<int, kTechniques>& c) {
  if (level < 1 || level > 5) return 0;
  int score = c[0] + 2 * c[1];
  if (level >= 2) score += 3 * c[2] + 3 * c[3];
  if (level >= 3) score += 4 * c[4] + 5 * c[5] + 5 * c[6] + 6 * c[7] + 6 * c[8] + 7 * c[9];
  if (level >= 4) score += 8 * c[10] + 9 * c[11] + 10 * c[14] + 11 * c[15] + 12 * c[12] + 13 * c[13];
  if (level >= 5) score += 12 * c[16] + 13 * c[17] + 14 * c[18] + 15 * c[19] + 16 * c[21] + 17 * c[20];
  return score;
}

bool PlainSolver::FindHiddenSingle() {
  for (Kind kind : {kBox, kRow, kColumn}) {
    for (int index = 0; index < 9; ++index) {
      const Cells& unit = UnitCells(kind, index);
      for (int d = 1; d <= 9; ++d) {
        if (Count(unit, d) != 1) continue;
        const int cell = *std::find_if(unit.begin(), unit.end(), [&](int c) { return Has(c, d); });
        if (Exactly(cell, {d})) continue;
        PlaceValue(d, cell);
        return true;
      }
    }
  }
  return false;
}

bool PlainSolver::FindNakedSingle() {
  for (int cell = 0; cell < 81; ++cell) {
    for (int d = 1; d <= 9; ++d) {
      if (!Exactly(cell, {d})) continue;
      PlaceValue(d, cell);
      return true;
    }
  }
  return false;
}

bool PlainSolver::FindPointing() {
  for (int d = 1; d <= 9; ++d) {
    for (int box = 0; box < 9; ++box) {
      const Cells& cells = UnitCells(kBox, box);
      const int total = Count(cells, d);
      if (total < 1 || total > 3) continue;
      for (int line = 0; line < 6; ++line) {
        const Kind kind = line < 3 ? kRow : kColumn;
        const int index = line < 3 ? 3 * (box / 3) + line : 3 * (box % 3) + line - 3;
        int inside = 0;
        bool removed = false;
        for (int cell : UnitCells(kind, index)) inside += (Box(cell) == box && Has(cell, d)) ? 1 : 0;
        if (inside != total) continue;
        for (int cell : UnitCells(kind, index)) {
          if (Box(cell) != box && RemoveCandidate(d, cell)) removed = true;
        }
        if (removed) return true;
      }
    }
  }
  return false;
}

bool PlainSolver::FindBoxLine() {
  for (Kind kind : {kRow, kColumn}) {
    for (int d = 1; d <= 9; ++d) {
      for (int index = 0; index < 9; ++index) {
        const Cells& line = UnitCells(kind, index);
        const int total = Count(line, d);
        if (total < 1 || total > 3) continue;
        for (int segment = 0; segment < 3; ++segment) {
          const Cells part(line.begin() + 3 * segment, line.begin() + 3 * segment + 3);
          if (Count(part, d) != total) continue;
          bool removed = false;
          for (int cell : UnitCells(kBox, Box(part[0]))) {
            if (!Contains(part, cell) && RemoveCandidate(d, cell)) removed = true;
          }
          if (removed) return true;
        }
      }
    }
  }
  return false;
}

bool PlainSolver::FindSubset(bool naked, int size) {
  for (Kind kind : {kRow, kColumn, kBox}) {
    for (int index = 0; index < 9; ++index) {
      const Cells& unit = UnitCells(kind, index);
      const auto use = [&](const std::vector<int>& digits) {
        return naked ? TryNaked(unit, digits) : TryHidden(unit, digits);
      };
      if (Combinations(1, 9, size, use)) return true;
    }
  }
  return false;
}

bool PlainSolver::TryNaked(const Cells& unit, const std::vector<int>& digits) {
  Cells found;
  for (int cell : unit) {
    if (Contains(digits, CellValue[cell])) return false;
    bool within = CellValue[cell] == 0;
    for (int d = 1; d <= 9; ++d) within = within && (Contains(digits, d) || !Has(cell, d));
    if (within) found.push_back(cell);
  }
  if (found.size() != digits.size()) return false;
  bool removed = false;
  for (int cell : unit) {
    for (int d : digits) {
      if (!Contains(found, cell) && RemoveCandidate(d, cell)) removed = true;
    }
  }
  return removed;
}

bool PlainSolver::TryHidden(const Cells& unit, const std::vector<int>& digits) {
  Cells found;
  for (int d : digits) {
    if (Count(unit, d) == 0) return false;
  }
  for (int cell : unit) {
    if (std::any_of(digits.begin(), digits.end(), [&](int d) { return Has(cell, d); })) found.push_back(cell);
  }
  if (found.size() != digits.size()) return false;
  bool removed = false;
  for (int cell : found) {
    for (int d = 1; d <= 9; ++d) {
      if (!Contains(digits, d) && RemoveCandidate(d, cell)) removed = true;
    }
  }
  return removed;
}

bool PlainSolver::FindFish(int size, bool exact) {
  for (bool rows : {true, false}) {
    for (int d = 1; d <= 9; ++d) {
      const auto at = [&](int line, int position) {
        return rows ? 9 * line + position : 9 * position + line;
      };
      const auto use = [&](const std::vector<int>& cover) {
        std::vector<int> base;
        for (int line = 0; line < 9; ++line) {
          int inside = 0;
          int outside = 0;
          for (int position = 0; position < 9; ++position) {
            if (Has(at(line, position), d)) ++(Contains(cover, position) ? inside : outside);
          }
          if (outside == 0 && (exact ? inside == size : inside > 0)) base.push_back(line);
        }
        if (static_cast<int>(base.size()) != size) return false;
        bool removed = false;
        for (int line = 0; line < 9; ++line) {
          for (int position : cover) {
            if (!Contains(base, line) && RemoveCandidate(d, at(line, position))) removed = true;
          }
        }
        return removed;
      };
      if (Combinations(0, 8, size, use)) return true;
    }
  }
  return false;
}

bool PlainSolver::FindXYWing() {
  const auto use = [&](const std::vector<int>& digits) {
    const int x = digits[0];
    const int y = digits[1];
    const int z = digits[2];
    for (int pivot = 0; pivot < 81; ++pivot) {
      if (Exactly(pivot, {x, y}) && XYBlock(pivot, {x, z}, {y, z}, z)) return true;
      if (Exactly(pivot, {x, z}) && XYBlock(pivot, {x, y}, {y, z}, y)) return true;
      if (Exactly(pivot, {y, z}) && XYBlock(pivot, {x, z}, {x, y}, x)) return true;
    }
    return false;
  };
  return Combinations(1, 9, 3, use);
}

bool PlainSolver::XYBlock(int pivot, std::array<int, 2> wing1, std::array<int, 2> wing2, int removed) {
  static constexpr std::array<std::array<Kind, 2>, 6> kOrder = {
      {{kRow, kColumn}, {kRow, kBox}, {kColumn, kRow}, {kColumn, kBox}, {kBox, kRow}, {kBox, kColumn}}};
  const auto unit = [&](Kind kind) {
    return UnitCells(kind, kind == kRow ? Row(pivot) : kind == kColumn ? Col(pivot) : Box(pivot));
  };
  for (const auto& kinds : kOrder) {
    for (int w1 : unit(kinds[0])) {
      if (!Exactly(w1, {wing1[0], wing1[1]})) continue;
      for (int w2 : unit(kinds[1])) {
        if (!Exactly(w2, {wing2[0], wing2[1]})) continue;
        if (removed > 0) {
          if (EliminateSeenByBoth(w1, w2, removed)) return true;
          continue;
        }
        bool any = false;  // a negative digit: the XYZ-Wing's removal, which the pivot must see as well
        for (int cell = 0; cell < 81; ++cell) {
          if (cell == pivot || cell == w1 || cell == w2) continue;
          if (Sees(cell, pivot) && Sees(cell, w1) && Sees(cell, w2) && RemoveCandidate(-removed, cell))
            any = true;
        }
        if (any) return true;
      }
    }
  }
  return false;
}

bool PlainSolver::FindXYZWing() {
  const auto use = [&](const std::vector<int>& t) {
    const std::array<std::array<int, 3>, 3> lists = {
        {{t[0], t[1], t[2]}, {t[1], t[0], t[2]}, {t[2], t[0], t[1]}}};
    for (int pivot = 0; pivot < 81; ++pivot) {
      if (!Exactly(pivot, {t[0], t[1], t[2]})) continue;
      for (const auto& list : lists) {
        if (XYBlock(pivot, {list[0], list[1]}, {list[0], list[2]}, -list[0])) return true;
      }
    }
    return false;
  };
  return Combinations(1, 9, 3, use);
}

}  // namespace kestrel::plain
