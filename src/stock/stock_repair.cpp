// SPDX-License-Identifier: MIT
#include "stock/stock_repair.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "stock/puzzle_judge.h"

namespace kestrel {
namespace {

// Goes through the levels one after another; what it knows of puzzles holds for the whole stock.
class Repairer {
 public:
  Repairer(const StockTable& stock, const StockTable* older, const FillRun& run) : older_(older), run_(run) {
    repair_.stock = stock;
  }

  Repair Run() {
    // Sound puzzles first, in all levels: a restored or new one must not take a form away from them.
    for (int level = 1; level <= kLevels; ++level) KeepGood(level);
    for (int level = 1; level <= kLevels && older_ != nullptr; ++level) Restore(level);
    for (int level = 1; level <= kLevels; ++level) {
      Fill(level);
      std::array<SudokuRecord, kPuzzlesPerLevel> records{};
      for (int i = 0; i < kPuzzlesPerLevel; ++i) records[i] = repair_.stock(level, i + 1);
      std::ranges::stable_sort(records, {}, &SudokuRecord::Score);
      for (int i = 0; i < kPuzzlesPerLevel; ++i) repair_.stock(level, i + 1) = records[i];
    }
    return repair_;
  }

 private:
  LevelRepair& Counts(int level) { return repair_.levels[static_cast<std::size_t>(level - 1)]; }
  bool& IsWhole(int level, int number) {
    return whole_[static_cast<std::size_t>(RecordNumber(level, number) - 1)];
  }

  // The record with what can be told from its puzzle put right; nothing when the puzzle is damaged or there
  // is already one like it.
  std::optional<SudokuRecord> Mended(const SudokuRecord& record, int level) {
    const Verdict verdict = judge_.Judge(record.GivenCells);
    if (verdict.solutions != 1 || verdict.solution != record.SolutionCells || verdict.level != level) {
      return std::nullopt;
    }
    if (!forms_.insert(verdict.form).second) return std::nullopt;
    SudokuRecord mended = RecordOf(record.GivenCells, verdict);
    mended.Reserved1 = record.Reserved1;
    mended.Reserved2 = record.Reserved2;
    const std::vector<RecordFault> faults = RecordFaults(record, level);
    if (std::ranges::count(faults, RecordFault::BestTime) == 0) {
      mended.BestMinutes = record.BestMinutes;
      mended.BestSeconds = record.BestSeconds;
      mended.BestPlayer = record.BestPlayer;
    }
    return mended;
  }

  void KeepGood(int level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      SudokuRecord& record = repair_.stock(level, number);
      const std::optional<SudokuRecord> mended = Mended(record, level);
      if (!mended) continue;
      ++(*mended == record ? Counts(level).good : Counts(level).mended);
      record = *mended;
      IsWhole(level, number) = true;
    }
  }

  void Restore(int level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      if (IsWhole(level, number)) continue;
      const std::optional<SudokuRecord> old = Mended((*older_)(level, number), level);
      if (!old) continue;
      repair_.stock(level, number) = *old;
      IsWhole(level, number) = true;
      ++Counts(level).restored;
    }
  }

  // The scores of the nearest whole records on both sides.
  ScoreRange RangeAt(int level, int number) {
    ScoreRange range;
    for (int below = number - 1; below >= 1 && range.lowest == 0; --below) {
      if (IsWhole(level, below)) range.lowest = repair_.stock(level, below).Score;
    }
    for (int above = kPuzzlesPerLevel; above > number; --above) {
      if (IsWhole(level, above)) range.highest = repair_.stock(level, above).Score;
    }
    return range;
  }

  void Fill(int level) {
    std::vector<int> numbers;
    std::vector<ScoreRange> ranges;
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      if (IsWhole(level, number)) continue;
      numbers.push_back(number);
      ranges.push_back(RangeAt(level, number));
    }
    const std::vector<SudokuRecord> made = MakeRecords(level, ranges, run_, forms_);
    for (std::size_t i = 0; i < made.size(); ++i) repair_.stock(level, numbers[i]) = made[i];
    Counts(level).made = static_cast<int>(made.size());
  }

  const StockTable* older_;
  const FillRun& run_;
  Repair repair_;
  PuzzleJudge judge_;
  std::set<CanonicalPuzzle> forms_;
  std::array<bool, kLevels * kPuzzlesPerLevel> whole_{};
};

}  // namespace

bool Repair::Changes() const {
  return std::ranges::any_of(levels, [](const LevelRepair& level) { return level.good < kPuzzlesPerLevel; });
}

Repair RepairStock(const StockTable& stock, const StockTable* older, const FillRun& run) {
  return Repairer(stock, older, run).Run();
}

}  // namespace kestrel
