// SPDX-License-Identifier: MIT
// The undo and redo history of the open puzzle. Used by cell input and the board commands.
//
//   entry    1   2   3   4   5   6        1..StepCount are done, the next up to StepTop can be done again
//                    ^       ^
//            StepCount       StepTop      0 <= StepCount <= StepTop
#pragma once

#include <cstdint>
#include <vector>

#include "core/check.h"
#include "core/grid.h"

namespace kestrel {

struct Step {
  // d (1..9): digit d assigned. -d: candidate d discarded. 10 + v: the cell was reset, it held v (0: empty).
  std::int16_t Action = 0;
  std::int16_t Cell = 0;
  // The cell's own marks that the step changed: hidden by an assignment or discard, shown by a reset.
  CandidateMask CellMarks = 0;
  // The marks of the assigned digit that the step hid in other cells, each in the first of the three that
  // has it. Bit j of ColumnMarks: row j; of RowMarks: column j; of BoxMarks: BoxCellDownwards(Cell, j).
  std::uint16_t ColumnMarks = 0;
  std::uint16_t RowMarks = 0;
  std::uint16_t BoxMarks = 0;

  friend bool operator==(const Step&, const Step&) = default;
};

class StepHistory {
 public:
  static constexpr int kMostSteps = 32767;

  [[nodiscard]] int StepCount() const { return step_count_; }
  [[nodiscard]] int StepTop() const { return static_cast<int>(steps_.size()); }
  [[nodiscard]] bool Full() const { return step_count_ == kMostSteps; }
  // How often the history has changed so far: when that number is the same, so is the player's board.
  [[nodiscard]] std::uint64_t Changes() const { return changes_; }

  // Entry 1..StepTop.
  [[nodiscard]] const Step& At(int number) const {
    Require(number >= 1 && number <= StepTop());
    return steps_[static_cast<std::size_t>(number - 1)];
  }

  // Cuts off what was undone and appends a step for the cell; the caller fills in the rest. Not when Full.
  Step& Append(int cell) {
    Require(!Full());
    steps_.resize(static_cast<std::size_t>(step_count_));
    ++step_count_;
    ++changes_;
    return steps_.emplace_back(Step{.Action = 0, .Cell = static_cast<std::int16_t>(cell)});
  }

  // The step to take back, and marks it as undone. StepCount must be above 0.
  const Step& TakeBack() {
    const Step& step = At(step_count_);
    --step_count_;
    ++changes_;
    return step;
  }

  // The step to do again, and marks it as done. StepCount must be below StepTop.
  const Step& DoAgain() {
    const Step& step = At(step_count_ + 1);
    ++step_count_;
    ++changes_;
    return step;
  }

  void Clear() {
    steps_.clear();
    step_count_ = 0;
    ++changes_;
  }

 private:
  std::vector<Step> steps_;
  int step_count_ = 0;
  std::uint64_t changes_ = 0;
};

}  // namespace kestrel
