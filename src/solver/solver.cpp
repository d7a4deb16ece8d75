// SPDX-License-Identifier: MIT
// The driver: every step the simplest technique that makes progress.
#include "solver/solver.h"

#include <algorithm>

namespace kestrel {
namespace {

// Tries the first `rows` techniques of the table in order; the step of the one that made progress, or 0.
int TryTechniques(SolverState& state, const SolverInput& input, int rows) {
  for (int row = 0; row < rows; ++row) {
    if (kTechniqueTable[row].routine(state, input)) return row + 1;
  }
  return 0;
}

// What the technique left to its caller: step and removals.
void CompleteFinding(Finding& finding, int step, const SolverState& before, const SolverState& after) {
  finding.step = step;
  if (finding.placed_digit != 0) return;
  for (int cell = 0; cell < kCells; ++cell) {
    const CandidateMask gone = before.CellMask(cell) & ~after.CellMask(cell);
    if (gone != 0) finding.removals.push_back({cell, gone});
  }
}

// The same with a description of what was found.
int TryAndDescribe(SolverState& state, const DigitGrid& givens, int rows, Finding& finding) {
  const SolverState before = state;
  finding = {};
  const int step = TryTechniques(state, {givens, &finding}, rows);
  if (step != 0) CompleteFinding(finding, step, before, state);
  return step;
}

}  // namespace

Rating SolveAndRate(const DigitGrid& givens, Yield& yield, const RateOptions& options) {
  Rating rating{.state = SolverState(givens)};
  const int rows = TechniquesUpTo(options.highest_level);
  int level = 1;
  while (!rating.state.Solved()) {
    if (!yield.KeepGoing()) {
      rating.outcome = RateOutcome::Stopped;
      return rating;
    }
    int step = 0;
    if (options.observer == nullptr) {
      step = TryTechniques(rating.state, {givens}, rows);
    } else {
      Finding finding;
      step = TryAndDescribe(rating.state, givens, rows, finding);
      if (step != 0) options.observer->OnStep(finding, rating.state);
    }
    if (step == 0) {
      rating.outcome = rows == kTechniques ? RateOutcome::Rated : RateOutcome::Above;
      rating.level = rows == kTechniques ? kBeyondTechniques : 0;
      return rating;
    }
    const TechniqueRow& technique = TechniqueOfStep(step);
    ++rating.counters[technique.counter];
    // A technique is tried only when all lower tiers have failed in this round.
    level = std::max(level, technique.tier);
  }
  rating.level = level;
  return rating;
}

int FirstTechnique(SolverState& state, const DigitGrid& givens, Finding* finding) {
  if (finding == nullptr) return TryTechniques(state, {givens}, kTechniques);
  return TryAndDescribe(state, givens, kTechniques, *finding);
}

}  // namespace kestrel
