// SPDX-License-Identifier: MIT
#include "stock/canonical_form.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>

#include "support/test_puzzles.h"

namespace kestrel {
namespace {

template <std::size_t N>
std::array<int, N> Shuffled(RandomSource& random) {
  std::array<int, N> order{};
  std::iota(order.begin(), order.end(), 0);
  for (std::size_t i = N - 1; i > 0; --i) std::swap(order[i], order[random.Below(static_cast<int>(i) + 1)]);
  return order;
}

// Nine lines, three by three: the groups and the lines inside each in random order.
std::array<int, 9> LineOrder(RandomSource& random) {
  std::array<int, 9> order{};
  const auto groups = Shuffled<3>(random);
  for (int group = 0; group < 3; ++group) {
    const auto inside = Shuffled<3>(random);
    for (int k = 0; k < 3; ++k) order[3 * group + k] = 3 * groups[group] + inside[k];
  }
  return order;
}

// A random disguise, applied to two grids alike.
void Disguise(RandomSource& random, DigitGrid& a, DigitGrid& b) {
  const auto rows = LineOrder(random);
  const auto columns = LineOrder(random);
  const auto names = Shuffled<9>(random);
  const bool turn = random.Below(2) == 1;
  for (DigitGrid* grid : {&a, &b}) {
    const DigitGrid old = *grid;
    for (int cell = 0; cell < kCells; ++cell) {
      const int source = 9 * rows[cell / 9] + columns[cell % 9];
      const int digit = old[source];
      (*grid)[turn ? 9 * (cell % 9) + cell / 9 : cell] =
          static_cast<std::uint8_t>(digit == 0 ? 0 : 1 + names[digit - 1]);
    }
  }
}

TEST(CanonicalForm, IsTheSameForEveryDisguiseAndForNothingElse) {
  RandomSource random(31);
  std::set<CanonicalPuzzle> forms;
  for (int round = 0; round < 12; ++round) {
    DigitGrid givens = testing::MakeTestPuzzle(random);
    DigitGrid solution{};
    ASSERT_EQ(testing::CountSolutions(givens, 2, &solution), 1);
    const CanonicalPuzzle form = CanonicalForm(givens, solution);
    // It is a disguise of the puzzle itself: a valid solution with the givens in it, and its own form.
    DigitGrid solved{};
    ASSERT_EQ(testing::CountSolutions(form.givens, 2, &solved), 1);
    EXPECT_EQ(solved, form.solution);
    EXPECT_EQ(CanonicalForm(form.givens, form.solution), form);
    for (int disguise = 0; disguise < 8; ++disguise) {
      Disguise(random, givens, solution);
      EXPECT_GE(solution, form.solution);
      ASSERT_EQ(CanonicalForm(givens, solution), form);
    }
    forms.insert(form);
    // One given more is another puzzle with the same solution.
    const auto empty = std::ranges::find(givens, 0);
    *empty = solution[empty - givens.begin()];
    forms.insert(CanonicalForm(givens, solution));
  }
  EXPECT_EQ(forms.size(), 24U);
}

// The grid with the most symmetries maps to itself in many ways; the givens decide between them.
TEST(CanonicalForm, SymmetricSolution) {
  RandomSource random(8);
  DigitGrid solution{};
  for (int cell = 0; cell < kCells; ++cell) {
    const int row = cell / 9;
    solution[cell] = static_cast<std::uint8_t>(1 + (3 * (row % 3) + row / 3 + cell % 9) % 9);
  }
  for (int round = 0; round < 20; ++round) {
    DigitGrid givens{};
    for (int k = 0; k < 25; ++k) {
      const int cell = random.Below(81);
      givens[cell] = solution[cell];
    }
    const CanonicalPuzzle form = CanonicalForm(givens, solution);
    Disguise(random, givens, solution);
    ASSERT_EQ(CanonicalForm(givens, solution), form);
  }
}

}  // namespace
}  // namespace kestrel
