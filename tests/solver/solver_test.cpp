// SPDX-License-Identifier: MIT
// The state, the table and the driver: what they promise by themselves, without the plain twin.
#include <gtest/gtest.h>

#include <fstream>
#include <numeric>

#include "solver/finding_check.h"
#include "support/test_puzzles.h"

namespace kestrel::testing {
namespace {

int Sum(const TechniqueCounters& counters) {
  return std::accumulate(counters.begin(), counters.end(), 0);
}

std::vector<DigitGrid> SignaturePuzzles() {
  std::vector<DigitGrid> puzzles;
  std::ifstream file(KESTREL_SOURCE_DIR "/tests/data/signature_puzzles.txt");
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with('#')) puzzles.push_back(GridFromText(line));
  }
  return puzzles;
}

// Answers the first n - 1 questions with yes and the n-th with no; counts what is asked.
class StopAt final : public Yield {
 public:
  explicit StopAt(int n) : n_(n) {}
  bool KeepGoing() override { return ++asked != n_; }
  int asked = 0;

 private:
  int n_;
};

TEST(SolverState, GivensGoInAsIfPlacedOneByOne) {
  RandomSource random(11);
  for (int i = 0; i < 300; ++i) {
    DigitGrid givens{};
    // Anything from a sensible puzzle to a mess; values above 9 count as empty.
    for (auto& given : givens) {
      if (random.Next() < 0.3) given = static_cast<std::uint8_t>(random.Below(i % 3 == 0 ? 13 : 10));
    }
    SolverState placed;
    for (int cell = 0; cell < kCells; ++cell) {
      if (givens[cell] >= 1 && givens[cell] <= 9) placed.PlaceValue(givens[cell], cell);
    }
    ASSERT_EQ(SolverState(givens), placed) << TextFromGrid(givens);
  }
}

TEST(Driver, AsksTheYieldBeforeEveryStepAndStopsAtItsWord) {
  const DigitGrid easy = SignaturePuzzles().front();
  DigitGrid solution{};
  ASSERT_EQ(CountSolutions(easy, 2, &solution), 1);
  StopAt never(0);
  const Rating full = SolveAndRate(solution, never);
  EXPECT_EQ(full.level, 1);
  EXPECT_EQ(Sum(full.counters), 0);
  EXPECT_EQ(never.asked, 0) << "nothing to do";

  const Rating rating = SolveAndRate(easy, never);
  const int steps = Sum(rating.counters);
  EXPECT_EQ(never.asked, steps);
  for (int n = 1; n <= steps; ++n) {
    StopAt yield(n);
    const Rating stopped = SolveAndRate(easy, yield);
    EXPECT_EQ(stopped.outcome, RateOutcome::Stopped);
    EXPECT_EQ(stopped.level, 0);
    EXPECT_EQ(Sum(stopped.counters), n - 1) << "no step after the word";
    EXPECT_EQ(yield.asked, n);
  }
  StopAt stuck(0);
  const Rating empty = SolveAndRate(DigitGrid{}, stuck);
  EXPECT_EQ(empty.level, kBeyondTechniques);
  EXPECT_EQ(stuck.asked, 1) << "the round that finds nothing was asked for as well";
}

TEST(Driver, WithABoundSolvesExactlyThePuzzlesWithinIt) {
  NeverStop yield;
  for (const DigitGrid& puzzle : SignaturePuzzles()) {
    const Rating rating = SolveAndRate(puzzle, yield);
    for (int bound = 1; bound <= kLevels; ++bound) {
      const Rating bounded = SolveAndRate(puzzle, yield, {.highest_level = bound});
      if (rating.level <= bound || bound == kLevels) {
        EXPECT_EQ(bounded.outcome, RateOutcome::Rated);
        EXPECT_EQ(bounded.level, rating.level);
        EXPECT_EQ(bounded.counters, rating.counters);
      } else {
        EXPECT_EQ(bounded.outcome, RateOutcome::Above);
        EXPECT_FALSE(bounded.state.Solved());
        EXPECT_LE(Sum(bounded.counters), Sum(rating.counters));
      }
    }
  }
}

// Looks over every step's shoulder.
class Referee final : public StepObserver {
 public:
  explicit Referee(const DigitGrid& givens) : givens_(givens), before_(givens) {
    EXPECT_EQ(CountSolutions(givens, 2, &solution_), 1);
  }
  void OnStep(const Finding& finding, const SolverState& after) override {
    ++found[StepOf(finding.technique)];
    EXPECT_NE(before_, after);
    EXPECT_TRUE(FindingCheck(finding, before_, givens_).Holds(after))
        << TextFromGrid(givens_) << " " << RowOf(finding.technique).caption << " " << Changes(before_, after);
    for (int cell = 0; cell < kCells; ++cell) {
      const int value = after.CellValue(cell);
      const bool right =
          value == solution_[cell] || (value == 0 && after.CandidateFlag(solution_[cell] - 1, cell));
      EXPECT_TRUE(right) << TextFromGrid(givens_) << " step " << StepOf(finding.technique) << " "
                         << CellName(cell);
    }
    before_ = after;
  }
  std::array<int, kTechniques + 1> found{};

 private:
  DigitGrid givens_;
  DigitGrid solution_{};
  SolverState before_;
};

void Watch(const DigitGrid& puzzle, std::array<int, kTechniques + 1>& found) {
  NeverStop yield;
  Referee referee(puzzle);
  const Rating rating = SolveAndRate(puzzle, yield, {.observer = &referee});
  EXPECT_EQ(rating.state.Solved(), rating.level <= kLevels);
  for (int step = 1; step <= kTechniques; ++step) {
    EXPECT_EQ(referee.found[step], rating.counters[RowOf(TechniqueOfStep(step)).counter]);
    found[step] += referee.found[step];
  }
  if (rating.level == kBeyondTechniques) {
    SolverState stuck = rating.state;
    EXPECT_EQ(FirstTechnique(stuck, puzzle), Technique::None);
    EXPECT_EQ(stuck, rating.state);
  }
}

TEST(Driver, NeverContradictsTheSolutionAndExplainsEveryStep) {
  std::array<int, kTechniques + 1> found{};
  RandomSource random(2024);
  for (int i = 0; i < 3000; ++i) Watch(MakeTestPuzzle(random), found);
  for (const DigitGrid& puzzle : SignaturePuzzles()) Watch(puzzle, found);
  for (int step = 1; step <= kTechniques; ++step) EXPECT_GT(found[step], 0) << step;
}

// One number over levels, scores, counts and order of steps. A commit that changes it says so and why.
TEST(Driver, KeepsItsSignature) {
  constexpr std::uint64_t kSignature = 8735593229459659690ULL;
  std::uint64_t hash = 14695981039346656037ULL;  // FNV-1a
  const auto mix = [&hash](int value) {
    hash = (hash ^ static_cast<std::uint64_t>(value)) * 1099511628211ULL;
  };
  struct Steps final : StepObserver {
    void OnStep(const Finding& finding, const SolverState&) override {
      list.push_back(StepOf(finding.technique));
    }
    std::vector<int> list;
  };
  const std::vector<DigitGrid> puzzles = SignaturePuzzles();
  ASSERT_EQ(puzzles.size(), 200U);
  NeverStop yield;
  for (const DigitGrid& puzzle : puzzles) {
    Steps steps;
    const Rating rating = SolveAndRate(puzzle, yield, {.observer = &steps});
    mix(rating.level);
    mix(rating.Score());
    for (const int count : rating.counters) mix(count);
    for (const int step : steps.list) mix(step);
  }
  EXPECT_EQ(hash, kSignature) << "Signature: " << hash;
}

}  // namespace
}  // namespace kestrel::testing
