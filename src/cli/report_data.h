// SPDX-License-Identifier: MIT
// What a report tells of a collection: puzzles are counted as they come, so that a million of them need no more
// memory than a hundred. Used by `report`.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/grid.h"
#include "solver/solver.h"
#include "solver/technique_table.h"

namespace kestrel {

inline constexpr int kRatings = kBeyondTechniques;  // levels 1..5 and beyond

// Something counted per level; index 0 is level 1.
using PerLevel = std::array<std::uint64_t, kRatings>;

std::uint64_t Sum(const PerLevel& counts);

struct ReportPuzzle {
  int level = 0;  // 1..6
  std::int32_t score = 0;
  int givens = 0;
  SlotCounts counts{};
  int best_seconds = 0;  // 0: no best time
  std::string name;      // "Medium 7"; needed where there is a best time
};

struct BestTimeDot {
  int level;
  std::int32_t score;
  int seconds;
  std::string name;
};

class ReportData {
 public:
  void Add(const ReportPuzzle& puzzle);

  [[nodiscard]] std::uint64_t Puzzles() const { return Sum(puzzles_); }
  [[nodiscard]] const PerLevel& ByLevel() const { return puzzles_; }
  // How many puzzles of a level (1..6) have a score, and a number of givens.
  [[nodiscard]] const std::map<std::int32_t, std::uint64_t>& Scores(int level) const {
    return scores_[static_cast<std::size_t>(level - 1)];
  }
  [[nodiscard]] const std::map<std::int32_t, std::uint64_t>& Givens(int level) const {
    return givens_[static_cast<std::size_t>(level - 1)];
  }
  // How many puzzles need the technique of a display slot at least once.
  [[nodiscard]] const PerLevel& Needing(int slot) const { return needing_[static_cast<std::size_t>(slot)]; }
  [[nodiscard]] const std::vector<BestTimeDot>& BestTimes() const { return best_times_; }

 private:
  PerLevel puzzles_{};
  std::array<std::map<std::int32_t, std::uint64_t>, kRatings> scores_;
  std::array<std::map<std::int32_t, std::uint64_t>, kRatings> givens_;
  std::array<PerLevel, kTechniques> needing_{};
  std::vector<BestTimeDot> best_times_;
};

// The value below which `share` (0..1) of what was counted lies; 0 when nothing was.
std::int32_t Quantile(const std::map<std::int32_t, std::uint64_t>& counts, double share);

}  // namespace kestrel
