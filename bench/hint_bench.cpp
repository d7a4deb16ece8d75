// SPDX-License-Identifier: MIT
// How long a hint takes.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

#include "generator/generator.h"
#include "hint/hint_engine.h"
#include "solver/solver.h"

namespace kestrel {
namespace {

// Every state of a puzzle's solution by techniques, as a player who keeps all marks in order would have it.
class States final : public StepObserver {
 public:
  States(OpenPuzzle puzzle, std::vector<OpenPuzzle>& states) : puzzle_(std::move(puzzle)), states_(states) {}
  void OnStep(const Finding&, const SolverState& after) override {
    for (int cell = 0; cell < kCells; ++cell) {
      puzzle_.CurrentDigits[cell] = static_cast<std::uint8_t>(after.CellValue(cell));
      puzzle_.PencilMask[cell] = after.CellMask(cell);
    }
    states_.push_back(puzzle_);
  }

 private:
  OpenPuzzle puzzle_;
  std::vector<OpenPuzzle>& states_;
};

// The slowest of all hints along the solutions of 200 Very Hard puzzles.
void SlowestHint(benchmark::State& state) {
  FixedSeeds seeds(4);
  Generator generator(seeds);
  NeverStop yield;
  std::vector<OpenPuzzle> states;
  for (int found = 0; found < 200;) {
    if (generator.MakeFullGrid(yield) != Making::Made || generator.MakePuzzle(yield) != Making::Made) break;
    if (SolveAndRate(generator.Givens, yield).level != kLevels) continue;
    ++found;
    OpenPuzzle puzzle;
    puzzle.PuzzleLevel = kLevels;
    puzzle.GivenDigits = generator.Givens;
    puzzle.SolutionDigits = generator.SolutionGrid;
    States observer(puzzle, states);
    benchmark::DoNotOptimize(SolveAndRate(generator.Givens, yield, {.observer = &observer}));
  }
  using Clock = std::chrono::steady_clock;
  Clock::duration slowest{};
  for (auto _ : state) {
    for (const OpenPuzzle& puzzle : states) {
      const Clock::time_point start = Clock::now();
      benchmark::DoNotOptimize(FindHint(puzzle, yield));
      slowest = std::max(slowest, Clock::now() - start);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(states.size()));
  state.counters["slowest_us"] = std::chrono::duration<double, std::micro>(slowest).count();
}
BENCHMARK(SlowestHint)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kestrel
