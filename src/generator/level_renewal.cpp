// SPDX-License-Identifier: MIT
#include "generator/level_renewal.h"

#include <cstdint>

#include "solver/solver.h"

namespace kestrel {

RoundResult GenerateRound(Generator& generator, int level, Yield& yield, RatedNewPuzzle& puzzle) {
  if (generator.MakeFullGrid(yield) == Making::Stopped) return RoundResult::Stopped;
  if (generator.MakePuzzle(yield) == Making::Stopped) return RoundResult::Stopped;
  RateOptions options;
  if (level != 0) options.highest_level = level;
  const Rating rating = SolveAndRate(generator.Givens, yield, options);
  if (rating.outcome == RateOutcome::Stopped) return RoundResult::Stopped;
  if (rating.outcome == RateOutcome::Above || rating.level > kLevels) return RoundResult::Dropped;
  if (level != 0 && rating.level != level) return RoundResult::Dropped;
  puzzle = {generator.Givens, generator.SolutionGrid, rating.level, rating.Score(), rating.counters};
  return RoundResult::Kept;
}

void SetFloor(StockTable& stock, int level) {
  stock(level, kPuzzlesPerLevel).Score = 0;
}

int FilePuzzle(StockTable& stock, const RatedNewPuzzle& puzzle) {
  const int level = puzzle.level;
  int place = kPuzzlesPerLevel;
  while (place > 0 && puzzle.score <= stock(level, place).Score) --place;
  if (place == 0) return 0;
  for (int number = 1; number < place; ++number) stock(level, number) = stock(level, number + 1);
  SudokuRecord& record = stock(level, place);
  record.Level = static_cast<std::int16_t>(level);
  record.Reserved2 = 0;
  record.BestMinutes = record.BestSeconds = record.BestPlayer = 0;
  record.Score = puzzle.score;
  record.GivenCells = puzzle.givens;
  record.SolutionCells = puzzle.solution;
  for (int slot = 0; slot < TechniquesUpTo(level); ++slot) {
    record.TechniqueCount[slot] = puzzle.counters[kCounterOfSlot[slot]];
  }
  return place;
}

FixedSeeds PuzzleOfRun(std::uint64_t seed, std::uint64_t number) {
  std::uint64_t state = seed ^ SplitMix64(number);
  return FixedSeeds(SplitMix64(state));
}

}  // namespace kestrel
