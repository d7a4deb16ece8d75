// SPDX-License-Identifier: MIT
#include "stock/stock_import.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "solver/solver.h"

namespace kestrel {
namespace {

void SortRecords(std::vector<SudokuRecord>& records) {
  std::ranges::stable_sort(records, {}, &SudokuRecord::Score);
}

// Takes `count` of the records out, at even distances of their order by score.
std::vector<SudokuRecord> TakeSpread(std::vector<SudokuRecord> records, std::size_t count) {
  SortRecords(records);
  if (records.size() <= count) return records;
  std::vector<SudokuRecord> taken;
  for (std::size_t i = 0; i < count; ++i) {
    taken.push_back(records[count == 1 ? records.size() / 2 : i * (records.size() - 1) / (count - 1)]);
  }
  return taken;
}

void Append(std::vector<SudokuRecord>& all, const std::vector<SudokuRecord>& more) {
  all.insert(all.end(), more.begin(), more.end());
}

int TimesIn(const std::vector<SudokuRecord>& records) {
  return static_cast<int>(std::ranges::count_if(records, [](const auto& r) { return BestTime(r) > 0; }));
}

}  // namespace

StockImport::StockImport(const StockTable& stock, int only_level) : stock_(stock), only_level_(only_level) {
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const SudokuRecord& record = stock(level, number);
      if (!RecordFaults(record, level).empty()) continue;
      old_forms_.emplace(CanonicalForm(record.GivenCells, record.SolutionCells), Place{level, number});
    }
  }
}

std::string StockImport::WhyNot(const Verdict& verdict) const {
  if (verdict.solutions == 0) return "it has no solution";
  if (verdict.solutions > 1) return "it has more than one solution";
  if (verdict.level > kLevels) return "it takes more than the " + std::to_string(kTechniques) + " techniques";
  if (only_level_ != 0 && verdict.level != only_level_)
    return "it is of level " + std::to_string(verdict.level);
  if (const auto twin = new_forms_.find(verdict.form); twin != new_forms_.end()) {
    return "it is the puzzle of " + twin->second + " in disguise";
  }
  const auto old = old_forms_.find(verdict.form);
  if (old != old_forms_.end() && old->second.level != verdict.level) {
    return "it is level " + std::to_string(old->second.level) + " number " +
           std::to_string(old->second.number) + " of the stock in disguise";
  }
  return {};
}

void StockImport::Take(const std::string& source, const DigitGrid& givens, const Verdict& verdict) {
  const std::string reason = WhyNot(verdict);
  if (!reason.empty()) {
    refused_.push_back({source, reason});
    return;
  }
  new_forms_.emplace(verdict.form, source);
  if (const auto old = old_forms_.find(verdict.form); old != old_forms_.end()) {
    there_.insert(RecordNumber(old->second.level, old->second.number));
  } else {
    new_[static_cast<std::size_t>(verdict.level - 1)].push_back(RecordOf(givens, verdict));
  }
}

std::vector<SudokuRecord> StockImport::Level(int level, FillWith fill, const FillRun& run,
                                             LevelImport& report) {
  const std::vector<SudokuRecord>& handed_in = new_[static_cast<std::size_t>(level - 1)];
  std::vector<SudokuRecord> all;
  std::vector<SudokuRecord> timed;
  std::vector<SudokuRecord> untimed;
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    const SudokuRecord& record = stock_(level, number);
    if (!RecordFaults(record, level).empty()) continue;
    const bool is_there = there_.contains(RecordNumber(level, number));
    (is_there ? all : BestTime(record) > 0 ? timed : untimed).push_back(record);
  }
  const int old_times = TimesIn(all) + TimesIn(timed);
  const auto room = [&all] { return kPuzzlesPerLevel - all.size(); };
  const auto add = [&all, &room](const std::vector<SudokuRecord>& from) {
    const std::vector<SudokuRecord> taken = TakeSpread(from, room());
    Append(all, taken);
    return static_cast<int>(taken.size());
  };
  report.imported = add(handed_in);
  report.too_many = static_cast<int>(handed_in.size()) - report.imported;
  if (fill == FillWith::Old) report.kept = add(timed) + add(untimed);
  std::set<CanonicalPuzzle> known;
  std::ranges::transform(old_forms_, std::inserter(known, known.end()),
                         [](const auto& f) { return f.first; });
  std::ranges::transform(new_forms_, std::inserter(known, known.end()),
                         [](const auto& f) { return f.first; });
  report.made = add(MakeRecords(level, std::vector<ScoreRange>(room()), run, known));
  report.times_lost = old_times - TimesIn(all);
  SortRecords(all);
  return all;
}

ImportResult StockImport::Finish(FillWith fill, const FillRun& run) {
  ImportResult result{stock_, {}};
  for (int level = 1; level <= kLevels; ++level) {
    const auto index = static_cast<std::size_t>(level - 1);
    const auto of_level = [&](int record) { return (record - 1) / kPuzzlesPerLevel + 1 == level; };
    result.levels[index].there = static_cast<int>(std::ranges::count_if(there_, of_level));
    if (new_[index].empty()) continue;
    const std::vector<SudokuRecord> records = Level(level, fill, run, result.levels[index]);
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      result.stock(level, number) = records[static_cast<std::size_t>(number - 1)];
    }
  }
  return result;
}

}  // namespace kestrel
