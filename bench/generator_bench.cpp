// SPDX-License-Identifier: MIT
// How fast the generator is. tools/peer_bench.sh puts the figures beside those of another program.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

#include "generator/generator.h"
#include "generator/level_renewal.h"
#include "support/plain_generator.h"

namespace kestrel {
namespace {

class Counting final : public Yield {
 public:
  [[nodiscard]] bool KeepGoing() override {
    ++count;
    return true;
  }
  double count = 0;
};

template <class AnyGenerator>
void FullGrid(benchmark::State& state) {
  FixedSeeds seeds(1);
  AnyGenerator generator(seeds);
  NeverStop yield;
  for (auto _ : state) benchmark::DoNotOptimize(generator.MakeFullGrid(yield));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(FullGrid<Generator>);
BENCHMARK(FullGrid<PlainGenerator>);

// A full grid, then every pair tried.
template <class AnyGenerator, class AnyYield = NeverStop>
void Puzzle(benchmark::State& state) {
  FixedSeeds seeds(1);
  AnyGenerator generator(seeds);
  AnyYield yield;
  for (auto _ : state) {
    benchmark::DoNotOptimize(generator.MakeFullGrid(yield));
    benchmark::DoNotOptimize(generator.MakePuzzle(yield));
  }
  state.SetItemsProcessed(state.iterations());
  if constexpr (std::is_same_v<AnyYield, Counting>) {
    state.counters["yields"] = benchmark::Counter(yield.count, benchmark::Counter::kAvgIterations);
  }
}
BENCHMARK(Puzzle<Generator>);
BENCHMARK(Puzzle<PlainGenerator>);
BENCHMARK(Puzzle<Generator, Counting>);

std::vector<DigitGrid> SomePuzzles(std::size_t count) {
  FixedSeeds seeds(2);
  Generator generator(seeds);
  NeverStop yield;
  std::vector<DigitGrid> puzzles;
  while (puzzles.size() < count && generator.MakeFullGrid(yield) == Making::Made &&
         generator.MakePuzzle(yield) == Making::Made) {
    puzzles.push_back(generator.Givens);
  }
  return puzzles;
}

template <class AnyGenerator>
void UniquenessOfAPuzzle(benchmark::State& state) {
  const std::vector<DigitGrid> puzzles = SomePuzzles(1000);
  NeverStop yield;
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(AnyGenerator::HasUniqueSolution(puzzles[next], yield));
    next = (next + 1) % puzzles.size();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(UniquenessOfAPuzzle<Generator>);
BENCHMARK(UniquenessOfAPuzzle<PlainGenerator>);

// Rounds of a renewal until a level has its hundred. The argument is the level.
void HundredOfALevel(benchmark::State& state) {
  const int level = static_cast<int>(state.range(0));
  NeverStop yield;
  double rounds = 0;
  std::uint64_t run = 0;
  for (auto _ : state) {
    FixedSeeds seeds(++run);
    Generator generator(seeds);
    RatedNewPuzzle puzzle;
    for (int kept = 0; kept < kPuzzlesPerLevel; ++rounds) {
      if (GenerateRound(generator, level, yield, puzzle) == RoundResult::Kept) ++kept;
    }
  }
  state.counters["rounds"] = benchmark::Counter(rounds, benchmark::Counter::kAvgIterations);
}
BENCHMARK(HundredOfALevel)->DenseRange(1, kLevels)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace kestrel
