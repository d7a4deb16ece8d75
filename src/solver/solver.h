// SPDX-License-Identifier: MIT
// The driver: solves a puzzle as a person would and rates it by what that took. Used by renewal, command line
// and tests; the hints use FirstTechnique.
#pragma once

#include <cstdint>

#include "core/grid.h"
#include "core/yield.h"
#include "solver/finding.h"
#include "solver/solver_state.h"
#include "solver/technique_table.h"

namespace kestrel {

inline constexpr int kBeyondTechniques = 6;  // the level of a puzzle that the techniques do not solve

// Told about every step that made progress.
class StepObserver {
 public:
  StepObserver() = default;
  StepObserver(const StepObserver&) = delete;
  StepObserver& operator=(const StepObserver&) = delete;
  virtual ~StepObserver() = default;
  // `finding` is complete; `after` is the state with the step done. Both are valid during the call only.
  virtual void OnStep(const Finding& finding, const SolverState& after) = 0;
};

struct RateOptions {
  // Give up as soon as the level is known to be above this, 1..5. 5 still rates a puzzle that the techniques
  // do not solve as 6; it is no bound at all.
  int highest_level = kLevels;
  // A position to go on from, as SolverState(digits, marks) makes it; null: the givens alone.
  const SolverState* start = nullptr;
  // Told about every step; null costs nothing.
  StepObserver* observer = nullptr;
};

enum class RateOutcome : std::uint8_t {
  Rated,    // level is the rating, 1..6
  Stopped,  // the yield said stop; there is no rating
  Above,    // the level is above options.highest_level; which level was not looked for
};

struct Rating {
  RateOutcome outcome = RateOutcome::Rated;
  int level = 0;                 // 1..5, 6 = beyond the techniques; 0 unless outcome is Rated
  TechniqueCounters counters{};  // steps made so far, whatever the outcome
  SolverState state;             // where the solver ended
  // PuzzleScore of level and counters.
  [[nodiscard]] std::int32_t Score() const { return PuzzleScore(level, counters); }
};

// Solves the puzzle with the techniques of the table, always the first that makes progress, and counts them.
// The level is the highest tier that was needed: 1..5, or 6 when no technique helps any more. Asks `yield`
// before every step, not at all when the givens fill the grid. Givens are 0..9; they are not checked.
Rating SolveAndRate(const DigitGrid& givens, Yield& yield, const RateOptions& options = {});

// Tries the techniques once each, in order, on `state`. Returns the first that made progress, with the state
// changed and `finding`, if not null, filled; None and nothing changed when none did.
// `givens` tells the Avoidable Rectangle which digits were given.
Technique FirstTechnique(SolverState& state, const DigitGrid& givens, Finding* finding = nullptr);

}  // namespace kestrel
