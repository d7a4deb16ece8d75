// SPDX-License-Identifier: MIT
#include "stock/stock_check.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "core/cell_names.h"
#include "stock/ordered_work.h"
#include "stock/puzzle_judge.h"

namespace kestrel {
namespace {

struct Place {
  int level;
  int number;
};

struct RecordResult {
  Place place{};
  std::vector<std::string> faults;
  std::optional<CanonicalPuzzle> canonical;  // none when the puzzle has not just one solution
};

class RecordChecker {
 public:
  explicit RecordChecker(const StockTable& stock) : stock_(stock) {}

  RecordResult operator()(const Place& place) {
    result_ = {place, {}, {}};
    const SudokuRecord& record = stock_(place.level, place.number);
    for (const RecordFault fault : RecordFaults(record, place.level)) {
      result_.faults.emplace_back(Describe(fault));
    }
    const Verdict verdict = judge_.Judge(record.GivenCells);
    if (verdict.solutions == 1) {
      CheckSolution(record, verdict);
      CheckRating(record, verdict, place.level);
      result_.canonical = verdict.form;
    } else {
      result_.faults.emplace_back(verdict.solutions == 0 ? "no solution" : "more than one solution");
    }
    return std::move(result_);
  }

 private:
  void Expect(std::string_view what, std::int64_t is, std::int64_t wanted) {
    if (is == wanted) return;
    result_.faults.push_back(std::string(what) + " is " + std::to_string(is) + " instead of " +
                             std::to_string(wanted));
  }

  void CheckSolution(const SudokuRecord& record, const Verdict& verdict) {
    if (verdict.solution == record.SolutionCells) return;
    const auto [stored, right] = std::ranges::mismatch(record.SolutionCells, verdict.solution);
    const int cell = static_cast<int>(stored - record.SolutionCells.begin());
    Expect("solution in " + CellName(cell), *stored, *right);
  }

  void CheckRating(const SudokuRecord& record, const Verdict& verdict, int level) {
    if (verdict.level != level) {
      result_.faults.push_back("is rated level " + std::to_string(verdict.level));
      return;  // score and counts would only repeat it
    }
    Expect("score", record.Score, verdict.score);
    for (int slot = 0; slot < kTechniques; ++slot) {
      Expect("count " + std::string(kTechniqueTable[slot].abbreviation), record.TechniqueCount[slot],
             verdict.counts[slot]);
    }
  }

  const StockTable& stock_;
  PuzzleJudge judge_;
  RecordResult result_;
};

// The faults that only show between puzzles; called in the order of the stock.
class NeighbourChecker {
 public:
  explicit NeighbourChecker(const StockTable& stock) : stock_(stock) {}

  void Check(RecordResult& result) {
    const auto [level, number] = result.place;
    if (number > 1) {
      const std::int32_t score = stock_(level, number).Score;
      const std::int32_t before = stock_(level, number - 1).Score;
      if (score < before) {
        result.faults.push_back("score " + std::to_string(score) + " is below the " + std::to_string(before) +
                                " of the puzzle before");
      }
    }
    if (!result.canonical) return;
    const auto [first, is_new] = first_of_form_.emplace(*result.canonical, result.place);
    if (is_new) return;
    result.faults.push_back("same puzzle as level " + std::to_string(first->second.level) + " number " +
                            std::to_string(first->second.number));
  }

 private:
  const StockTable& stock_;
  std::map<CanonicalPuzzle, Place> first_of_form_;
};

}  // namespace

std::vector<StockFault> CheckStock(const StockTable& stock, int jobs,
                                   const std::function<void(int checked)>& progress) {
  std::vector<StockFault> faults;
  NeighbourChecker neighbours(stock);
  int taken = 0;
  int checked = 0;
  const auto take = [&](Place& place) {
    if (taken == kLevels * kPuzzlesPerLevel) return false;
    place = {1 + taken / kPuzzlesPerLevel, 1 + taken % kPuzzlesPerLevel};
    ++taken;
    return true;
  };
  const auto use = [&](RecordResult result) {
    neighbours.Check(result);
    for (std::string& text : result.faults) {
      faults.push_back({result.place.level, result.place.number, std::move(text)});
    }
    progress(++checked);
    return true;
  };
  RunOrdered<Place>(
      jobs, take, [&] { return RecordChecker(stock); }, use);
  return faults;
}

}  // namespace kestrel
