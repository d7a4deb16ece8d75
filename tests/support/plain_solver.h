// SPDX-License-Identifier: MIT
// A second solver for the tests: every technique in its most literal form, on plain arrays, sharing nothing but the names of the
// techniques with the product's solver. Slow and easy to check by eye; the product's solver must agree with it always.
#pragma once

#include <array>
#include <vector>

#include "core/technique.h"

namespace kestrel::plain {

class PlainSolver {
 public:
  std::array<int, 81> Givens{};  // what Avoidable Rectangle takes for given
  std::array<int, 81> CellValue{};
  std::array<std::array<bool, 81>, 9> CandidateFlag{};  // [digit - 1][cell]
  std::array<int, kTechniques> TechniqueCounters{};     // in counter order
  std::vector<Technique> Steps;                         // that succeeded, in order

  // Rates `givens`: 1..6. Leaves the final state, the counters and the steps.
  int SolveAndRate(const std::array<int, 81>& givens);

  // Loads digits and candidate masks as they are, for FirstTechnique.
  void Load(const std::array<int, 81>& digits, const std::array<int, 81>& masks);
  // Applies the first technique that makes progress; which one, or None.
  Technique FirstTechnique();
  // Applies one technique; whether it changed the state.
  bool Try(Technique technique);

  [[nodiscard]] int Mask(int cell) const;
  static int Score(int level, const std::array<int, kTechniques>& counters);

 private:
  using Cells = std::vector<int>;
  enum Kind { kRow, kColumn, kBox };

  [[nodiscard]] bool Has(int cell, int digit) const { return CandidateFlag[digit - 1][cell]; }
  [[nodiscard]] int Count(const Cells& unit, int digit) const;
  [[nodiscard]] bool Exactly(int cell, std::initializer_list<int> digits) const;
  static const Cells& UnitCells(Kind kind, int index);
  static bool Sees(int a, int b);

  void PlaceValue(int digit, int cell);
  bool RemoveCandidate(int digit, int cell);
  bool EliminateSeenByBoth(int a, int b, int digit);

  bool FindHiddenSingle();
  bool FindNakedSingle();
  bool FindPointing();
  bool FindBoxLine();
  bool FindSubset(bool naked, int size);
  bool TryNaked(const Cells& unit, const std::vector<int>& digits);
  bool TryHidden(const Cells& unit, const std::vector<int>& digits);
  bool FindFish(int size, bool exact);
  bool FindXYWing();
  bool XYBlock(int pivot, std::array<int, 2> wing1, std::array<int, 2> wing2, int removed);
  bool FindXYZWing();
  bool FindTwoStringKite();
  bool FindSkyscraper();
  bool SkyscraperPair(Kind kind, int i, int j, int digit);
  bool FindMultiXWing();
  bool MultiCase(Kind lines, std::array<int, 4> p, int d1, int d2);
  bool FindFinnedXWing();
  bool FinnedPass(bool rows);
  bool FindUniqueRectangle();
  bool UniqueFloor(const Cells& floor, const Cells& three, int a, int b, int d1, int d2, bool rows);
  bool FindAvoidableRectangle();
  bool AvoidablePass1();
  bool AvoidablePass2();
  bool FindEmptyRectangle();
  bool EmptyCross(int box, int row, int column, int digit);
};

}  // namespace kestrel::plain
