// SPDX-License-Identifier: MIT
#include "stock/level_fill.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "stock/puzzle_judge.h"
#include "stock/puzzle_maker.h"

namespace kestrel {
namespace {

// After so many puzzles of all levels a score is given up; some seconds of one core.
constexpr std::uint64_t kLongWhile = 30'000;

constexpr std::size_t kMostSpare = 1'000;

// How far a score lies outside of a range.
std::int32_t Distance(const ScoreRange& range, std::int32_t score) {
  return std::max({0, range.lowest - score, score - range.highest});
}

class Places {
 public:
  explicit Places(const std::vector<ScoreRange>& ranges) : ranges_(ranges), records_(ranges.size()) {}

  [[nodiscard]] bool Full() const {
    return std::ranges::all_of(records_, [](const auto& record) { return record.has_value(); });
  }

  // Puts a record into the first open place that it fits, or keeps it for a time when none does any more.
  void Take(const SudokuRecord& record) {
    for (std::size_t i = 0; i < ranges_.size(); ++i) {
      if (records_[i] || Distance(ranges_[i], record.Score) > 0) continue;
      records_[i] = record;
      return;
    }
    if (spare_.size() < kMostSpare) spare_.push_back(record);
  }

  // Fills the open places with the records that were kept, always the nearest one.
  void TakeSpare() {
    for (std::size_t i = 0; i < ranges_.size() && !spare_.empty(); ++i) {
      if (records_[i]) continue;
      const auto nearest = std::ranges::min_element(
          spare_, {}, [&](const SudokuRecord& record) { return Distance(ranges_[i], record.Score); });
      records_[i] = *nearest;
      spare_.erase(nearest);
    }
  }

  [[nodiscard]] std::vector<SudokuRecord> All() const {
    std::vector<SudokuRecord> all;
    for (const std::optional<SudokuRecord>& record : records_) all.push_back(record.value());
    return all;
  }

 private:
  const std::vector<ScoreRange>& ranges_;
  std::vector<std::optional<SudokuRecord>> records_;
  std::vector<SudokuRecord> spare_;
};

}  // namespace

std::vector<SudokuRecord> MakeRecords(int level, const std::vector<ScoreRange>& ranges, const FillRun& run,
                                      std::set<CanonicalPuzzle>& known) {
  Places places(ranges);
  std::uint64_t made = 0;
  const auto use = [&](const std::vector<RatedPuzzle>& bundle) {
    for (const RatedPuzzle& puzzle : bundle) {
      if (places.Full()) return false;
      if (++made > kLongWhile) places.TakeSpare();
      if (puzzle.level != level) continue;
      if (!known.insert(CanonicalForm(puzzle.givens, puzzle.solution)).second) continue;
      const Verdict verdict{1, puzzle.solution, {}, level, puzzle.score, CountsBySlot(puzzle.counters)};
      places.Take(RecordOf(puzzle.givens, verdict));
    }
    run.progress(made);
    return !places.Full();
  };
  if (places.Full()) return {};
  MakePuzzles({.seed = run.seed, .jobs = run.jobs, .highest_level = level}, use);
  return places.All();
}

}  // namespace kestrel
