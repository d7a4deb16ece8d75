// SPDX-License-Identifier: MIT
#include "explain/walkthrough.h"

#include <cstdint>

namespace kestrel {
namespace {

void TakePosition(const SolverState& state, Example& example) {
  for (int cell = 0; cell < kCells; ++cell) {
    example.digits[cell] = static_cast<std::uint8_t>(state.CellValue(cell));
    example.marks[cell] = state.CellMask(cell);
  }
}

class StepKeeper final : public StepObserver {
 public:
  StepKeeper(const DigitGrid& givens, const SolverState& start, std::vector<Example>& steps)
      : givens_(givens), steps_(steps), before_(start) {}

  void OnStep(const Finding& finding, const SolverState& after) override {
    Example& step = steps_.emplace_back();
    step.givens = givens_;
    step.finding = finding;
    TakePosition(before_, step);
    before_ = after;
  }

 private:
  const DigitGrid& givens_;
  std::vector<Example>& steps_;
  SolverState before_;
};

}  // namespace

Example Walkthrough::PositionAt(std::size_t i) const {
  if (i < steps.size()) return steps[i];
  Example end;
  end.givens = givens;
  TakePosition(rating.state, end);
  return end;
}

std::optional<Walkthrough> ExplainPuzzle(const DigitGrid& givens, Yield& yield, const SolverState* start) {
  Walkthrough walkthrough{.givens = givens, .rating = {}, .steps = {}};
  StepKeeper keeper(walkthrough.givens, start != nullptr ? *start : SolverState(givens), walkthrough.steps);
  walkthrough.rating = SolveAndRate(givens, yield, {.start = start, .observer = &keeper});
  if (walkthrough.rating.outcome == RateOutcome::Stopped) return std::nullopt;
  return walkthrough;
}

}  // namespace kestrel
