// SPDX-License-Identifier: MIT
// How fast puzzles are rated. tools/peer_bench.sh puts the figures beside those of another program.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

#include "generator/generator.h"
#include "solver/solver.h"

namespace kestrel {
namespace {

// 20,000 puzzles as the generator makes them, of all levels: made once, before anything is measured.
const std::vector<DigitGrid>& Puzzles() {
  static const std::vector<DigitGrid> puzzles = [] {
    FixedSeeds seeds(3);
    Generator generator(seeds);
    NeverStop yield;
    std::vector<DigitGrid> made;
    while (made.size() < 20000 && generator.MakeFullGrid(yield) == Making::Made &&
           generator.MakePuzzle(yield) == Making::Made) {
      made.push_back(generator.Givens);
    }
    return made;
  }();
  return puzzles;
}

class Listener final : public StepObserver {
 public:
  void OnStep(const Finding& finding, const SolverState&) override {
    benchmark::DoNotOptimize(finding.technique);
  }
};

void RateAll(benchmark::State& state, Yield& yield, const RateOptions& options) {
  const std::vector<DigitGrid>& puzzles = Puzzles();
  std::size_t next = 0;
  double steps = 0;
  for (auto _ : state) {
    const Rating rating = SolveAndRate(puzzles[next], yield, options);
    for (const int count : rating.counters) steps += count;
    next = (next + 1) % puzzles.size();
  }
  state.SetItemsProcessed(state.iterations());
  state.counters["steps"] = benchmark::Counter(steps, benchmark::Counter::kAvgIterations);
}

void Rate(benchmark::State& state) {
  NeverStop yield;
  RateAll(state, yield, {});
}
BENCHMARK(Rate)->MinTime(2);

// Giving up as soon as the level is above the argument.
void RateUpToLevel(benchmark::State& state) {
  NeverStop yield;
  RateAll(state, yield, {.highest_level = static_cast<int>(state.range(0))});
}
BENCHMARK(RateUpToLevel)->DenseRange(1, 4);

void RateAndDescribeEveryStep(benchmark::State& state) {
  NeverStop yield;
  Listener observer;
  RateAll(state, yield, {.observer = &observer});
}
BENCHMARK(RateAndDescribeEveryStep);

}  // namespace
}  // namespace kestrel
