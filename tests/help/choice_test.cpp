// SPDX-License-Identifier: MIT
// Which positions become examples: the forms, what counts as clear, and what rules out the other places of a
// hidden single.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "help/blockers.h"
#include "help/cell_names.h"
#include "help/forms.h"

namespace kestrel::help {
namespace {

const Form& FormOf(std::string_view key) {
  for (const Form& form : AllForms()) {
    if (form.key == key) return form;
  }
  ADD_FAILURE() << key;
  return AllForms()[0];
}

Finding Sketch(int step, int form, std::vector<PatternCell> pattern, std::vector<Unit> units = {}) {
  Finding finding;
  finding.step = step;
  finding.form = form;
  finding.pattern = std::move(pattern);
  finding.units = std::move(units);
  return finding;
}

PatternCell At(const char* name, CandidateMask digits, Role role = Role::Base) {
  return {CellOfName(name), digits, role};
}

// Which forms of a step a finding has, as keys joined by blanks.
std::string FormsOf(const Finding& finding) {
  std::string keys;
  for (const Form& form : AllForms()) {
    if (IsOfForm(finding, form)) keys += (keys.empty() ? "" : " ") + std::string(form.key);
  }
  return keys;
}

TEST(Forms, TellTheirFindingsApart) {
  EXPECT_EQ(FormsOf(Sketch(3, 1, {At("A1", 1), At("A2", 1)})), "pointing-pair-row");
  EXPECT_EQ(FormsOf(Sketch(3, 2, {At("A1", 1), At("B1", 1), At("C1", 1)})), "pointing-triple-column");
  EXPECT_EQ(FormsOf(Sketch(6, 1, {At("A1", 0b011), At("A2", 0b110), At("A3", 0b101)})), "naked_triple-ring");
  EXPECT_EQ(FormsOf(Sketch(6, 1, {At("A1", 0b011), At("A2", 0b111), At("A3", 0b101)})), "naked_triple-line");
  const Unit row{UnitKind::Row, 0};
  const Unit column{UnitKind::Column, 0};
  const Unit box{UnitKind::Box, 0};
  const auto wing = [&](int step, Unit first, Unit second, const char* a, const char* b) {
    return FormsOf(Sketch(step, 0, {At("A1", 3, Role::Pivot), At(a, 5, Role::Wing), At(b, 6, Role::Wing)},
                          {first, second}));
  };
  EXPECT_EQ(wing(12, row, column, "A7", "G1"), "xy_wing-row-column");
  EXPECT_EQ(wing(12, column, row, "G1", "A7"), "xy_wing-row-column");
  EXPECT_EQ(wing(12, row, column, "A3", "G1"), "");  // a wing in the pivot's box: not the plain case
  EXPECT_EQ(wing(12, box, row, "B2", "A7"), "xy_wing-row-box");
  EXPECT_EQ(wing(20, column, box, "G1", "B2"), "xyz_wing-column-box");
  const std::vector<PatternCell> corners{At("A1", 1), At("A7", 1), At("D1", 1), At("D7", 1)};
  std::vector<PatternCell> finned = corners;
  finned.push_back(At("D8", 1, Role::Fin));
  EXPECT_EQ(FormsOf(Sketch(17, 1, finned)), "finned-rows-one");
  finned.push_back(At("D9", 1, Role::Fin));
  EXPECT_EQ(FormsOf(Sketch(17, 2, finned)), "finned-columns-two");
  EXPECT_EQ(FormsOf(Sketch(18, 2, corners)), "unique-type2-two-boxes");
  EXPECT_EQ(FormsOf(Sketch(18, 2, {At("A1", 3), At("A2", 3), At("D1", 7), At("D2", 7)})),
            "unique-type2-one-box");
}

// The marks of an empty board without `digit` but in the cells named.
MarkGrid OnlyIn(int digit, const std::vector<const char*>& cells) {
  MarkGrid marks;
  marks.fill(static_cast<CandidateMask>(kAllDigits & ~DigitBit(digit)));
  for (const char* cell : cells) marks[CellOfName(cell)] |= DigitBit(digit);
  return marks;
}

TEST(Clarity, PrefersMoreRemovalsFewerOthersAndCloserCells) {
  const std::vector<const char*> cells{"A1", "A2", "A5", "A6"};
  Finding finding = Sketch(3, 1, {At("A1", DigitBit(4)), At("A2", DigitBit(4))});
  finding.digits = DigitBit(4);
  finding.removals = {{CellOfName("A5"), DigitBit(4)}, {CellOfName("A6"), DigitBit(4)}};
  const DigitGrid empty{};
  const double both = Clarity({empty, OnlyIn(4, cells)}, finding);
  const double cluttered = Clarity({empty, OnlyIn(4, {"A1", "A2", "A5", "A6", "H8", "J9"})}, finding);
  EXPECT_GT(both, cluttered);
  Finding spread = finding;
  spread.removals[1].cell = CellOfName("A9");
  EXPECT_GT(both, Clarity({empty, OnlyIn(4, {"A1", "A2", "A5", "A9"})}, spread));
  Finding one = finding;
  one.removals.pop_back();
  EXPECT_GT(both, Clarity({empty, OnlyIn(4, {"A1", "A2", "A5"})}, one));
}

// A naked single to which row, column and box all add something teaches more than one that the row decides.
TEST(Clarity, NakedSinglesNeedAllThreeUnits) {
  DigitGrid by_row{};
  DigitGrid by_all{};
  for (int column = 1; column < 9; ++column) by_row[column] = static_cast<std::uint8_t>(column + 1);
  by_all[3] = 2, by_all[4] = 3, by_all[5] = 4;
  by_all[27] = 5, by_all[36] = 6, by_all[45] = 7;
  by_all[10] = 8, by_all[20] = 9;
  Finding finding = Sketch(2, 0, {{0, DigitBit(1), Role::Base}});
  finding.digits = DigitBit(1);
  finding.placed_cell = 0;
  finding.placed_digit = 1;
  EXPECT_GT(Clarity(SolverState(by_all), finding), Clarity(SolverState(by_row), finding));
}

TEST(Blockers, AreFewAndExplainTheUnit) {
  DigitGrid digits{};
  digits[CellOfName("B5")] = 7;  // sees A4, A5, A6
  digits[CellOfName("D1")] = 7;  // sees A1
  digits[CellOfName("F8")] = 7;  // sees A8
  digits[CellOfName("C9")] = 7;  // sees A7, A8, A9, which makes F8 needless
  const Unit row{UnitKind::Row, 0};
  const Blockers some = FindBlockers(digits, row, CellOfName("A2"), 7);
  EXPECT_EQ(CellNames(some.cells), "B5, C9 and D1");
  EXPECT_FALSE(some.all_explained);  // A3 lost its 7 in another way
  digits[CellOfName("A3")] = 1;
  EXPECT_TRUE(FindBlockers(digits, row, CellOfName("A2"), 7).all_explained);
  EXPECT_TRUE(FindBlockers(digits, row, CellOfName("A2"), 6).cells.empty());
}

TEST(Forms, AreNamedOnce) {
  for (const Form& form : AllForms()) EXPECT_EQ(&FormOf(form.key), &form) << form.key;
}

}  // namespace
}  // namespace kestrel::help
