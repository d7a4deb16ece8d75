// SPDX-License-Identifier: MIT
// The solver against its plain twin: the same levels, counts, scores, order of steps and final states on
// seeded puzzles, and the same result of every technique on states that no rating ever meets.
#include <gtest/gtest.h>

#include <cstdlib>

#include "solver/positions.h"
#include "support/plain_solver.h"
#include "support/test_puzzles.h"

namespace kestrel::testing {
namespace {

// More rounds when the environment asks for a thorough run, as before a change of the searches is committed.
int Rounds(int usual) {
  const char* factor = std::getenv("KESTREL_THOROUGH");
  return factor == nullptr ? usual : usual * std::atoi(factor);
}

class StepNames final : public StepObserver {
 public:
  void OnStep(const Finding& finding, const SolverState&) override { steps.push_back(finding.technique); }
  std::vector<Technique> steps;
};

template <class Grid>
std::array<int, kCells> Plain(const Grid& grid) {
  std::array<int, kCells> plain{};
  for (int cell = 0; cell < kCells; ++cell) plain[cell] = grid[cell];
  return plain;
}

// Empty when both states agree, else the first cell that differs. Checks on the way that the forms of the
// candidates agree with each other.
std::string Difference(const SolverState& state, const plain::PlainSolver& plain) {
  bool solved = true;
  for (int cell = 0; cell < kCells; ++cell) {
    if (state.CellValue(cell) != plain.CellValue[cell]) return "digit of " + CellName(cell);
    if (state.CellMask(cell) != plain.Mask(cell)) return "candidates of " + CellName(cell);
    solved = solved && plain.CellValue[cell] != 0;
    for (int digit = 1; digit <= 9; ++digit) {
      const bool flag = plain.CandidateFlag[digit - 1][cell];
      bool same = state.CandidateFlag(digit - 1, cell) == flag && state.Cells(digit).Has(cell) == flag;
      for (int k = 0; k < 3; ++k) {
        const unsigned places = state.Places(digit, kUnitTables.unit[cell][k]);
        same = same && ((places & kUnitTables.position[cell][k]) != 0) == flag;
        same =
            same && HasDigit(state.LoneDigits(kUnitTables.unit[cell][k]), digit) == (BitCount[places] == 1);
      }
      if (!same) return "forms of " + CellName(cell);
    }
  }
  return state.Solved() == solved ? "" : "solved";
}

class Comparison : public ::testing::TestWithParam<std::uint64_t> {
 protected:
  RandomSource random_{GetParam()};
};

TEST_P(Comparison, RatesLikeThePlainSolver) {
  NeverStop yield;
  for (int i = 0; i < Rounds(250); ++i) {
    DigitGrid givens = MakeTestPuzzle(random_);
    // Some puzzles with several solutions, and some that contradict themselves, also between their givens.
    if (i % 8 == 6) givens[random_.Below(kCells)] = 0;
    if (i % 8 == 7) givens[random_.Below(kCells)] = static_cast<std::uint8_t>(1 + random_.Below(9));
    SCOPED_TRACE(TextFromGrid(givens));
    plain::PlainSolver plain;
    const int level = plain.SolveAndRate(Plain(givens));
    StepNames observer;
    const Rating rating = SolveAndRate(givens, yield, {.observer = &observer});
    ASSERT_EQ(rating.outcome, RateOutcome::Rated);
    ASSERT_EQ(rating.level, level);
    ASSERT_EQ(Plain(givens), plain.Givens);
    for (int k = 0; k < kTechniques; ++k) ASSERT_EQ(rating.counters[k], plain.TechniqueCounters[k]) << k;
    ASSERT_EQ(rating.Score(), plain::PlainSolver::Score(level, plain.TechniqueCounters));
    ASSERT_EQ(observer.steps, plain.Steps);
    ASSERT_EQ(Difference(rating.state, plain), "");
    const Rating unobserved = SolveAndRate(givens, yield);
    ASSERT_EQ(unobserved.counters, rating.counters);
    ASSERT_EQ(unobserved.state, rating.state);
  }
}

// Chance makes too few rectangles: corners that share two digits, and couples for the Multi X-Wing.
void PlantRectangles(RandomSource& random, int digits, Position& position) {
  for (int planted = 0; planted < 8; ++planted) {
    const std::array<int, 2> row{random.Below(9), random.Below(9)};
    const std::array<int, 2> column{random.Below(9), random.Below(9)};
    const bool turned = random.Below(2) == 0;
    const auto cell_at = [turned](int r, int c) { return turned ? RowCell[c][r] : RowCell[r][c]; };
    const auto digit = [first = random.Below(digits)](int k) { return DigitBit((first + k) % 9 + 1); };
    if (planted < 4) {
      for (int k = 0; k < 18; ++k) {
        CandidateMask& marks = position.marks[cell_at(row[k / 9], k % 9)];
        marks = Without(marks, digit(0) | digit(1));
      }
    }
    for (int corner = 0; corner < 4; ++corner) {
      const bool roof = corner == 3 || (corner == 2 && planted % 2 == 0);
      const int rectangle = digit(0) | digit(1) | (roof ? digit(2) : 0);
      const int couple = digit(corner / 2) | digit(2 + corner % 2);
      position.marks[cell_at(row[corner / 2], column[corner % 2])] =
          static_cast<CandidateMask>(planted < 4 ? couple : rectangle);
    }
  }
}

// Marks such as a player may leave them, and worse: right ones with some rubbed out, stale ones beside placed
// digits, marks in solved cells, digits at random; and many cells with two or three of a few digits.
Position RandomPosition(RandomSource& random) {
  Position position("");
  const DigitGrid puzzle = MakeTestPuzzle(random);
  DigitGrid solution{};
  CountSolutions(puzzle, 1, &solution);
  const int kind = random.Below(4);
  const double solved = random.Next() * 0.7;
  const double density = random.Next();
  const double stale = random.Next() < 0.5 ? 0.0 : random.Next() * 0.3;
  const int digits = 4 + random.Below(4);
  for (int cell = 0; cell < kCells; ++cell) {
    const bool placed = random.Next() < solved;
    if (puzzle[cell] != 0 || placed) position.digits[cell] = solution[cell];
    if (kind == 2 && placed) position.digits[cell] = static_cast<std::uint8_t>(1 + random.Below(9));
    position.givens[cell] = kind == 2 && random.Next() < 0.5 ? std::uint8_t{0} : puzzle[cell];
  }
  const SolverState right(position.digits);
  for (int cell = 0; cell < kCells; ++cell) {
    unsigned mask = kind < 2 ? right.CellMask(cell) : 0U;
    for (unsigned bit = 1; bit < 512; bit <<= 1U) {
      const bool flip = random.Next() < density * 0.4;
      const bool keep = kind == 0 && bit == DigitBit(solution[cell]);
      if (flip && !keep) mask = kind == 0 ? mask & ~bit : mask ^ bit;
    }
    if (kind == 3) {
      mask = DigitBit(1 + random.Below(digits));
      for (int more = 1 + (random.Next() < density * 0.5 ? 1 : 0); more > 0; --more) {
        mask |= DigitBit(1 + random.Below(digits));
      }
    }
    const bool kept = position.digits[cell] == 0 || random.Next() < stale;
    position.marks[cell] = static_cast<CandidateMask>(kept ? mask : 0);
  }
  if (kind == 3) PlantRectangles(random, digits, position);
  return position;
}

TEST_P(Comparison, EveryTechniqueDoesTheSameOnAnyState) {
  std::array<int, kTechniques + 1> hits{};
  for (int i = 0; i < Rounds(100); ++i) {
    const Position position = RandomPosition(random_);
    for (const Technique technique : kAllTechniques) {
      SCOPED_TRACE(TextFromGrid(position.digits) + " step " + std::to_string(StepOf(technique)));
      SolverState state = position.State();
      plain::PlainSolver plain;
      plain.Givens = Plain(position.givens);
      plain.Load(Plain(position.digits), Plain(position.marks));
      // Several calls in a row, so that what is remembered between them matters.
      bool found = true;
      for (int call = 0; call < 4 && found; ++call) {
        found = RowOf(technique).routine(state, {position.givens});
        ASSERT_EQ(found, plain.Try(technique));
        ASSERT_EQ(Difference(state, plain), "");
        hits[StepOf(technique)] += found ? 1 : 0;
      }
    }
    SolverState state = position.State();
    plain::PlainSolver plain;
    plain.Givens = Plain(position.givens);
    plain.Load(Plain(position.digits), Plain(position.marks));
    for (int call = 0; call < 40; ++call) {
      const Technique technique = FirstTechnique(state, position.givens);
      ASSERT_EQ(technique, plain.FirstTechnique());
      ASSERT_EQ(Difference(state, plain), "");
      if (technique == Technique::None) break;
    }
  }
  for (int step = 1; step <= kTechniques; ++step) EXPECT_GT(hits[step], 0) << step;
}

INSTANTIATE_TEST_SUITE_P(Seeds, Comparison, ::testing::Values(1, 2, 3, 4));

}  // namespace
}  // namespace kestrel::testing
