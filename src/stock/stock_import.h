// SPDX-License-Identifier: MIT
// Puts puzzles of any origin into a stock. Used by `stock import`.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/stock_table.h"
#include "stock/level_fill.h"
#include "stock/puzzle_judge.h"

namespace kestrel {

// Why a puzzle does not get into the stock.
struct Refusal {
  std::string source;  // of the puzzle, as it was handed in
  std::string reason;
};

// What becomes of a level. Unless anything is imported it stays as it is.
struct LevelImport {
  int imported = 0;    // puzzles that are new in the stock
  int there = 0;       // handed in, but in the level already; they stay, with their best times
  int kept = 0;        // old puzzles that were not handed in, and stay
  int made = 0;        // new puzzles for the rest
  int too_many = 0;    // handed in beyond the 100
  int times_lost = 0;  // best times of puzzles that had to go
};

enum class FillWith : std::uint8_t { Old, New };

struct ImportResult {
  StockTable stock;
  std::array<LevelImport, kLevels> levels{};
};

class StockImport {
 public:
  // `only_level` 1..5, or 0 for all. The stock must outlive this object.
  explicit StockImport(const StockTable& stock, int only_level = 0);

  // Hands in a puzzle with what the judge found. Puzzles without just one solution, of another level, or that
  // are another one in disguise are refused.
  void Take(const std::string& source, const DigitGrid& givens, const Verdict& verdict);

  [[nodiscard]] const std::vector<Refusal>& Refused() const { return refused_; }

  // The stock with the puzzles, each level in ascending order of score. Of more than 100 in a level those are
  // taken whose scores are spread evenly; where there are fewer, old puzzles stay (those with a best time
  // first, the others evenly spread), as far as they are sound, or new ones are made.
  [[nodiscard]] ImportResult Finish(FillWith fill, const FillRun& run);

 private:
  struct Place {
    int level;
    int number;
  };

  [[nodiscard]] std::string WhyNot(const Verdict& verdict) const;
  std::vector<SudokuRecord> Level(int level, FillWith fill, const FillRun& run, LevelImport& report);

  const StockTable& stock_;
  int only_level_;
  std::map<CanonicalPuzzle, Place> old_forms_;
  std::map<CanonicalPuzzle, std::string> new_forms_;  // with their sources
  std::array<std::vector<SudokuRecord>, kLevels> new_;
  std::set<int> there_;  // record numbers of old puzzles that were handed in
  std::vector<Refusal> refused_;
};

}  // namespace kestrel
