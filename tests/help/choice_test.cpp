// SPDX-License-Identifier: MIT
// Which positions become examples: the forms, and what rules out the other places of a hidden single.
#include <gtest/gtest.h>

#include <string>

#include "explain/blockers.h"
#include "explain/cell_names.h"
#include "explain/forms.h"

namespace kestrel::help {
namespace {

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

}  // namespace
}  // namespace kestrel::help
