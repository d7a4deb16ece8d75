// SPDX-License-Identifier: MIT
#include "stock/puzzle_maker.h"

#include <algorithm>
#include <cstdint>

#include "core/check.h"
#include "stock/ordered_work.h"

namespace kestrel {
namespace {

constexpr std::uint64_t kBundle = 16;

}  // namespace

// Not GenerateRound: that drops puzzles of level 6, which `generate` writes.
RatedPuzzle MakeRatedPuzzle(std::uint64_t seed, std::uint64_t attempt, int highest_level) {
  NeverStop yield;
  FixedSeeds seeds = PuzzleOfRun(seed, attempt);
  Generator generator(seeds);
  Require(generator.MakeFullGrid(yield) == Making::Made && generator.MakePuzzle(yield) == Making::Made);
  RateOptions options;
  options.highest_level = std::min(highest_level, kLevels);
  const Rating rating = SolveAndRate(generator.Givens, yield, options);
  return {{generator.Givens, generator.SolutionGrid, rating.level, rating.Score(), rating.counters}, attempt};
}

void MakePuzzles(const MakeRun& run, const std::function<bool(const std::vector<RatedPuzzle>&)>& use) {
  std::uint64_t next = run.first;
  const auto take = [&](std::uint64_t& first) {
    if (next >= run.attempts) return false;
    first = next;
    next += std::min(kBundle, run.attempts - next);
    return true;
  };
  const auto make_worker = [&] {
    return [&run](std::uint64_t first) {
      std::vector<RatedPuzzle> bundle;
      for (std::uint64_t i = first; i < first + std::min(kBundle, run.attempts - first); ++i) {
        bundle.push_back(MakeRatedPuzzle(run.seed, i, run.highest_level));
      }
      return bundle;
    };
  };
  RunOrdered<std::uint64_t>(run.jobs, take, make_worker, use);
}

}  // namespace kestrel
