// SPDX-License-Identifier: MIT
#include "cli/report_data.h"

#include <cmath>
#include <cstdint>
#include <numeric>

namespace kestrel {

std::uint64_t Sum(const PerLevel& counts) {
  return std::accumulate(counts.begin(), counts.end(), std::uint64_t{0});
}

void ReportData::Add(const ReportPuzzle& puzzle) {
  const auto level = static_cast<std::size_t>(puzzle.level - 1);
  ++puzzles_.at(level);
  ++scores_[level][puzzle.score];
  ++givens_[level][puzzle.givens];
  for (std::size_t slot = 0; slot < needing_.size(); ++slot) {
    if (puzzle.counts[slot] > 0) ++needing_[slot][level];
  }
  if (puzzle.best_seconds > 0) {
    best_times_.push_back({puzzle.level, puzzle.score, puzzle.best_seconds, puzzle.name});
  }
}

std::int32_t Quantile(const std::map<std::int32_t, std::uint64_t>& counts, double share) {
  std::uint64_t all = 0;
  for (const auto& [value, count] : counts) all += count;
  // The first value at which enough have been passed.
  const auto enough = static_cast<std::uint64_t>(std::ceil(share * static_cast<double>(all)));
  std::uint64_t passed = 0;
  for (const auto& [value, count] : counts) {
    passed += count;
    if (passed >= enough) return value;
  }
  return 0;
}

}  // namespace kestrel
