// SPDX-License-Identifier: MIT
// Puzzles by number: attempt n of a seed is the same puzzle always, so any number of threads may share the
// work. Used by `generate`, `stock new` and `stock renew`.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "generator/level_renewal.h"
#include "solver/solver.h"

namespace kestrel {

// `level` may also be 6, or 0 when it is above the highest level asked for.
struct RatedPuzzle : RatedNewPuzzle {
  std::uint64_t attempt = 0;
};

// Makes and rates puzzle number `attempt` of the seed. A puzzle found to be above `highest_level` (1..5, or 6
// for no bound) is not rated further.
RatedPuzzle MakeRatedPuzzle(std::uint64_t seed, std::uint64_t attempt, int highest_level);

struct MakeRun {
  std::uint64_t seed = 0;
  int jobs = 1;
  int highest_level = kBeyondTechniques;  // as for MakeRatedPuzzle
  std::uint64_t first = 0;                // the first attempt
  std::uint64_t attempts = UINT64_MAX;    // the attempt that is not made any more
};

// Makes attempts first, first + 1 ... and hands them, bundle by bundle and in order, to `use`, until it returns false
// or all are made. `use` is never called by two threads at once.
void MakePuzzles(const MakeRun& run, const std::function<bool(const std::vector<RatedPuzzle>&)>& use);

}  // namespace kestrel
