// SPDX-License-Identifier: MIT
// Puzzles by number: attempt n of a seed is the same puzzle always, so any number of threads may share the
// work. Used by `generate`, `stock new` and `stock renew`.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "cli/rating_text.h"
#include "core/grid.h"
#include "core/random_source.h"
#include "generator/generator.h"
#include "solver/solver.h"

namespace kestrel {

struct RatedPuzzle {
  std::uint64_t attempt = 0;
  DigitGrid givens{};
  DigitGrid solution{};
  int level = 0;  // 1..6; 0 when it is above the highest level asked for
  std::int32_t score = 0;
  TechniqueCounters counters{};
};

class PuzzleMaker {
 public:
  explicit PuzzleMaker(std::uint64_t seed) : seeds_(seed), generator_(seeds_) {}

  // Makes and rates puzzle number `attempt` of the seed. A puzzle found to be above `highest_level` (1..5, or
  // 6 for no bound) is not rated further.
  RatedPuzzle Make(std::uint64_t attempt, int highest_level);

 private:
  // The seeds of one attempt: where they start is a mix of the seed and the attempt's number.
  class AttemptSeeds final : public SeedSource {
   public:
    explicit AttemptSeeds(std::uint64_t seed) : seed_(seed) {}
    void Start(std::uint64_t attempt);
    std::uint64_t NextSeed() override { return SplitMix64(state_); }

   private:
    std::uint64_t seed_;
    std::uint64_t state_ = 0;
  };

  AttemptSeeds seeds_;
  Generator generator_;
};

struct MakeRun {
  std::uint64_t seed = 0;
  int jobs = 1;
  int highest_level = kBeyondTechniques;  // as for PuzzleMaker::Make
  std::uint64_t attempts = UINT64_MAX;    // how many at most
};

// Makes attempts 0, 1, 2 ... and hands them, bundle by bundle and in order, to `use`, until it returns false
// or all are made. `use` is never called by two threads at once.
void MakePuzzles(const MakeRun& run, const std::function<bool(const std::vector<RatedPuzzle>&)>& use);

}  // namespace kestrel
