// SPDX-License-Identifier: MIT
#include "cli/explain.h"

#include <gtest/gtest.h>

#include <set>

#include "solver/solver.h"
#include "support/test_puzzles.h"

namespace kestrel {
namespace {

CandidateMask Mask(std::initializer_list<int> digits) {
  CandidateMask mask = 0;
  for (const int digit : digits) mask |= DigitBit(digit);
  return mask;
}

constexpr Unit Row(int index) {
  return {UnitKind::Row, index};
}
constexpr Unit Column(int index) {
  return {UnitKind::Column, index};
}
constexpr Unit Box(int index) {
  return {UnitKind::Box, index};
}

Finding Removing(int step, CandidateMask digits, std::vector<PatternCell> pattern, std::vector<Unit> units,
                 std::vector<Unit> covers, int form, std::vector<Removal> removals) {
  return {step, digits, std::move(pattern), std::move(units), std::move(covers), form,
          -1,   0,      std::move(removals)};
}

TEST(Explain, Names) {
  EXPECT_EQ(CellName(0), "A1");
  EXPECT_EQ(CellName(24), "C7");
  EXPECT_EQ(CellName(71), "H9");
  EXPECT_EQ(CellName(72), "J1");
  const std::array<Unit, 3> rows{Row(0), Row(2), Row(8)};
  EXPECT_EQ(UnitNames(rows), "rows A, C and J");
  const std::array<Unit, 2> mixed{Row(2), Column(4)};
  EXPECT_EQ(UnitNames(mixed), "row C and column 5");
  const std::array<Unit, 2> boxes{Box(0), Box(8)};
  EXPECT_EQ(UnitNames(boxes), "boxes 1 and 9");
}

// One sentence for every way of describing a pattern.
TEST(Explain, Sentences) {
  using enum Role;
  const CandidateMask four = Mask({4});
  Finding single{1, Mask({5}), {{24, Mask({5}), Base}}, {Row(2)}, {}, 2, 24, 5, {}};
  EXPECT_EQ(StepSentence(single), "Hidden Single on 5: no other place in row C: places 5 in C7");
  single.step = 2;
  single.units.clear();
  EXPECT_EQ(StepSentence(single), "Naked Single on 5: C7 has no other candidate: places 5 in C7");
  EXPECT_EQ(StepSentence(Removing(3, four, {{0, four, Base}, {2, four, Base}}, {Box(0)}, {Row(0)}, 1,
                                  {{5, four}, {7, four}})),
            "Pointing Pair on 4: A1, A3 in box 1 and in row A: removes 4 from A6, A8");
  EXPECT_EQ(StepSentence(Removing(7, Mask({4, 9}), {{18, Mask({4, 9}), Base}, {22, Mask({4, 9}), Base}},
                                  {Row(2)}, {}, 1, {{18, Mask({1, 2})}, {22, Mask({7})}})),
            "Hidden Pair on 4 and 9: C1, C5 in row C: removes 1 and 2 from C1; 7 from C5");
  const std::vector<PatternCell> corners{
      {19, four, Base}, {25, four, Base}, {55, four, Base}, {61, four, Base}};
  EXPECT_EQ(StepSentence(Removing(11, four, corners, {Row(2), Row(6)}, {Column(1), Column(7)}, 1,
                                  {{28, four}, {43, four}})),
            "X-Wing on 4: C2, C8, G2, G8 in rows C and G, columns 2 and 8: removes 4 from D2, E8");
  std::vector<PatternCell> finned = corners;
  finned.push_back({62, four, Fin});
  EXPECT_EQ(
      StepSentence(Removing(17, four, finned, {Row(2), Row(6)}, {Column(7), Column(1)}, 1, {{70, four}})),
      "Finned X-Wing on 4: C2, C8, G2, G8 in rows C and G, columns 2 and 8, fin G9: removes 4 from H8");
  EXPECT_EQ(
      StepSentence(Removing(12, Mask({2, 5, 8}),
                            {{0, Mask({2, 5}), Pivot}, {6, Mask({2, 8}), Wing}, {27, Mask({5, 8}), Wing}},
                            {Row(0), Column(0)}, {}, 0, {{33, Mask({8})}})),
      "XY-Wing on 2, 5 and 8: pivot A1 {2,5}, wings A7 {2,8}, D1 {5,8}: removes 8 from D7");
  EXPECT_EQ(
      StepSentence(Removing(13, four,
                            {{45, four, Base}, {51, four, Link}, {43, four, Link}, {16, four, Base}},
                            {Row(5), Column(7)}, {Box(5)}, 0, {{9, four}})),
      "2 String Kite on 4: F1, F7 in row F, E8, B8 in column 8, joined by F7, E8 in box 6: removes 4 from "
      "B1");
  EXPECT_EQ(
      StepSentence(Removing(16, Mask({1, 2, 3, 4}),
                            {{0, Mask({1, 3}), Base},
                             {5, Mask({1, 4}), Base},
                             {36, Mask({2, 3}), Base},
                             {41, Mask({2, 4}), Base}},
                            {Row(0), Row(4)}, {Column(0), Column(5)}, 1, {{72, Mask({3})}})),
      "Multi X-Wing on 1, 2, 3 and 4: A1 {1,3}, A6 {1,4}, E1 {2,3}, E6 {2,4} in rows A and E, columns 1 "
      "and 6: removes 3 from J1");
  EXPECT_EQ(
      StepSentence(Removing(18, Mask({3, 7}),
                            {{0, Mask({3, 7}), Floor},
                             {1, Mask({3, 7}), Floor},
                             {27, Mask({3, 7}), Floor},
                             {28, Mask({3, 5, 7}), Roof}},
                            {Row(0)}, {}, 1, {{28, Mask({3, 7})}})),
      "Unique Rectangle type 1 on 3 and 7: floor A1 {3,7}, A2 {3,7}, D1 {3,7}, roof D2 {3,5,7}: removes 3 "
      "and 7 from D2");
  EXPECT_EQ(
      StepSentence(Removing(
          19, Mask({3, 7, 2}),
          {{0, Mask({3}), Base}, {1, Mask({7}), Base}, {27, Mask({2, 7}), Roof}, {28, Mask({2, 3}), Roof}},
          {Row(0)}, {}, 2, {{30, Mask({2})}})),
      "Avoidable Rect. on 2, 3 and 7: solved A1 {3}, A2 {7}, open D1 {2,7}, D2 {2,3}: removes 2 from D4");
  EXPECT_EQ(
      StepSentence(Removing(21, four, {{1, four, Base}, {9, four, Base}, {14, four, Link}, {68, four, Link}},
                            {Box(0), Column(5)}, {Row(1), Column(1)}, 1, {{64, four}})),
      "Empty Rectangle on 4: A2, B1 in box 1 on the cross of row B and column 2, pair B6, H6 in column 6: "
      "removes 4 from H2");
}

// Real steps: every cell, digit and unit that matters is named.
class NamesEverything final : public StepObserver {
 public:
  void OnStep(const Finding& finding, const SolverState& /*after*/) override {
    steps.insert(finding.step);
    const std::string text = StepSentence(finding) + " ";
    const auto names = [&](const std::string& what) { return text.find(what) != std::string::npos; };
    for (const PatternCell& cell : finding.pattern) {
      EXPECT_TRUE(names(CellName(cell.cell))) << text;
    }
    for (const Removal& removal : finding.removals) {
      EXPECT_NE(text.find(CellName(removal.cell), text.find("removes")), std::string::npos) << text;
      EXPECT_TRUE(names(DigitNames(removal.digits) + " from ")) << text;
    }
    EXPECT_TRUE(names("on " + DigitNames(finding.digits) + ": ")) << text;
    EXPECT_EQ(names("places"), finding.removals.empty()) << text;
  }

  std::set<int> steps;
};

TEST(Explain, NamesEverythingInRealSteps) {
  RandomSource random(2);
  NamesEverything observer;
  NeverStop yield;
  RateOptions options;
  options.observer = &observer;
  for (int round = 0; round < 1000; ++round) SolveAndRate(testing::MakeTestPuzzle(random), yield, options);
  EXPECT_GE(observer.steps.size(), 17U);
}

}  // namespace
}  // namespace kestrel
