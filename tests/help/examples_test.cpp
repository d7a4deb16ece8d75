// SPDX-License-Identifier: MIT
// The worked examples and the exercises against the solver, and reading and writing them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "explain/names.h"
#include "explain/technique_words.h"
#include "help/site_files.h"
#include "solver/solver.h"
#include "solver/technique_table.h"
#include "support/plain_solver.h"
#include "support/test_puzzles.h"

namespace kestrel::help {
namespace {

ExampleFile Read(const char* name) {
  return ReadExamples(FileText(std::string(KESTREL_SOURCE_DIR) + "/data/" + name));
}

// Examples and exercises, as they are shipped.
const std::vector<Example>& Shipped() {
  static const std::vector<Example> all = [] {
    std::vector<Example> examples = Read("examples.txt").examples;
    const std::vector<Example> exercises = Read("exercises.txt").examples;
    examples.insert(examples.end(), exercises.begin(), exercises.end());
    return examples;
  }();
  return all;
}

plain::PlainSolver PlainPosition(const Example& example) {
  plain::PlainSolver solver;
  std::array<int, kCells> digits{};
  std::array<int, kCells> marks{};
  for (int cell = 0; cell < kCells; ++cell) {
    digits[cell] = example.digits[cell];
    marks[cell] = example.marks[cell];
    solver.Givens[cell] = example.givens[cell];
  }
  solver.Load(digits, marks);
  return solver;
}

TEST(Examples, TheSolverFindsWhatEachExampleSays) {
  ASSERT_EQ(Read("examples.txt").error + Read("exercises.txt").error, "");
  for (const Example& example : Shipped()) {
    SCOPED_TRACE(example.key);
    // The plain second solver, which shares no code with the first: none of the simpler techniques works.
    plain::PlainSolver plain = PlainPosition(example);
    const Technique technique = example.finding.technique;
    for (int step = 1; step < StepOf(technique); ++step)
      EXPECT_FALSE(plain.Try(TechniqueOfStep(step))) << step;
    EXPECT_TRUE(plain.Try(technique));
    SolverState state = example.Position();
    Finding finding;
    ASSERT_EQ(FirstTechnique(state, example.givens, &finding), technique);
    EXPECT_TRUE(SameFinding(finding, example.finding));
    // The state afterwards differs by the removals and the placement, and by nothing else.
    SolverState expected = example.Position();
    for (const Removal& removal : example.finding.removals) {
      for (int digit = 1; digit <= 9; ++digit) {
        if (HasDigit(removal.digits, digit)) {
          EXPECT_TRUE(expected.RemoveCandidate(digit, removal.cell));
        }
      }
    }
    if (example.finding.placed_cell >= 0) {
      expected.PlaceValue(example.finding.placed_digit, example.finding.placed_cell);
    }
    EXPECT_TRUE(state == expected);
  }
}

// The position belongs to a proper puzzle and is true to it: digits and candidates keep the one solution, and
// nothing that the example does touches that solution.
TEST(Examples, PositionsAreTrueToTheirPuzzles) {
  for (const Example& example : Shipped()) {
    SCOPED_TRACE(example.key);
    DigitGrid solution{};
    ASSERT_EQ(testing::CountSolutions(example.givens, 2, &solution), 1);
    for (int cell = 0; cell < kCells; ++cell) {
      if (example.digits[cell] != 0) {
        EXPECT_EQ(example.digits[cell], solution[cell]);
      } else {
        EXPECT_TRUE(HasDigit(example.marks[cell], solution[cell])) << CellName(cell);
      }
    }
    for (const Removal& removal : example.finding.removals) {
      EXPECT_FALSE(HasDigit(removal.digits, solution[removal.cell])) << CellName(removal.cell);
    }
  }
}

// One worked example and three exercises of every form, all from different puzzles and of the form that their key
// names.
TEST(Examples, EveryFormHasItsExampleAndExercises) {
  std::map<std::string, const Example*> by_key;
  for (const Example& example : Shipped()) by_key[example.key] = &example;
  for (const Form& form : AllForms()) {
    std::set<DigitGrid> puzzles;
    for (const char* number : {"", "-1", "-2", "-3"}) {
      const std::string key = std::string(form.key) + number;
      ASSERT_TRUE(by_key.contains(key)) << key;
      EXPECT_TRUE(IsOfForm(by_key[key]->finding, form)) << key;
      puzzles.insert(by_key[key]->givens);
      by_key.erase(key);
    }
    EXPECT_EQ(puzzles.size(), 4U) << form.key;
  }
  EXPECT_TRUE(by_key.empty()) << by_key.begin()->first;
}

// Every change of one line that makes an example meaningless is refused, with the number of a line.
TEST(Examples, BrokenBlocksAreRefused) {
  const std::string good = WriteExample(*Read("examples.txt").Find("x_wing-rows"));
  ASSERT_EQ(ReadExamples(good).error, "");
  EXPECT_EQ(WriteExample(ReadExamples(good).examples.at(0)), good);
  const auto replaced = [&](const std::string& from, const std::string& to) {
    std::string text = good;
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
  };
  const std::string wrong[] = {
      replaced("technique X-Wing", "technique X-Ring"),
      replaced("form 1", "form 7"),
      replaced("digits ", "digits 0"),
      replaced("row C", "row I"),
      replaced("row J", "# row J"),
      replaced("units r", "units x"),
      replaced("covers c", "covers c0"),
      replaced("\ndigits ", std::string("\ndigits ") + good[good.find("\ndigits ") + 8]),
      replaced("pattern ", "pattern K"),
      replaced("\nremove", "\nput"),
      replaced("\nremove", "\nplace A1:1\nremove"),
      replaced("givens ", "givens x"),
      replaced("row A ", "row A =12 "),
      good + good,
      good.substr(0, good.find("pattern")),
      "row A 1 2 3 4 5 6 7 8 9\n",
  };
  for (const std::string& text : wrong) {
    const ExampleFile file = ReadExamples(text);
    EXPECT_EQ(file.error.rfind("line ", 0), 0U) << text;
  }
}

}  // namespace
}  // namespace kestrel::help
