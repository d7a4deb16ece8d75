// SPDX-License-Identifier: MIT
// Counts the solutions of a puzzle. The second opinion of `rate --solutions` and of the stock check: it
// shares no code with the generator, whose puzzles it judges.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"

namespace kestrel {

struct SolutionCount {
  int count = 0;      // 0, 1 or 2 (two or more)
  DigitGrid first{};  // the first solution found; all 0 when there is none
};

// Knuth's Algorithm X on dancing links (2000). A sudoku is an exact cover problem: every choice "digit d in
// cell c" meets four constraints, and every one of the 324 constraints must be met by exactly one choice:
//
//      0..80   cell c holds a digit            162..242  column c holds the digit d
//     81..161  row r holds the digit d         243..323  box b holds the digit d
//
// One object may be used again and again, by one thread at a time.
class SolutionCounter {
 public:
  SolutionCounter();

  // The solutions of `givens` (0 = empty cell), counted up to two. Givens that contradict each other and
  // numbers above 9 have no solution.
  SolutionCount Count(const DigitGrid& givens);

 private:
  static constexpr int kConstraints = 4 * kCells;
  static constexpr int kChoices = 9 * kCells;
  static constexpr int kNodes = 1 + kConstraints + 4 * kChoices;
  using Links = std::array<std::int16_t, kNodes>;

  // Node 0 is the root of the list of open constraints, nodes 1..324 are their heads, and the four nodes of
  // choice k = 9 x cell + digit - 1 are 325 + 4k .. 325 + 4k + 3: the row links of the literature are not
  // needed. `up` and `down` join the choices that still can meet a constraint into a ring with its head.
  struct Matrix {
    Links up{};
    Links down{};
    std::array<std::int16_t, kConstraints + 1> left{};
    std::array<std::int16_t, kConstraints + 1> right{};
    std::array<std::int16_t, kConstraints + 1> size{};
  };

  static int FirstNode(int choice) { return 1 + kConstraints + 4 * choice; }
  int Head(int node) const { return head_[node]; }
  void Cover(int head);
  void Uncover(int head);
  void Choose(int choice);
  void TakeBack(int choice);
  bool IsOpen(int choice) const;
  int SmallestConstraint() const;
  void Search(int filled);

  Links head_{};  // node -> head of its constraint
  Matrix full_;   // of the empty grid
  Matrix now_;
  std::array<bool, kConstraints + 1> covered_{};
  DigitGrid grid_{};
  SolutionCount result_;
};

}  // namespace kestrel
