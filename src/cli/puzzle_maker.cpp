// SPDX-License-Identifier: MIT
#include "cli/puzzle_maker.h"

#include <algorithm>

#include "cli/ordered_work.h"
#include "core/check.h"

namespace kestrel {
namespace {

constexpr std::uint64_t kBundle = 16;

}  // namespace

void PuzzleMaker::AttemptSeeds::Start(std::uint64_t attempt) {
  std::uint64_t mixed = attempt;
  state_ = seed_ ^ SplitMix64(mixed);
  state_ = SplitMix64(state_);
}

RatedPuzzle PuzzleMaker::Make(std::uint64_t attempt, int highest_level) {
  NeverStop yield;
  seeds_.Start(attempt);
  Require(generator_.MakeFullGrid(yield) == Making::Made && generator_.MakePuzzle(yield) == Making::Made);
  RateOptions options;
  options.highest_level = std::min(highest_level, kLevels);
  const Rating rating = SolveAndRate(generator_.Givens, yield, options);
  return {attempt, generator_.Givens, generator_.SolutionGrid, rating.level, rating.Score(), rating.counters};
}

void MakePuzzles(const MakeRun& run, const std::function<bool(const std::vector<RatedPuzzle>&)>& use) {
  std::uint64_t next = 0;
  const auto take = [&](std::uint64_t& first) {
    if (next >= run.attempts) return false;
    first = next;
    next += std::min(kBundle, run.attempts - next);
    return true;
  };
  const auto make_worker = [&] {
    return [&run, maker = PuzzleMaker(run.seed)](std::uint64_t first) mutable {
      std::vector<RatedPuzzle> bundle;
      for (std::uint64_t i = first; i < first + std::min(kBundle, run.attempts - first); ++i) {
        bundle.push_back(maker.Make(i, run.highest_level));
      }
      return bundle;
    };
  };
  RunOrdered<std::uint64_t>(run.jobs, take, make_worker, use);
}

}  // namespace kestrel
