// SPDX-License-Identifier: MIT
#include "stock/stock_check.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "core/cell_names.h"
#include "solver/solver.h"
#include "stock/canonical_form.h"
#include "stock/ordered_work.h"
#include "stock/solution_counter.h"

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
    if (CheckFields(record, place.level)) {
      CheckSolution(record);
      CheckRating(record, place.level);
    }
    return std::move(result_);
  }

 private:
  void Expect(std::string_view what, std::int64_t is, std::int64_t wanted) {
    if (is == wanted) return;
    result_.faults.push_back(std::string(what) + " is " + std::to_string(is) + " instead of " +
                             std::to_string(wanted));
  }

  // False when the digits make no sense, so that there is nothing further to check.
  bool CheckFields(const SudokuRecord& record, int level) {
    Expect("level", record.Level, level);
    if (record.BestMinutes < 0 || record.BestSeconds < 0 || record.BestSeconds > 59 ||
        record.BestPlayer < 0) {
      result_.faults.emplace_back("best time makes no sense");
    }
    const auto bad_given = std::ranges::find_if(record.GivenCells, [](int digit) { return digit > 9; });
    if (bad_given == record.GivenCells.end()) return true;
    const int cell = static_cast<int>(bad_given - record.GivenCells.begin());
    result_.faults.push_back("given in " + CellName(cell) + " is no digit");
    return false;
  }

  void CheckSolution(const SudokuRecord& record) {
    const SolutionCount solutions = counter_.Count(record.GivenCells);
    if (solutions.count == 0) result_.faults.emplace_back("no solution");
    if (solutions.count > 1) result_.faults.emplace_back("more than one solution");
    if (solutions.count != 1) return;
    if (solutions.first != record.SolutionCells) {
      const auto [stored, right] = std::ranges::mismatch(record.SolutionCells, solutions.first);
      const int cell = static_cast<int>(stored - record.SolutionCells.begin());
      Expect("solution in " + CellName(cell), *stored, *right);
    }
    result_.canonical = CanonicalForm(record.GivenCells, solutions.first);
  }

  void CheckRating(const SudokuRecord& record, int level) {
    NeverStop yield;
    const Rating rating = SolveAndRate(record.GivenCells, yield);
    if (rating.level != level) {
      result_.faults.push_back("is rated level " + std::to_string(rating.level));
      return;  // score and counts would only repeat it
    }
    Expect("score", record.Score, rating.Score());
    const SlotCounts counts = CountsBySlot(rating.counters);
    for (int slot = 0; slot < kTechniques; ++slot) {
      Expect("count " + std::string(kTechniqueTable[slot].abbreviation), record.TechniqueCount[slot],
             counts[slot]);
    }
  }

  const StockTable& stock_;
  SolutionCounter counter_;
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
