// SPDX-License-Identifier: MIT
// The driver: every step the simplest technique that makes progress.
#include "solver/solver.h"

#include <algorithm>

#include "core/check.h"

namespace kestrel {
namespace {

// Every step places a digit or takes a candidate away, and neither ever comes back.
constexpr int kMostSteps = kCells + 9 * kCells;

// Tries the first `rows` techniques of the table in order; the one that made progress, or None.
Technique TryTechniques(SolverState& state, const SolverInput& input, int rows) {
  for (int row = 0; row < rows; ++row) {
    if (kTechniqueTable[row].routine(state, input)) return kTechniqueTable[row].technique;
  }
  return Technique::None;
}

// What the technique left to its caller: its name and the removals.
void CompleteFinding(Finding& finding, Technique technique, const SolverState& before,
                     const SolverState& after) {
  finding.technique = technique;
  if (finding.placed_digit != 0) return;
  for (int cell = 0; cell < kCells; ++cell) {
    const CandidateMask gone = before.CellMask(cell) & ~after.CellMask(cell);
    if (gone != 0) finding.removals.push_back({cell, gone});
  }
}

// The same with a description of what was found.
Technique TryAndDescribe(SolverState& state, const DigitGrid& givens, int rows, Finding& finding) {
  const SolverState before = state;
  finding = {};
  const Technique technique = TryTechniques(state, {givens, &finding}, rows);
  if (technique != Technique::None) CompleteFinding(finding, technique, before, state);
  return technique;
}

}  // namespace

Rating SolveAndRate(const DigitGrid& givens, Yield& yield, const RateOptions& options) {
  Rating rating{.state = options.start != nullptr ? *options.start : SolverState(givens)};
  const int rows = TechniquesUpTo(options.highest_level);
  int level = 1;
  for (int steps = 0; !rating.state.Solved(); ++steps) {
    // A technique that says it made progress and did not would go on for ever.
    Require(steps <= kMostSteps);
    if (!yield.KeepGoing()) {
      rating.outcome = RateOutcome::Stopped;
      return rating;
    }
    Technique found = Technique::None;
    if (options.observer == nullptr) {
      found = TryTechniques(rating.state, {givens}, rows);
    } else {
      Finding finding;
      found = TryAndDescribe(rating.state, givens, rows, finding);
      if (found != Technique::None) options.observer->OnStep(finding, rating.state);
    }
    if (found == Technique::None) {
      rating.outcome = rows == kTechniques ? RateOutcome::Rated : RateOutcome::Above;
      rating.level = rows == kTechniques ? kBeyondTechniques : 0;
      return rating;
    }
    const TechniqueRow& technique = RowOf(found);
    ++rating.counters[technique.counter];
    // A technique is tried only when all lower tiers have failed in this round.
    level = std::max(level, technique.tier);
  }
  rating.level = level;
  return rating;
}

Technique FirstTechnique(SolverState& state, const DigitGrid& givens, Finding* finding) {
  if (finding == nullptr) return TryTechniques(state, {givens}, kTechniques);
  return TryAndDescribe(state, givens, kTechniques, *finding);
}

}  // namespace kestrel
